#include "document_fixture.h"

namespace zel::test {
namespace {

constexpr std::string_view kCannotOpen = "Error: No se pudo abrir el archivo.";
constexpr std::string_view kNotCompatible =
    "El archivo no es compatible con esta versión del programa.";
constexpr std::string_view kUnexpectedFormat =
    "No es posible cargar las funciones en memoria porque el formato del archivo no es el "
    "esperado.";

using DocumentLoading = DocumentTest;

TEST_F(DocumentLoading, ReadsViewAndGraphs) {
  ASSERT_TRUE(load(sampleText()));
  EXPECT_EQ(message, "");
  EXPECT_EQ(view, sampleView());
  EXPECT_EQ(letters(), "ab");
  EXPECT_EQ(graphs.count(), 2);
  const auto a = graphs.graph('a');
  EXPECT_EQ(a->ecuacion, "x^2");
  EXPECT_EQ(a->codigo, "x^2");
  EXPECT_EQ(a->color, 255);
  EXPECT_EQ(a->tipo, 'F');
  EXPECT_EQ(a->parameters->Count(), 0u);
  const auto b = graphs.graph('b');
  EXPECT_EQ(b->codigo, "7@((3)^2-((0)-x)^2)+(0)");
  EXPECT_EQ(b->parameters->keys(), (std::vector<std::string>{"h", "k", "r", "codigo1", "codigo2"}));
}

TEST_F(DocumentLoading, KeepsThePairsOfTheHeader) {
  ASSERT_TRUE(loadSampleWith("usuario=desconocido", "usuario=a=b"));
  EXPECT_EQ(header.Count(), 12u);
  EXPECT_EQ(header.keys().front(), "version");
  EXPECT_EQ(header.Item("09.versiones_compatibles"), "2.8");
  EXPECT_EQ(header.Item("usuario"), "a=b");
}

TEST_F(DocumentLoading, ReplacesTheOldGraphs) {
  putOldGraph();
  ASSERT_TRUE(load(sampleText()));
  EXPECT_EQ(letters(), "ab");
}

TEST_F(DocumentLoading, ReadsADocumentWithoutGraphs) {
  putOldGraph();
  ASSERT_TRUE(
      load(std::string(kSampleHead).append(kSampleView).append("[GRAFICOS PRINCIPAL]\r\n ")));
  EXPECT_EQ(letters(), "");
}

TEST_F(DocumentLoading, ReadsAMissingFileAsAFailureAndCreatesIt) {
  putOldGraph();
  EXPECT_FALSE(loadDocument(path, view, graphs, header, message));
  EXPECT_EQ(message, kCannotOpen);
  EXPECT_EQ(letters(), "z");
  EXPECT_EQ(folder.names(), std::set<std::string>{"sample.zel"});
  EXPECT_EQ(bytesOf(path), "");
}

TEST_F(DocumentLoading, CannotReadAFolder) {
  putOldGraph();
  EXPECT_FALSE(loadDocument(folder.path().string(), view, graphs, header, message));
  EXPECT_EQ(message, kCannotOpen);
  EXPECT_EQ(letters(), "z");
}

TEST_F(DocumentLoading, RefusesAFileThatIsNotCompatible) {
  putOldGraph();
  const MainView before = view;
  const std::string without =
      replaceAll(sampleText(), "01.versiones_compatibles=2.0", "01.versiones_compatibles=1.9");
  for (const std::string& bytes : {std::string(), std::string("   "), std::string("x"), without}) {
    EXPECT_FALSE(load(bytes));
    EXPECT_EQ(message, kNotCompatible);
    EXPECT_EQ(letters(), "z");
    EXPECT_EQ(view, before);
  }
}

TEST_F(DocumentLoading, LooksForTheOldestVersionAnywhereAndInAnyCase) {
  EXPECT_TRUE(loadSampleWith("01.versiones_compatibles=2.0", "99.VERSIONES_COMPATIBLES=2.0.5"));
  EXPECT_TRUE(load("versiones_compatibles=2.0" + replaceAll(sampleText(), "=2.0", "=1.9")));
}

TEST_F(DocumentLoading, MissesASection) {
  for (const char* const section : {"[PRINCIPAL]", "[VISTA PRINCIPAL]", "[GRAFICOS PRINCIPAL]"}) {
    putOldGraph();
    expectFailure(loadSampleWith(section, "[x]"), kUnexpectedFormat, "");
  }
}

TEST_F(DocumentLoading, ComparesSectionHeadersExactly) {
  for (const char* const header_line :
       {"[vista PRINCIPAL]", "[VISTA PRINCIPAL] ", " [VISTA PRINCIPAL]", "[VISTA PRINCIPAL]\n"})
    expectFailure(loadSampleWith("[VISTA PRINCIPAL]", header_line), kUnexpectedFormat, "");
}

TEST_F(DocumentLoading, FindsSectionsInTheirOrderOnly) {
  expectFailure(load(std::string(kSampleView).append(kSampleHead).append(kSampleGraphs)),
                kUnexpectedFormat, "");
}

TEST_F(DocumentLoading, SplitsLinesAtCrLfOnly) {
  expectFailure(load(replaceAll(sampleText(), "\r\n", "\n")), kUnexpectedFormat, "");
}

TEST_F(DocumentLoading, PassesOverAnythingBetweenSections) {
  EXPECT_TRUE(loadSampleWith("[VISTA PRINCIPAL]", "x\r\n \r\n[y]\r\nxi=5\r\n[VISTA PRINCIPAL]"));
  EXPECT_EQ(view, sampleView());
}

TEST_F(DocumentLoading, StopsAtADuplicateKey) {
  expectFailure(loadSampleWith("sistema=", "version="), "", "");
  expectFailure(loadSampleWith("color=16711680", "color=0\r\ncolor=16711680"), "", "a");
  expectFailure(loadSampleWith("k=0", "h=0"), "", "a");
}

TEST_F(DocumentLoading, ComparesTheCaseOfKeys) {
  EXPECT_TRUE(loadSampleWith("sistema=", "VERSION="));
}

TEST_F(DocumentLoading, TakesALineWithoutAnEqualsSignAsAnEmptyPair) {
  ASSERT_TRUE(loadSampleWith("h=0", "h"));
  EXPECT_EQ(graphs.graph('b')->parameters->keys(),
            (std::vector<std::string>{"", "k", "r", "codigo1", "codigo2"}));
  expectFailure(loadSampleWith("h=0\r\nk=0", "h\r\nk"), "", "a");
}

TEST_F(DocumentLoading, EndsASectionAtASingleBlankOnly) {
  const std::string text = replaceAll(sampleText(), "usuario=desconocido\r\n \r\n",
                                      "usuario=desconocido\r\n  \r\nmore=1\r\n \r\n");
  ASSERT_TRUE(load(text));
  EXPECT_EQ(header.Item("more"), "1");
  EXPECT_TRUE(header.Exists(""));
}

TEST_F(DocumentLoading, StopsWhereTheLinesOfASectionRunOut) {
  const std::string text = sampleText();
  const auto cut = [&](std::string_view after) {
    return load(text.substr(0, text.find(after) + after.size()));
  };
  expectFailure(cut("usuario=desconocido"), "", "");
  expectFailure(cut("escala_y=1\r\n"), "", "");
  expectFailure(cut("tipo=F\r\n"), "", "");
  expectFailure(cut("tipo=C"), "", "a");
  expectFailure(cut("codigo2="), "", "a");
}

TEST_F(DocumentLoading, NeedsNothingBehindTheLastParameters) {
  const std::string text = sampleText();
  EXPECT_TRUE(load(text.substr(0, text.size() - std::string_view("\r\n \r\n ").size())));
  EXPECT_EQ(letters(), "ab");
}

TEST_F(DocumentLoading, TakesBytesThatWereReadAlready) {
  EXPECT_TRUE(loadDocumentBytes(sampleText(), view, graphs, header, message));
  EXPECT_EQ(letters(), "ab");
  EXPECT_EQ(view, sampleView());
  EXPECT_EQ(documentBytes(view, graphs), sampleText());
  EXPECT_FALSE(loadDocumentBytes("", view, graphs, header, message));
  EXPECT_EQ(message, kNotCompatible);
}

TEST_F(DocumentLoading, LeavesTheMessageInSpanishForItsReader) {
  SetCurrentLanguage("EN");
  expectFailure(loadSampleWith("[VISTA PRINCIPAL]", ""), kUnexpectedFormat, "");
  EXPECT_EQ(Localize(message), "Cannot load file in memory because file format is incompatible.");
}

}  // namespace
}  // namespace zel::test
