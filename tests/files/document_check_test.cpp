// What is never written: a document that a load would not give back.

#include "files/document_check.h"

#include "base/code_page.h"
#include "document_fixture.h"

namespace zel::test {
namespace {

/// Saves over an older document, and looks whether that is still there.
class DocumentCheck : public DocumentTest {
 protected:
  bool isRefused() {
    putBytes(path, "older");
    const WriteResult result = writeDocument(path, view, graphs);
    EXPECT_EQ(result.error, 0);
    EXPECT_EQ(saveDocument(path, view, graphs).empty(), result.written);
    EXPECT_EQ(bytesOf(path) == "older", !result.written);
    return !result.written;
  }

  /// A graph that has everything.
  static GraphDef sampleGraph() {
    GraphDef def;
    def.nombre = 'm';
    def.defined = true;
    def.tipo = 'P';
    def.ecuacion = "m(0;0;1)";
    def.codigo = "x^2";
    def.parameters = std::make_shared<Parameters>();
    def.parameters->Add("h", "0");
    return def;
  }

  bool isRefusedWith(const GraphDef& def) {
    graphs.clearGraphs();
    graphs.storeGraph(def);
    return isRefused();
  }

  /// Stores a graph as the editor does.
  void rebuild(char tipo, const std::string& formula, std::shared_ptr<Parameters> parameters = {}) {
    graphs.rebuildGraph('a', formula, "", 0, tipo, std::move(parameters));
  }
};

const std::vector<std::string> kBroken = {
    "x^2\r\n", "5\r\n \r\nfoo",       "\r",      "a\nb",      "\tx",     "x\x1F",
    "\x7F",    std::string("0\0", 2), "\r\nx=1", "x\xC2\x81", "\xC2\x9F"};

TEST_F(DocumentCheck, RefusesAControlCharacterInAnyTextOfTheView) {
  ASSERT_FALSE(isRefused());
  for (std::string MainView::*const text :
       {&MainView::xi, &MainView::xf, &MainView::yi, &MainView::yf, &MainView::escala_x,
        &MainView::escala_y}) {
    for (const std::string& broken : kBroken) {
      view.*text = broken;
      EXPECT_TRUE(isRefused()) << broken;
    }
    view.*text = "1";
  }
}

TEST_F(DocumentCheck, RefusesAControlCharacterInAnyTextOfAGraph) {
  ASSERT_FALSE(isRefusedWith(sampleGraph()));
  for (std::string GraphDef::*const text :
       {&GraphDef::ecuacion, &GraphDef::codigo, &GraphDef::carpeta}) {
    for (const std::string& broken : kBroken) {
      GraphDef def = sampleGraph();
      def.*text = broken;
      EXPECT_TRUE(isRefusedWith(def)) << broken;
    }
  }
  for (const std::string& broken : kBroken) {
    GraphDef value = sampleGraph();
    value.parameters->set("h", broken);
    EXPECT_TRUE(isRefusedWith(value)) << broken;
    GraphDef key = sampleGraph();
    key.parameters->set(broken, "1");
    EXPECT_TRUE(isRefusedWith(key)) << broken;
  }
  for (const char kind : {'\n', '\r', '\x7F'}) {
    GraphDef def = sampleGraph();
    def.tipo = kind;
    EXPECT_TRUE(isRefusedWith(def)) << int{kind};
  }
}

TEST_F(DocumentCheck, RefusesWhatWouldBeReadAsSomethingElse) {
  GraphDef key = sampleGraph();
  key.parameters->set("a=b", "c");
  EXPECT_TRUE(isRefusedWith(key));
  GraphDef code = sampleGraph();
  code.tipo = 'F';
  code.codigo = "not of this formula";
  EXPECT_TRUE(isRefusedWith(code));
  graphs.clearGraphs();
  view.definicion = 0;
  EXPECT_TRUE(isRefused());
}

TEST_F(DocumentCheck, TakesWhateverStandsOnItsLine) {
  for (const char* const text : {" ", "", "=", "[PROPIEDADES]", "[PARAMETROS]", "=[GRAFICO]", "  ",
                                 "\xC2\xA0", "<b>&amp;</b>", "\\r\\n", "\"%n\""}) {
    view.xf = text;
    GraphDef def = sampleGraph();
    def.ecuacion = def.codigo = def.carpeta = text;
    def.parameters->set(std::string(text) == "=" ? "" : "key", text);
    EXPECT_FALSE(isRefusedWith(def)) << text;
    const WriteResult result = writeDocument(path, view, graphs);
    ASSERT_TRUE(result.written && loadDocument(path, view, graphs, header, message)) << text;
    EXPECT_EQ(view.xf, text);
    EXPECT_EQ(graphs.graph('m')->ecuacion, text);
    EXPECT_EQ(graphs.graph('m')->codigo, text);
  }
}

TEST_F(DocumentCheck, TakesFormulasThatTheCodePageLacks) {
  auto curve = std::make_shared<Parameters>();
  curve->Add("ecuacion_xt", "Π·Sen(t) + ñ");
  curve->Add("ecuacion_yt", "Ω*T");
  rebuild('T', "[X(t)=Π]", curve);
  EXPECT_FALSE(isRefused());
  for (const char tipo : {'F', 'Z'}) {
    rebuild(tipo, "Π·Sen(x) + ñ€ \xFF\xE2\x82 X!");
    EXPECT_FALSE(isRefused()) << tipo;
  }
}

TEST_F(DocumentCheck, TakesGraphsWithoutKindOrParameters) {
  GraphDef def = sampleGraph();
  def.tipo = '\0';
  def.ecuacion = def.codigo = "";
  def.parameters = nullptr;
  EXPECT_FALSE(isRefusedWith(def));
}

/// Bytes that a writer with a fault might have made of the sample.
TEST_F(DocumentCheck, NoticesEachValueThatALoadWouldNotGiveBack) {
  ASSERT_TRUE(load(sampleText()));
  ASSERT_TRUE(isReadBack(sampleText(), view, graphs));
  const std::pair<const char*, const char*> faults[] = {
      {"xi=-10", "xi=-1"},
      {"xf=10", "xf=1"},
      {"yi=-10", "yi=-1"},
      {"yf=10", "yf=1"},
      {"definicion=5", "definicion=6"},
      {"proporcional=1", "proporcional=0"},
      {"escala_x=1", "escala_x=2"},
      {"escala_y=1", "escala_y=2"},
      {"nombre=a", "nombre=c"},
      {"nombre=b", "nombre=a"},
      {"color=255", "color=256"},
      {"ecuacion=x^2", "ecuacion=x^3"},
      {"ecuacion=b(0;0;3)", "ecuacion=b(0;0;4)"},
      {"tipo=F", "tipo=Z"},
      {"codigo1=7", "codigo1=8"},
      {"codigo2=-7", "codigo2=-8"},
      {"h=0", "h=1"},
      {"r=3\r\n", ""},
      {"r=3\r\n", "r=3\r\nr2=4\r\n"},
      {"h=0\r\nk=0", "k=0\r\nh=0"},
      {"[PARAMETROS]\r\n \r\n", "[PARAMETROS]\r\nx=1\r\n \r\n"},
      {"[VISTA PRINCIPAL]", "[VISTA]"},
  };
  for (const auto& [from, to] : faults) {
    const std::string text = replaceAll(sampleText(), from, to);
    ASSERT_NE(text, sampleText()) << from;
    EXPECT_FALSE(isReadBack(text, view, graphs)) << to;
  }
}

TEST_F(DocumentCheck, NoticesAGraphOfAnyLetterThatIsNotThere) {
  const std::string text = documentText(view, GraphTable());
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    graphs.clearGraphs();
    ASSERT_TRUE(isReadBack(text, view, graphs));
    graphs.rebuildGraph(letter, "x", "", 0, 'F', nullptr);
    EXPECT_FALSE(isReadBack(text, view, graphs)) << letter;
  }
}

TEST_F(DocumentCheck, NoticesParametersThatAGraphDoesNotHave) {
  GraphDef def = sampleGraph();
  graphs.storeGraph(def);
  const std::string text = documentText(view, graphs);
  ASSERT_TRUE(isReadBack(text, view, graphs));
  def.parameters = nullptr;
  graphs.storeGraph(def);
  EXPECT_FALSE(isReadBack(text, view, graphs));
}

/// The value ends the graph that it stands in, and what follows takes the place of the next one.
TEST_F(DocumentCheck, RefusesAValueThatSwallowsAGraph) {
  GraphDef def = sampleGraph();
  def.parameters->set("h", "\r\n \r\n[PROPIEDADES]\r\nnombre=n\r\ncolor=0");
  graphs.storeGraph(def);
  graphs.rebuildGraph('o', "x", "", 0, 'F', nullptr);
  EXPECT_TRUE(isRefused());
}

TEST_F(DocumentCheck, RefusesADocumentThatIsTooLongToBeRead) {
  graphs.rebuildGraph('a', std::string(kMaxWholeFile, 'x'), "", 0, '?', nullptr);
  EXPECT_TRUE(isRefused());
}

}  // namespace
}  // namespace zel::test
