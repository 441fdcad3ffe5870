#include "app/last_session.h"

#include <filesystem>

#include <gmock/gmock.h>

#include "app/program_fixture.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

class SessionBefore : public ProgramTest {
 protected:
  /// What a session leaves that declares this function.
  void leave(const std::string& formula, const MainView& left = {}) {
    GraphTable graphs;
    graphs.rebuildGraph('q', formula, "", 255, 'F', nullptr);
    LastSession(folder).keep(left, graphs);
  }
  void begin() { program.last_session = LastSession(folder); }
  void keep() { program.last_session.keep(view, program.graphs); }
  bool recover() { return recoverLastSession(program, view); }
  std::string formulaOf(char letter) {
    const auto def = program.graphs.graph(letter);
    return def->defined ? def->ecuacion : "";
  }

  TemporaryFolder home;
  std::string folder = home / "state/zel";
  std::string file = folder + "/session.zel";
  MainView view;
};

TEST_F(SessionBefore, IsNotThereAtFirst) {
  begin();
  EXPECT_FALSE(program.last_session.isThere());
  EXPECT_THAT(home.names(), IsEmpty());
}

TEST_F(SessionBefore, GivesItsDeclarationsBack) {
  MainView other;
  other.xi = "-2,50";
  other.definicion = 40;
  leave("x^2", other);
  begin();
  ASSERT_TRUE(program.last_session.isThere());
  EXPECT_TRUE(recover());
  EXPECT_EQ(formulaOf('q'), "x^2");
  EXPECT_EQ(program.graphs.count(), 1);
  EXPECT_EQ(view, other);
  EXPECT_THAT(services.boxes.shown, IsEmpty());
}

TEST_F(SessionBefore, TakesThePlaceOfWhatIsThereAndBelongsToNoDocument) {
  leave("x^2");
  begin();
  addFunction('a', "x");
  program.document_name = "waves.zel";
  program.document_path = "/home/ana/waves.zel";
  EXPECT_TRUE(recover());
  EXPECT_EQ(formulaOf('a'), "");
  EXPECT_EQ(program.document_name, "");
  EXPECT_EQ(program.document_path, "");
}

TEST_F(SessionBefore, IsStillThereAfterThisOneHasKeptItsOwn) {
  leave("x^2");
  begin();
  addFunction('a', "x");
  keep();
  EXPECT_TRUE(program.last_session.isThere());
  EXPECT_TRUE(recover());
  EXPECT_EQ(formulaOf('q'), "x^2");
}

TEST_F(SessionBefore, IsTheOneThatKeptLast) {
  leave("x^2");
  begin();
  addFunction('a', "x");
  keep();
  begin();
  EXPECT_TRUE(recover());
  EXPECT_EQ(formulaOf('a'), "x");
}

TEST_F(SessionBefore, IsNotThisOne) {
  begin();
  addFunction('a', "x");
  keep();
  EXPECT_FALSE(program.last_session.isThere());
}

TEST_F(SessionBefore, OutlivesASessionWithoutGraphs) {
  leave("x^2");
  begin();
  keep();
  begin();
  EXPECT_TRUE(recover());
  EXPECT_EQ(formulaOf('q'), "x^2");
}

TEST_F(SessionBefore, OutlivesDeclarationsThatNoDocumentHolds) {
  begin();
  addFunction('a', "x");
  keep();
  const std::string bytes = bytesOf(file);
  addFunction('a', "x\r\n+1");
  keep();
  EXPECT_EQ(bytesOf(file), bytes);
}

TEST_F(SessionBefore, IsReplacedWholeByEachChange) {
  begin();
  addFunction('a', "x");
  keep();
  addFunction('b', "x+1");
  keep();
  EXPECT_EQ(bytesOf(file), toCodePage(documentText(view, program.graphs)));
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    EXPECT_EQ(entry.path().filename(), "session.zel");
}

TEST_F(SessionBefore, IsWrittenOnceForTheSameDeclarations) {
  begin();
  addFunction('a', "x");
  keep();
  putBytes(file, "other");
  keep();
  EXPECT_EQ(bytesOf(file), "other");
  view.xi = "-3";
  keep();
  EXPECT_NE(bytesOf(file), "other");
}

