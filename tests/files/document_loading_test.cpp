#include "base/code_page.h"
#include "document_fixture.h"

namespace zel::test {
namespace {

constexpr std::string_view kCannotOpen = "Error: No se pudo abrir el archivo.";
constexpr std::string_view kNotCompatible =
    "El archivo no es compatible con esta versión del programa.";
constexpr std::string_view kUnexpectedFormat =
    "No es posible cargar las funciones en memoria porque el formato del archivo no es el "
    "esperado.";

class DocumentLoading : public DocumentTest {
 protected:
  /// A load that must fail with this message (empty for an error inside a section), after the old
  /// graphs were cleared; `left` are the letters that were read before the failure.
  void expectFailure(bool loaded, std::string_view expected, std::string_view left) {
    EXPECT_FALSE(loaded);
    EXPECT_EQ(message, expected);
    EXPECT_EQ(letters(), left);
  }

  void putOldGraph() { graphs.rebuildGraph('z', "old", "", 0, 'F', nullptr); }
};

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
  EXPECT_TRUE(loadSampleWith("01.versiones_compatibles=2.0", "99.VERSIONES_compatibles=2.0.5"));
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

TEST_F(DocumentLoading, SetsTheViewFromItsKeysInAnyOrder) {
  ASSERT_TRUE(loadSampleWith(kSampleView,
                             "[VISTA PRINCIPAL]\r\nescala_y=\r\nescala_x= 2 \r\nproporcional=0\r\n"
                             "definicion=7,5\r\nyf=d\r\nyi=c\r\nxf=b\r\nxi=a=b\r\n \r\n"));
  EXPECT_EQ(view, (MainView{"a=b", "b", "c", "d", 8, false, " 2 ", ""}));
}

TEST_F(DocumentLoading, LeavesWhatTheViewSectionDoesNotName) {
  view.xi = "before";
  ASSERT_TRUE(loadSampleWith("xi=-10\r\n", ""));
  EXPECT_EQ(view.xi, "before");
}

TEST_F(DocumentLoading, PassesOverOtherKeysOfTheView) {
  ASSERT_TRUE(loadSampleWith("xi=-10\r\n", "XI=5\r\nxi =5\r\nzoom=x\r\nno pair\r\n  \r\nxi=3\r\n"));
  EXPECT_EQ(view.xi, "3");
}

TEST_F(DocumentLoading, TakesTheLastOfAViewsRepeatedKeys) {
  ASSERT_TRUE(loadSampleWith("xi=-10\r\n", "xi=1\r\nxi=2\r\n"));
  EXPECT_EQ(view.xi, "2");
}

TEST_F(DocumentLoading, HoldsTheQualityWithinTheSlider) {
  ASSERT_TRUE(loadSampleWith("definicion=5", "definicion=0"));
  EXPECT_EQ(view.definicion, 1);
  ASSERT_TRUE(loadSampleWith("definicion=5", "definicion=-32768"));
  EXPECT_EQ(view.definicion, 1);
  ASSERT_TRUE(loadSampleWith("definicion=5", "definicion=32767"));
  EXPECT_EQ(view.definicion, 100);
  ASSERT_TRUE(loadSampleWith("definicion=5", "definicion=4.5"));
  EXPECT_EQ(view.definicion, 4);
}

TEST_F(DocumentLoading, TakesAnyNumberButZeroAsProportional) {
  for (const char* const value : {"1", "-1", "2", "0,6", "32767"}) {
    ASSERT_TRUE(loadSampleWith("proporcional=1", std::string("proporcional=") + value));
    EXPECT_TRUE(view.proporcional) << value;
  }
  for (const char* const value : {"0", "0,5", "-0,4"}) {
    ASSERT_TRUE(loadSampleWith("proporcional=1", std::string("proporcional=") + value));
    EXPECT_FALSE(view.proporcional) << value;
  }
}

TEST_F(DocumentLoading, StopsAtAViewNumberThatCannotBeConverted) {
  for (const char* const value : {"", " ", "x", "32768", "-32769", "1e9", "1 "}) {
    putOldGraph();
    expectFailure(loadSampleWith("definicion=5", std::string("definicion=") + value), "", "");
    expectFailure(loadSampleWith("proporcional=1", std::string("proporcional=") + value), "", "");
  }
}

TEST_F(DocumentLoading, KeepsWhatTheViewSectionSetBeforeAFailure) {
  ASSERT_FALSE(loadSampleWith("definicion=5", "definicion=x"));
  EXPECT_EQ(view.yf, "10");
  ASSERT_FALSE(loadSampleWith("xi=-10", "xi=changed\r\nproporcional="));
  EXPECT_EQ(view.xi, "changed");
}

TEST_F(DocumentLoading, KeepsValuesWithEqualsSignsAccentsAndBlanks) {
  ASSERT_TRUE(load(toCodePage(replaceAll(sampleText(), "b(0;0;3)", " [ñ]=€=ÿ "))));
  EXPECT_EQ(graphs.graph('b')->ecuacion, " [ñ]=€=ÿ ");
}

TEST_F(DocumentLoading, CompilesFunctionsAndFamiliesAgain) {
  for (const char* const tipo : {"F", "Z"}) {
    const std::string text = replaceAll(sampleText(), "tipo=F", std::string("tipo=") + tipo);
    ASSERT_TRUE(load(replaceAll(text, "codigo=x^2", "codigo=stale")));
    EXPECT_EQ(graphs.codeOf('a'), "x^2");
  }
}

TEST_F(DocumentLoading, KeepsTheStoredCodeOfAParabola) {
  const std::string text = replaceAll(sampleText(), "tipo=F", "tipo=P");
  ASSERT_TRUE(load(replaceAll(text, "codigo=x^2", "codigo=(1)*x^2")));
  EXPECT_EQ(graphs.codeOf('a'), "(1)*x^2");
}

TEST_F(DocumentLoading, CompilesParametricCurvesAgain) {
  const std::string text = replaceAll(sampleText(), "tipo=F", "tipo=T");
  ASSERT_TRUE(load(replaceAll(text, "[PARAMETROS]\r\n \r\n",
                              "[PARAMETROS]\r\necuacion_xt=Cos(t)\r\ncodigo_xt=stale\r\n"
                              "ecuacion_yt=t\r\n \r\n")));
  EXPECT_EQ(parameter(*graphs.graph('a'), "codigo_xt"), "11@(t)");
  EXPECT_EQ(parameter(*graphs.graph('a'), "codigo_yt"), "t");
  EXPECT_EQ(graphs.codeOf('a'), "");
}

TEST_F(DocumentLoading, DoesNotReadTheFolderText) {
  ASSERT_TRUE(loadSampleWith("carpeta=", "carpeta=casa"));
  EXPECT_EQ(graphs.graph('a')->carpeta, "");
}

TEST_F(DocumentLoading, TakesTheLastOfTwoGraphsWithOneName) {
  ASSERT_TRUE(loadSampleWith("nombre=b", "nombre=a"));
  EXPECT_EQ(letters(), "a");
  EXPECT_EQ(graphs.count(), 1);
  EXPECT_EQ(graphs.graph('a')->tipo, 'C');
}

TEST_F(DocumentLoading, TakesTheFirstCharacterOfNameAndKind) {
  const std::string text = replaceAll(sampleText(), "nombre=a", "nombre=can");
  ASSERT_TRUE(load(replaceAll(text, "tipo=F", "tipo=Familia")));
  EXPECT_EQ(letters(), "bc");
  EXPECT_EQ(graphs.graph('c')->tipo, 'F');
}

TEST_F(DocumentLoading, StopsAtANameOutsideTheTable) {
  for (const char* const name : {"", "A", "B", " b", "1", "\xF1", "?"})
    expectFailure(loadSampleWith("nombre=b", std::string("nombre=") + name), "", "a");
}

TEST_F(DocumentLoading, TakesAnyKind) {
  ASSERT_TRUE(loadSampleWith("tipo=F", "tipo="));
  EXPECT_EQ(graphs.graph('a')->tipo, '\0');
  ASSERT_TRUE(loadSampleWith("tipo=F", "tipo=\xF1"));
  EXPECT_EQ(graphs.graph('a')->tipo, '?');
  EXPECT_EQ(graphs.codeOf('a'), "");
}

TEST_F(DocumentLoading, ConvertsColours) {
  ASSERT_TRUE(loadSampleWith("color=255", "color=-2147483648"));
  EXPECT_EQ(graphs.graph('a')->color, -2147483647 - 1);
  ASSERT_TRUE(loadSampleWith("color=255", "color=1,5"));
  EXPECT_EQ(graphs.graph('a')->color, 2);
}

TEST_F(DocumentLoading, StopsAtAColourThatCannotBeConverted) {
  for (const char* const colour : {"", "red", "2147483648", "1e999", "#ff0000"})
    expectFailure(loadSampleWith("color=16711680", std::string("color=") + colour), "", "a");
  expectFailure(loadSampleWith("color=16711680\r\n", ""), "", "a");
}

TEST_F(DocumentLoading, ReadsOtherMissingKeysAsEmptyTexts) {
  ASSERT_TRUE(loadSampleWith("ecuacion=x^2\r\n", ""));
  EXPECT_EQ(graphs.graph('a')->ecuacion, "");
  ASSERT_TRUE(loadSampleWith("codigo1=7@((3)^2-((0)-x)^2)+(0)\r\n", ""));
  EXPECT_EQ(graphs.codeOf('b'), "");
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

TEST_F(DocumentLoading, SkipsALastGraphWithoutParameters) {
  const std::string text = sampleText();
  const std::size_t last = text.rfind("[PARAMETROS]");
  EXPECT_TRUE(load(text.substr(0, last) + "[x]" + text.substr(last)));
  EXPECT_EQ(letters(), "a");
}

TEST_F(DocumentLoading, GivesAGraphWithoutParametersThoseOfTheNext) {
  const std::string text = sampleText();
  const std::size_t first = text.find("[PARAMETROS]");
  EXPECT_TRUE(load(text.substr(0, first) + "[x]" + text.substr(first)));
  EXPECT_EQ(letters(), "a");
  EXPECT_EQ(parameter(*graphs.graph('a'), "r"), "3");
}

TEST_F(DocumentLoading, DoesNotLookAtTheGraphHeaders) {
  ASSERT_TRUE(loadSampleWith("[GRAFICO]\r\n", ""));
  EXPECT_EQ(letters(), "ab");
}

TEST_F(DocumentLoading, LeavesTheMessageInSpanishForItsReader) {
  SetCurrentLanguage("EN");
  expectFailure(loadSampleWith("[VISTA PRINCIPAL]", ""), kUnexpectedFormat, "");
  EXPECT_EQ(Localize(message), "Cannot load file in memory because file format is incompatible.");
}

TEST_F(DocumentLoading, SurvivesAnyBytes) {
  std::string bytes = sampleText();
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    std::string damaged = bytes;
    damaged[i] = static_cast<char>(i * 37);
    load(damaged);
    load(bytes.substr(0, i));
  }
  load(std::string("\0versiones_compatibles=2.0\0", 27));
  EXPECT_EQ(message, kUnexpectedFormat);
}

}  // namespace
}  // namespace zel::test
