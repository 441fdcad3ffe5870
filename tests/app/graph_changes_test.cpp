#include "app/graph_changes.h"

#include "app/editor/graph_editing.h"
#include "app/main_commands.h"
#include "program_fixture.h"

namespace zel::test {
namespace {

class GraphChanges : public ProgramTest {
 protected:
  bool accept(char letter, const std::string& formula, std::int32_t colour = 255) {
    return acceptEdited(program, letter, colour, FunctionFields{{formula, "f"}});
  }
  std::string undo() { return undoChange(program, view); }
  std::string redo() { return redoChange(program, view); }
  std::string letters() const {
    std::string found;
    for (char letter = 'a'; letter <= 'z'; ++letter)
      if (program.graphs.graph(letter)->defined) found += letter;
    return found;
  }
  std::string formula(char letter) const { return program.graphs.graph(letter)->ecuacion; }

  MainView view;
};

TEST_F(GraphChanges, AnAddedGraphGoesAndComesBack) {
  ASSERT_TRUE(accept('a', "x"));
  ASSERT_TRUE(accept('c', "x^2"));
  EXPECT_EQ(undo(), "c");
  EXPECT_EQ(letters(), "a");
  EXPECT_EQ(program.graphs.count(), 1);
  EXPECT_EQ(redo(), "c");
  EXPECT_EQ(formula('c'), "x^2");
  EXPECT_EQ(program.graphs.count(), 2);
}

TEST_F(GraphChanges, AModifiedGraphIsWhatItWas) {
  accept('a', "x");
  accept('a', "x+1", 128);
  EXPECT_EQ(undo(), "a");
  EXPECT_EQ(formula('a'), "x");
  EXPECT_EQ(program.graphs.graph('a')->color, 255);
  EXPECT_EQ(program.graphs.codeOf('a'), "x");
  redo();
  EXPECT_EQ(formula('a'), "x+1");
}

TEST_F(GraphChanges, DeletedGraphsComeBackTogether) {
  for (const char letter : {'a', 'b', 'c'}) accept(letter, "x");
  deleteGraphs(program, "ac");
  EXPECT_EQ(undo(), "ac");
  EXPECT_EQ(letters(), "abc");
  EXPECT_EQ(program.graphs.count(), 3);
}

TEST_F(GraphChanges, NothingIsUndoneWhereNothingWasChanged) {
  accept('a', "x");
  EXPECT_FALSE(accept('b', "x+"));  // refused
  program.configuration.confirm_deletion = true;
  deleteGraphs(program, "a");  // cancelled
  accept('a', "x");            // the same again
  EXPECT_EQ(undo(), "a");
  EXPECT_EQ(letters(), "");
  EXPECT_EQ(program.history.undoable(), nullptr);
  EXPECT_EQ(undo(), "");
  redo();
  EXPECT_EQ(redo(), "");
  EXPECT_EQ(letters(), "a");
}

TEST_F(GraphChanges, NewGivesGraphsNameAndViewBack) {
  accept('a', "x");
  services.files.paths = {"uno.zel"};
  saveDocumentAs(program, view);
  view.xi = "-3";
  newDocument(program, view);
  view = MainView();
  EXPECT_EQ(undo(), "");  // another document, of which no graph has changed
  EXPECT_EQ(letters(), "a");
  EXPECT_EQ(program.document_name, "uno.zel");
  EXPECT_EQ(program.document_path, absolutePath("uno.zel"));
  EXPECT_EQ(view.xi, "-3");
  view.xi = "-4";
  EXPECT_EQ(redo(), "");
  EXPECT_EQ(letters(), "");
  EXPECT_EQ(program.document_name + program.document_path, "");
  EXPECT_EQ(view, MainView());
}

TEST_F(GraphChanges, OpenGivesUnsavedGraphsBackUnderTheirOwnName) {
  accept('a', "x");
  services.files.paths = {"uno.zel"};
  saveDocumentAs(program, view);
  accept('b', "x^2");  // not saved
  putBytes("dos.zel", bytesOf("uno.zel"));
  openDocumentAt(program, "dos.zel", view);
  EXPECT_EQ(letters(), "a");
  undo();
  EXPECT_EQ(letters(), "ab");
  EXPECT_EQ(program.document_name, "uno.zel");
  // A save now goes where these graphs belong.
  const std::string other = bytesOf("dos.zel");
  saveDocument(program, view);
  EXPECT_NE(bytesOf("uno.zel").find("nombre=b"), std::string::npos);
  EXPECT_EQ(bytesOf("dos.zel"), other);
  redo();
  EXPECT_EQ(letters(), "a");
  EXPECT_EQ(program.document_name, "dos.zel");
}

TEST_F(GraphChanges, OpenTakesTheHeaderOfADocumentAndGivesItBack) {
  accept('a', "x");
  services.files.paths = {"uno.zel"};
  saveDocumentAs(program, view);
  std::string bytes = bytesOf("uno.zel");
  const std::string section = "[PRINCIPAL]\r\n";
  const std::size_t place = bytes.find(section);
  ASSERT_NE(place, std::string::npos);
  putBytes("dos.zel", bytes.insert(place + section.size(), "autor=alguien\r\n"));
  const auto hasAuthor = [this] { return program.header.Exists("autor"); };
  ASSERT_TRUE(openDocumentAt(program, "dos.zel", view));
  EXPECT_TRUE(hasAuthor());
  undo();
  EXPECT_FALSE(hasAuthor());
  redo();
  EXPECT_TRUE(hasAuthor());
}

TEST_F(GraphChanges, GraphsThatARefusedDocumentClearedComeBack) {
  accept('a', "x");
  putBytes("malo.zel", "[PRINCIPAL]\r\nversiones_compatibles=2.0\r\n ");
  EXPECT_FALSE(openDocumentAt(program, "malo.zel", view));
  EXPECT_EQ(letters(), "");
  undo();
  EXPECT_EQ(letters(), "a");
  EXPECT_EQ(program.document_name, "");
}

TEST_F(GraphChanges, ADocumentThatIsRefusedWholeGivesTheGraphsItsNameUntilAnUndo) {
  accept('a', "x");
  services.files.paths = {"uno.zel"};
  saveDocumentAs(program, view);
  const std::string path = program.document_path;
  putBytes("malo.zel", "something else");
  for (const char* name : {"malo.zel", "missing.zel"}) {
    EXPECT_FALSE(openDocumentAt(program, name, view));
    EXPECT_EQ(letters(), "a");
    EXPECT_EQ(program.document_name, name);
    EXPECT_TRUE(program.document_path.ends_with(name)) << program.document_path;
    undo();
    EXPECT_EQ(letters(), "a");
    EXPECT_EQ(program.document_name, "uno.zel");
    EXPECT_EQ(program.document_path, path);
  }
}

TEST_F(GraphChanges, OtherChangesLeaveNameAndViewAlone) {
  accept('a', "x");
  services.files.paths = {"uno.zel"};
  saveDocumentAs(program, view);
  view.xf = "20";
  undo();
  EXPECT_EQ(program.document_name, "uno.zel");
  EXPECT_EQ(view.xf, "20");
}

TEST_F(GraphChanges, AnAcceptedGraphIsNamedForTheMainWindow) {
  prepareNewGraph(program, nullptr);
  accept('q', "x");
  EXPECT_EQ(program.params.Item("nombre"), FormValue(std::string("q")));
  prepareNewGraph(program, nullptr);
  EXPECT_FALSE(accept('r', "x+"));
  EXPECT_FALSE(program.params.Exists("nombre"));
}

TEST_F(GraphChanges, ACopyHasTheNextFreeLetterAndAColourOfItsOwn) {
  accept('a', "x^2");
  accept('c', "x+1");
  EXPECT_EQ(duplicateGraphs(program, "ac"), "bd");
  EXPECT_EQ(letters(), "abcd");
  EXPECT_EQ(formula('b'), "x^2");
  EXPECT_EQ(program.graphs.codeOf('d'), program.graphs.codeOf('c'));
  EXPECT_NE(program.graphs.graph('b')->color, 255);
  EXPECT_NE(program.graphs.graph('b')->color, program.graphs.graph('d')->color);
  EXPECT_EQ(undo(), "bd");  // in one step
}

TEST_F(GraphChanges, ACopyOfAConicBearsItsOwnLetter) {
  acceptEdited(program, 'h', 255, CircumferenceFields{{"1", "x"}, {"2", "y"}, {"3", "r"}});
  EXPECT_EQ(duplicateGraphs(program, "h"), "a");
  EXPECT_EQ(displayText(*program.graphs.graph('a')), "a(1;2;3)");
  EXPECT_EQ(displayText(*program.graphs.graph('h')), "h(1;2;3)");
  const GraphDef copy = *program.graphs.graph('a');
  EXPECT_EQ(parameter(copy, "r"), "3");
  copy.parameters->set("r", "4");
  EXPECT_EQ(parameter(*program.graphs.graph('h'), "r"), "3");
}

TEST_F(GraphChanges, ACopyThatHasNoRoomIsRefusedWhole) {
  for (char letter = 'a'; letter <= 'y'; ++letter) addFunction(letter, "x");
  for (const char* const language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    EXPECT_EQ(duplicateGraphs(program, "ab"), "");
  }
  EXPECT_EQ(services.boxes.shown.size(), 2u);
  EXPECT_EQ(services.boxes.shown[0].text, "No se puede definir mas gráficos.");
  EXPECT_EQ(services.boxes.shown[1], attention("Cannot create more graphics."));
  EXPECT_EQ(letters().size(), 25u);
  EXPECT_EQ(duplicateGraphs(program, "a"), "z");
}

}  // namespace
}  // namespace zel::test
