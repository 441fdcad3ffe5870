#include <filesystem>

#include "cli/cli_fixture.h"

namespace zel::test {
namespace {

class RenderFolder : public CliTest {
 protected:
  Run render(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "render");
    return run(arguments);
  }

  std::string line(const std::string& name, const std::string& formula = "x/2") const {
    return writeDocument(name, "", block('a', 'F', formula));
  }

  bool isThere(const std::string& name) const { return std::filesystem::exists(path(name)); }

  /// The command line is wrong: the complaint, and nothing was drawn.
  std::string wrong(const std::vector<std::string>& arguments) {
    const Run result = render(arguments);
    EXPECT_EQ(result.status, 2);
    EXPECT_FALSE(isThere("out"));
    return result.err;
  }

  std::string one = line("one.zel");
  std::string two = line("two.zel", "x^2");
};

TEST_F(RenderFolder, GivesEachDocumentItsPngInANewFolder) {
  const Run result = render({one, two, "-o", path("out/")});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.out + result.err, "");
  for (const std::string name : {"one", "two"}) {
    EXPECT_EQ(render({path(name + ".zel"), "-o", path("alone.png")}).status, 0);
    EXPECT_EQ(bytesOf(path("out/" + name + ".png")), bytesOf(path("alone.png"))) << name;
  }
}

TEST_F(RenderFolder, TakesAFolderThatExistsWithoutASlash) {
  std::filesystem::create_directory(path("out"));
  EXPECT_EQ(render({one, "-o", path("out")}).status, 0);
  EXPECT_TRUE(isThere("out/one.png"));
}

TEST_F(RenderFolder, MakesTheFoldersAbove) {
  EXPECT_EQ(render({one, "-o", path("above/out/")}).status, 0);
  EXPECT_TRUE(isThere("above/out/one.png"));
}

TEST_F(RenderFolder, WritesTheWantedFormatWithTheOptionsOfAll) {
  EXPECT_EQ(render({one, two, "-o", path("out/"), "--format", "svg", "--width", "400"}).status, 0);
  for (const std::string name : {"out/one.svg", "out/two.svg"})
    EXPECT_NE(bytesOf(path(name)).find("viewBox=\"0 0 6000 9000\""), std::string::npos) << name;
  EXPECT_EQ(render({one, "-o", path("out/"), "--format", "pdf"}).status, 0);
  EXPECT_EQ(bytesOf(path("out/one.pdf")).substr(0, 5), "%PDF-");
}

// More than are drawn at a time.
TEST_F(RenderFolder, DrawsManyDocumentsAsEachAlone) {
  std::vector<std::string> arguments;
  for (int i = 0; i < 40; ++i)
    arguments.push_back(line(std::to_string(i) + ".zel", "sen(x*" + std::to_string(i) + ")+f(x)"));
  arguments.insert(arguments.end(), {"-o", path("out/"), "--format", "svg"});
  EXPECT_EQ(render(arguments).status, 0);
  for (int i = 0; i < 40; ++i) {
    const std::string name = std::to_string(i);
    EXPECT_EQ(render({path(name + ".zel"), "-o", path("alone.svg")}).status, 0);
    EXPECT_EQ(bytesOf(path("out/" + name + ".svg")), bytesOf(path("alone.svg"))) << name;
  }
}

TEST_F(RenderFolder, TellsOfEachFailureInItsPlaceAndDrawsTheOthers) {
  const std::string garbage = write("garbage.zel", "garbage");
  const Run result = render({path("first.zel"), one, garbage, two, "-o", path("out/")});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err, path("first.zel") + ": Error: No se pudo abrir el archivo.\n" + garbage +
                            ": El archivo no es compatible con esta versión del programa.\n");
  EXPECT_TRUE(isThere("out/one.png"));
  EXPECT_TRUE(isThere("out/two.png"));
  EXPECT_FALSE(isThere("out/garbage.png"));
  EXPECT_FALSE(isThere("first.zel"));
}

TEST_F(RenderFolder, TellsOfAPictureThatCannotBeWritten) {
  std::filesystem::create_directories(path("out/one.png"));
  const Run result = render({one, two, "-o", path("out")});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err, one + ": No se pudo salvar el archivo.\n");
  EXPECT_TRUE(isThere("out/two.png"));
}

TEST_F(RenderFolder, FailsWhereTheFolderCannotBeMade) {
  const Run result = render({one, "-o", one + "/out/"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err, "No se pudo crear la carpeta.\n");
}

TEST_F(RenderFolder, RefusesTwoPicturesOfOneNameBeforeAnyIsDrawn) {
  std::filesystem::create_directory(path("other"));
  const std::string other = line("other/one.zel");
  EXPECT_EQ(wrong({one, two, other, "-o", path("out/")}),
            "-o: " + one + " and " + other + " would both become " + path("out/one.png") + "\n");
  const std::string text = line("one.txt");
  EXPECT_NE(wrong({one, text, "-o", path("out/")}), "");
}

TEST_F(RenderFolder, RefusesTwoPicturesThatALinkMakesOne) {
  std::filesystem::create_directory(path("linked"));
  write("linked/two.png", "");
  std::error_code error;
  std::filesystem::create_symlink("two.png", path("linked/one.png"), error);
  if (error == std::errc::function_not_supported) GTEST_SKIP() << "no links can be made here";
  ASSERT_FALSE(error);
  EXPECT_EQ(render({one, two, "-o", path("linked")}).status, 2);
  EXPECT_EQ(bytesOf(path("linked/two.png")), "");
}

TEST_F(RenderFolder, RefusesAPictureInThePlaceOfADocument) {
  std::filesystem::create_directory(path("mixed"));
  const std::string document = line("mixed/three.png");
  const std::string before = bytesOf(document);
  EXPECT_EQ(render({one, document, "-o", path("mixed")}).status, 2);
  EXPECT_EQ(bytesOf(document), before);
  EXPECT_FALSE(isThere("mixed/one.png"));
}

TEST_F(RenderFolder, RefusesStandardInputWhichHasNoName) {
  EXPECT_EQ(wrong({one, "-", "-o", path("out/")}),
            "-o: standard input has no name for a picture in a folder\n");
}

TEST_F(RenderFolder, RefusesSeveralDocumentsForOneFile) {
  EXPECT_EQ(wrong({one, two, "-o", path("out")}),
            "-o: several documents need a folder that exists, or whose name ends in /\n");
  EXPECT_EQ(wrong({one, two, "-o", path("both.png")}).substr(0, 3), "-o:");
  EXPECT_EQ(wrong({one, two, "-o", "-"}).substr(0, 3), "-o:");
  EXPECT_FALSE(isThere("both.png"));
}

TEST_F(RenderFolder, RefusesAFormatThatIsUnknownOrForAFile) {
  EXPECT_NE(wrong({one, "-o", path("out/"), "--format", "gif"}).find("gif"), std::string::npos);
  EXPECT_EQ(wrong({one, "-o", path("one.svg"), "--format", "svg"}),
            "--format: it is for pictures in a folder\n");
}

TEST_F(RenderFolder, KeepsAllOfANameButItsEnding) {
  const std::string dotted = line("a.b.zel");
  const std::string bare = line("bare");
  EXPECT_EQ(render({dotted, bare, "-o", path("out/")}).status, 0);
  EXPECT_TRUE(isThere("out/a.b.png"));
  EXPECT_TRUE(isThere("out/bare.png"));
}

}  // namespace
}  // namespace zel::test
