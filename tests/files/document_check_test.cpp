// What is never written: a document that a load would not give back.

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

TEST_F(DocumentCheck, RefusesADocumentThatIsTooLongToBeRead) {
  graphs.rebuildGraph('a', std::string(kMaxWholeFile, 'x'), "", 0, '?', nullptr);
  EXPECT_TRUE(isRefused());
}

}  // namespace
}  // namespace zel::test