TEST_F(SessionBefore, IsForTheUserAlone) {
#ifdef _WIN32
  GTEST_SKIP() << "the folder takes its rights from the user's own, in which it is made";
#endif
  leave("x");
  EXPECT_EQ(std::filesystem::status(folder).permissions(), std::filesystem::perms::owner_all);
}

TEST_F(SessionBefore, IsForTheUserAloneInAFolderThatOthersMayEnter) {
#ifdef _WIN32
  GTEST_SKIP() << "the file takes its rights from the folder";
#endif
  namespace fs = std::filesystem;
  fs::create_directories(folder);
  fs::permissions(folder, fs::perms(0755));
  leave("x");
  leave("x+1");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(SessionBefore, IsForTheUserAloneWhereTheFileWasForOthersToo) {
#ifdef _WIN32
  GTEST_SKIP() << "the file takes its rights from the folder";
#endif
  namespace fs = std::filesystem;
  leave("x");
  fs::permissions(file, fs::perms(0666));
  leave("x+1");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(SessionBefore, LeavesTheRightsOfWhatItIsALinkTo) {
#ifdef _WIN32
  GTEST_SKIP() << "a link takes a right that not every user has";
#endif
  namespace fs = std::filesystem;
  fs::create_directories(folder + "/other");
  fs::permissions(folder + "/other", fs::perms(0755));
  fs::create_symlink("other", file);
  leave("x");
  EXPECT_EQ(fs::status(folder + "/other").permissions(), fs::perms(0755));
}

TEST_F(SessionBefore, IsWrittenAgainWhereItIsGone) {
  begin();
  addFunction('a', "x");
  program.last_session.keep(view, program.graphs);
  std::filesystem::remove(file);
  program.last_session.keep(view, program.graphs);
  EXPECT_TRUE(std::filesystem::exists(file));
}

TEST_F(SessionBefore, CostsNothingWhenItCannotBeRead) {
  for (const char* text : {"", "something else", "versiones_compatibles=2.0\r\n[PRINCIPAL]"}) {
    std::filesystem::create_directories(folder);
    putBytes(file, text);
    begin();
    addFunction('a', "x");
    view.xi = "-7";
    EXPECT_TRUE(program.last_session.isThere());
    EXPECT_FALSE(recover());
    EXPECT_EQ(formulaOf('a'), "x");
    EXPECT_EQ(view.xi, "-7");
    EXPECT_FALSE(program.last_session.isThere());
  }
  ASSERT_EQ(services.boxes.shown.size(), 3u);
  EXPECT_EQ(services.boxes.shown[0],
            attention("El archivo no es compatible con esta versión del programa."));
}

TEST_F(SessionBefore, StaysWhereItCouldNotBeReadForAWhile) {
  leave("x^2");
  const std::string aside = folder + "/aside";
  std::filesystem::rename(file, aside);
  std::filesystem::create_directory(file);
  begin();
  addFunction('a', "x");
  keep();
  EXPECT_FALSE(recover());
  EXPECT_THAT(services.boxes.shown, ElementsAre(attention("Error: No se pudo abrir el archivo.")));
  EXPECT_TRUE(program.last_session.isThere());
  std::filesystem::remove(file);
  std::filesystem::rename(aside, file);
  keep();
  EXPECT_NE(bytesOf(file).find("=x\r\n"), std::string::npos) << "this one is kept";
  EXPECT_TRUE(recover());
  EXPECT_EQ(formulaOf('q'), "x^2");
}

TEST_F(SessionBefore, NobodyIsToldThatItCannotBeWritten) {
  putBytes(home / "state", "a file in the place of the folder");
  begin();
  addFunction('a', "x");
  keep();
  EXPECT_THAT(services.boxes.shown, IsEmpty());
  EXPECT_THAT(home.names(), UnorderedElementsAre("state"));
}

TEST_F(SessionBefore, IsWrittenAgainAfterAFailure) {
  putBytes(home / "state", "a file in the place of the folder");
  begin();
  addFunction('a', "x");
  keep();
  std::filesystem::remove(home / "state");
  keep();
  EXPECT_TRUE(std::filesystem::exists(file));
}

TEST_F(SessionBefore, IsNeverThereWithoutAFolder) {
  addFunction('a', "x");
  keep();
  EXPECT_FALSE(program.last_session.isThere());
}

}  // namespace
}  // namespace zel::test
