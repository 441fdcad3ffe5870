#include "base/code_page.h"
#include "document_fixture.h"
#include "files/text_file.h"

namespace zel::test {
namespace {

using DocumentWriting = DocumentTest;

void addSampleGraphs(GraphTable& graphs) {
  graphs.rebuildGraph('a', "x^2", "", 255, 'F', nullptr);
  auto circle = std::make_shared<Parameters>();
  circle->Add("h", "0");
  circle->Add("k", "0");
  circle->Add("r", "3");
  circle->Add("codigo1", "7@((3)^2-((0)-x)^2)+(0)");
  circle->Add("codigo2", "-7@((3)^2-((0)-x)^2)+(0)");
  graphs.rebuildGraph('b', "b(0;0;3)", "", 16711680, 'C', circle);
}

TEST_F(DocumentWriting, WritesEverySectionToTheByte) {
  addSampleGraphs(graphs);
  EXPECT_EQ(documentText(sampleView(), graphs), sampleText());
}

TEST_F(DocumentWriting, EndsTheSectionOfGraphsAtOnceWhenThereIsNone) {
  EXPECT_EQ(documentText(sampleView(), graphs),
            std::string(kSampleHead).append(kSampleView).append("[GRAFICOS PRINCIPAL]\r\n "));
}

TEST_F(DocumentWriting, WritesTheViewAsTyped) {
  const MainView typed = {"-1.50", " 2,0", "", "abc", 100, false, "0", "1/2"};
  EXPECT_EQ(documentText(typed, graphs),
            std::string(kSampleHead)
                .append("[VISTA PRINCIPAL]\r\nxi=-1.50\r\nxf= 2,0\r\nyi=\r\nyf=abc\r\n"
                        "definicion=100\r\nproporcional=0\r\nescala_x=0\r\nescala_y=1/2\r\n \r\n"
                        "[GRAFICOS PRINCIPAL]\r\n "));
}

TEST_F(DocumentWriting, WritesTheGraphsInUseInLetterOrder) {
  for (const char letter : {'z', 'm', 'a'}) graphs.rebuildGraph(letter, "x", "", 0, 'F', nullptr);
  graphs.freeGraph('m');
  const std::string text = documentText(view, graphs);
  EXPECT_LT(text.find("nombre=a"), text.find("nombre=z"));
  EXPECT_EQ(text.find("nombre=m"), std::string::npos);
}

TEST_F(DocumentWriting, WritesFolderTextAndNegativeColours) {
  GraphDef def;
  def.nombre = 'q';
  def.defined = true;
  def.carpeta = "casa";
  def.color = -2147483647 - 1;
  graphs.storeGraph(def);
  EXPECT_EQ(
      documentText(sampleView(), graphs),
      std::string(kSampleHead)
          .append(kSampleView)
          .append("[GRAFICOS PRINCIPAL]\r\n[GRAFICO]\r\n[PROPIEDADES]\r\nnombre=q\r\n"
                  "carpeta=casa\r\ncodigo=\r\ncolor=-2147483648\r\necuacion=\r\ntipo=\r\n \r\n"
                  "[PARAMETROS]\r\n \r\n \r\n "));
}

TEST_F(DocumentWriting, PutsAQuestionMarkForWhatTheCodePageLacks) {
  graphs.rebuildGraph('a', "π·ñ", "", 0, 'F', nullptr);
  EXPECT_EQ(saveDocument(path, view, graphs), messages::kCannotSave);
  EXPECT_NE(bytesOf(path).find("ecuacion=?\xB7\xF1\r\n"), std::string::npos);
}

TEST_F(DocumentWriting, SavesToAPathWithAFileAndSaysNothing) {
  putBytes(path, "older");
  addSampleGraphs(graphs);
  EXPECT_EQ(saveDocument(path, sampleView(), graphs), "");
  EXPECT_EQ(bytesOf(path), sampleText());
}

TEST_F(DocumentWriting, SavesToAPathWhoseFileWasDeletedAndStillComplains) {
  addSampleGraphs(graphs);
  EXPECT_EQ(saveDocument(path, sampleView(), graphs), "No se pudo salvar el archivo.");
  EXPECT_EQ(bytesOf(path), sampleText());
}

TEST_F(DocumentWriting, ComplainsWhenNothingCouldBeWritten) {
  EXPECT_EQ(saveDocument(folder / "missing/x.zel", view, graphs), "No se pudo salvar el archivo.");
  EXPECT_EQ(saveDocument(folder.path().string(), view, graphs), "No se pudo salvar el archivo.");
}

TEST_F(DocumentWriting, TellsAWrittenFileFromOneThatExisted) {
  const WriteResult first = writeDocument(path, sampleView(), graphs);
  EXPECT_TRUE(first.written);
  EXPECT_FALSE(first.existed);
  const WriteResult second = writeDocument(path, sampleView(), graphs);
  EXPECT_TRUE(second.written);
  EXPECT_TRUE(second.existed);
  const WriteResult failed = writeDocument(folder / "missing/x.zel", view, graphs);
  EXPECT_FALSE(failed.written);
}

TEST_F(DocumentWriting, GivesTheSameBytesAfterALoad) {
  const std::string bytes = toCodePage(
      replaceAll(replaceAll(sampleText(), "b(0;0;3)", "b=c=[ñ€]; á "), "h=0\r", "h=1=2\r"));
  ASSERT_TRUE(load(bytes)) << message;
  EXPECT_EQ(toCodePage(documentText(view, graphs)), bytes);
}

TEST_F(DocumentWriting, KnowsTheBytesOfADocument) {
  graphs.rebuildGraph('a', "π·ñ", "", 0, 'F', nullptr);
  const std::string bytes = toCodePage(documentText(view, graphs));
  EXPECT_TRUE(isDocument(bytes, view, graphs));
  EXPECT_FALSE(isDocument(bytes + " ", view, graphs));
  EXPECT_FALSE(isDocument(bytes.substr(0, bytes.size() - 1), view, graphs));
  EXPECT_FALSE(isDocument("", view, graphs));
  view.xi = "-3";
  EXPECT_FALSE(isDocument(bytes, view, graphs));
}

TEST(DocumentMessages, HaveTheirEnglishTexts) {
  const LanguageGuard english("EN");
  EXPECT_EQ(Localize(messages::kCannotOpen), "Error: Cannot open file.");
  EXPECT_EQ(Localize(messages::kNotCompatible),
            "File you try to open is uncompatible with that program version.");
  EXPECT_EQ(Localize(messages::kUnexpectedFormat),
            "Cannot load file in memory because file format is incompatible.");
  EXPECT_EQ(Localize(messages::kCannotSave), "Could not save file.");
}

TEST(DocumentMessages, SayThatAFileCannotBeOpenedWhereALoadSaysNothing) {
  EXPECT_EQ(openFailureMessage(""), "Error: No se pudo abrir el archivo.");
  EXPECT_EQ(openFailureMessage("x"), "x");
}

}  // namespace
}  // namespace zel::test
