#include "base/code_page.h"
#include "document_fixture.h"

namespace zel::test {
namespace {

using DocumentGraphs = DocumentTest;

TEST_F(DocumentGraphs, KeepsValuesWithEqualsSignsAccentsAndBlanks) {
  ASSERT_TRUE(load(toCodePage(replaceAll(sampleText(), "b(0;0;3)", " [ñ]=€=ÿ "))));
  EXPECT_EQ(graphs.graph('b')->ecuacion, " [ñ]=€=ÿ ");
}

TEST_F(DocumentGraphs, CompilesFunctionsAndFamiliesAgain) {
  for (const char* const tipo : {"F", "Z"}) {
    const std::string text = replaceAll(sampleText(), "tipo=F", std::string("tipo=") + tipo);
    ASSERT_TRUE(load(replaceAll(text, "codigo=x^2", "codigo=stale")));
    EXPECT_EQ(graphs.codeOf('a'), "x^2");
  }
}

TEST_F(DocumentGraphs, KeepsTheStoredCodeOfAParabola) {
  const std::string text = replaceAll(sampleText(), "tipo=F", "tipo=P");
  ASSERT_TRUE(load(replaceAll(text, "codigo=x^2", "codigo=(1)*x^2")));
  EXPECT_EQ(graphs.codeOf('a'), "(1)*x^2");
}

TEST_F(DocumentGraphs, CompilesParametricCurvesAgain) {
  const std::string text = replaceAll(sampleText(), "tipo=F", "tipo=T");
  ASSERT_TRUE(load(replaceAll(text, "[PARAMETROS]\r\n \r\n",
                              "[PARAMETROS]\r\necuacion_xt=Cos(t)\r\ncodigo_xt=stale\r\n"
                              "ecuacion_yt=t\r\n \r\n")));
  EXPECT_EQ(parameter(*graphs.graph('a'), "codigo_xt"), "11@(t)");
  EXPECT_EQ(parameter(*graphs.graph('a'), "codigo_yt"), "t");
  EXPECT_EQ(graphs.codeOf('a'), "");
}

TEST_F(DocumentGraphs, DoesNotReadTheFolderText) {
  ASSERT_TRUE(loadSampleWith("carpeta=", "carpeta=casa"));
  EXPECT_EQ(graphs.graph('a')->carpeta, "");
}

TEST_F(DocumentGraphs, TakesTheLastOfTwoGraphsWithOneName) {
  ASSERT_TRUE(loadSampleWith("nombre=b", "nombre=a"));
  EXPECT_EQ(letters(), "a");
  EXPECT_EQ(graphs.count(), 1);
  EXPECT_EQ(graphs.graph('a')->tipo, 'C');
}

TEST_F(DocumentGraphs, TakesTheFirstCharacterOfNameAndKind) {
  const std::string text = replaceAll(sampleText(), "nombre=a", "nombre=can");
  ASSERT_TRUE(load(replaceAll(text, "tipo=F", "tipo=Familia")));
  EXPECT_EQ(letters(), "bc");
  EXPECT_EQ(graphs.graph('c')->tipo, 'F');
}

TEST_F(DocumentGraphs, StopsAtANameOutsideTheTable) {
  for (const char* const name : {"", "A", "B", " b", "1", "\xF1", "?"})
    expectFailure(loadSampleWith("nombre=b", std::string("nombre=") + name), "", "a");
}

TEST_F(DocumentGraphs, TakesAnyKindAndGivesItBack) {
  const std::pair<std::string, std::string> kinds[] = {{"", ""},   {"\xF1", "ñ"}, {"\x80", "€"},
                                                       {"?", "?"}, {"=", "="},    {"f", "f"}};
  for (const auto& [bytes, text] : kinds) {
    ASSERT_TRUE(loadSampleWith("tipo=F", "tipo=" + bytes));
    EXPECT_EQ(kindText(*graphs.graph('a')), text);
    EXPECT_EQ(graphs.codeOf('a'), "");
    EXPECT_EQ(saveDocument(path, view, graphs), "");
    EXPECT_NE(bytesOf(path).find("\r\ntipo=" + bytes + "\r\n"), std::string::npos) << text;
  }
  ASSERT_TRUE(loadSampleWith("tipo=F", "tipo=\xF1\xE9"));
  EXPECT_EQ(kindText(*graphs.graph('a')), "ñ");
}

TEST_F(DocumentGraphs, ConvertsColours) {
  ASSERT_TRUE(loadSampleWith("color=255", "color=-2147483648"));
  EXPECT_EQ(graphs.graph('a')->color, -2147483647 - 1);
  ASSERT_TRUE(loadSampleWith("color=255", "color=1,5"));
  EXPECT_EQ(graphs.graph('a')->color, 2);
}

TEST_F(DocumentGraphs, StopsAtAColourThatCannotBeConverted) {
  for (const char* const colour : {"", "red", "2147483648", "1e999", "#ff0000"})
    expectFailure(loadSampleWith("color=16711680", std::string("color=") + colour), "", "a");
  expectFailure(loadSampleWith("color=16711680\r\n", ""), "", "a");
}

TEST_F(DocumentGraphs, ReadsOtherMissingKeysAsEmptyTexts) {
  ASSERT_TRUE(loadSampleWith("ecuacion=x^2\r\n", ""));
  EXPECT_EQ(graphs.graph('a')->ecuacion, "");
  ASSERT_TRUE(loadSampleWith("codigo1=7@((3)^2-((0)-x)^2)+(0)\r\n", ""));
  EXPECT_EQ(graphs.codeOf('b'), "");
}

TEST_F(DocumentGraphs, SkipsALastGraphWithoutParameters) {
  const std::string text = sampleText();
  const std::size_t last = text.rfind("[PARAMETROS]");
  EXPECT_TRUE(load(text.substr(0, last) + "[x]" + text.substr(last)));
  EXPECT_EQ(letters(), "a");
}

TEST_F(DocumentGraphs, GivesAGraphWithoutParametersThoseOfTheNext) {
  const std::string text = sampleText();
  const std::size_t first = text.find("[PARAMETROS]");
  EXPECT_TRUE(load(text.substr(0, first) + "[x]" + text.substr(first)));
  EXPECT_EQ(letters(), "a");
  EXPECT_EQ(parameter(*graphs.graph('a'), "r"), "3");
}

TEST_F(DocumentGraphs, DoesNotLookAtTheGraphHeaders) {
  ASSERT_TRUE(loadSampleWith("[GRAFICO]\r\n", ""));
  EXPECT_EQ(letters(), "ab");
}

}  // namespace
}  // namespace zel::test
