#include "files/whole_file.h"

#include <gtest/gtest.h>

#include "support/temporary_folder.h"

namespace zel::test {
namespace {

class WholeFile : public ::testing::Test {
 protected:
  TemporaryFolder folder;
  std::string path = folder / "file.bin";
};

std::string everyByte() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

TEST_F(WholeFile, GivesBackEveryByte) {
  EXPECT_EQ(writeWholeFile(path, everyByte()), (WriteResult{false, true}));
  EXPECT_EQ(readWholeFile(path), everyByte());
  EXPECT_EQ(bytesOf(path), everyByte());
}

TEST_F(WholeFile, MayBeEmptyOrLarge) {
  const std::string large(5'000'000, 'x');
  for (const std::string& bytes : {std::string(), large, std::string()}) {
    EXPECT_TRUE(writeWholeFile(path, bytes).written);
    EXPECT_EQ(readWholeFile(path), bytes);
  }
}

TEST_F(WholeFile, ReplacesALongerFileWhole) {
  putBytes(path, std::string(100'000, 'o'));
  EXPECT_EQ(writeWholeFile(path, "new"), (WriteResult{true, true}));
  EXPECT_EQ(bytesOf(path), "new");
}

TEST_F(WholeFile, LeavesNothingElseInTheFolder) {
  writeWholeFile(path, "one");
  writeWholeFile(path, "two");
  EXPECT_EQ(folder.names(), std::set<std::string>{"file.bin"});
}

TEST_F(WholeFile, TakesNamesWithAccentsBlanksAndGreatLength) {
  for (const std::string& name :
       {std::string("gráfico ñ €.zel"), std::string(" a  b .zel"), std::string(200, 'n'),
        std::string("-"), std::string("ünïcödé")}) {
    const std::string named = folder.path().string() + "/" + name;
    EXPECT_TRUE(writeWholeFile(named, "x").written) << name;
    EXPECT_EQ(readWholeFile(named), "x") << name;
  }
}

TEST_F(WholeFile, IsFoundWhenItIsThere) {
  EXPECT_FALSE(fileExists(path));
  putBytes(path, "");
  EXPECT_TRUE(fileExists(path));
  EXPECT_TRUE(fileExists(folder.path().string()));
  EXPECT_FALSE(fileExists(path + "/below"));
  EXPECT_FALSE(fileExists(""));
}

TEST_F(WholeFile, IsMadeEmptyWhereItIsMissingAndLeftWhereItIsNot) {
  EXPECT_TRUE(createMissingFile(path));
  EXPECT_EQ(bytesOf(path), "");
  putBytes(path, "x");
  EXPECT_FALSE(createMissingFile(path));
  EXPECT_EQ(bytesOf(path), "x");
  EXPECT_FALSE(createMissingFile(folder / "missing/file"));
  EXPECT_FALSE(createMissingFile(""));
}

TEST_F(WholeFile, IsTakenAwayWhenItIsEmptyOnly) {
  removeEmptyFile(path);
  putBytes(path, "x");
  removeEmptyFile(path);
  EXPECT_EQ(bytesOf(path), "x");
  std::filesystem::resize_file(path, 0);
  std::filesystem::create_directory(folder / "sub");
  removeEmptyFile(path);
  removeEmptyFile(folder / "sub");
  removeEmptyFile("");
  EXPECT_EQ(folder.names(), std::set<std::string>{"sub"});
}

TEST_F(WholeFile, CannotBeReadWhereThereIsNone) {
  EXPECT_EQ(readWholeFile(path), std::nullopt);
  EXPECT_EQ(readWholeFile(folder.path().string()), std::nullopt);
  EXPECT_EQ(readWholeFile(""), std::nullopt);
  EXPECT_EQ(folder.names(), std::set<std::string>{});
}

TEST_F(WholeFile, CannotBeWrittenOverAFolderOrBelowAFile) {
  putBytes(path, "x");
  for (const std::string& bad :
       {folder.path().string(), folder.path().string() + "/", path + "/below", path + "/",
        folder / "missing/file", std::string()})
    EXPECT_FALSE(writeWholeFile(bad, "y").written) << bad;
  EXPECT_EQ(bytesOf(path), "x");
  EXPECT_EQ(folder.names(), std::set<std::string>{"file.bin"});
}

TEST_F(WholeFile, GivesTheSystemsErrorOfAWriteThatFailed) {
  EXPECT_EQ(writeWholeFile(path, "x").error, 0);
  for (const std::string& bad : {folder.path().string(), folder / "missing/file", std::string(),
                                 path + std::string("\0y", 2)})
    EXPECT_NE(writeWholeFile(bad, "y").error, 0) << bad;
}

TEST_F(WholeFile, HasNoObstacleWhereItCanBeWrittenAndIsNotTouched) {
  EXPECT_EQ(obstacleToWriting(path), 0);
  EXPECT_EQ(folder.names(), std::set<std::string>{});
  putBytes(path, "old");
  EXPECT_EQ(obstacleToWriting(path), 0);
  EXPECT_EQ(bytesOf(path), "old");
  EXPECT_EQ(folder.names(), std::set<std::string>{"file.bin"});
}

TEST_F(WholeFile, HasTheObstacleThatAWriteFailsAt) {
  putBytes(path, "x");
  for (const std::string& bad :
       {folder.path().string(), folder.path().string() + "/", path + "/below", path + "/",
        folder / "missing/file", std::string(), path + std::string("\0y", 2)}) {
    EXPECT_NE(obstacleToWriting(bad), 0) << bad;
    EXPECT_EQ(obstacleToWriting(bad), writeWholeFile(bad, "y").error) << bad;
  }
  EXPECT_EQ(folder.names(), std::set<std::string>{"file.bin"});
}

TEST_F(WholeFile, IsNotTakenForAnotherByAPathThatHoldsAZero) {
  putBytes(path, "x");
  const std::string bad = path + std::string("\0y", 2);
  EXPECT_FALSE(fileExists(bad));
  EXPECT_FALSE(createMissingFile(bad));
  EXPECT_EQ(readWholeFile(bad), std::nullopt);
  EXPECT_FALSE(writeWholeFile(bad, "y").written);
  EXPECT_EQ(bytesOf(path), "x");
}

TEST_F(WholeFile, IsReadUpToItsLongestLengthAndNotBeyond) {
  putBytes(path, "");
  ASSERT_EQ(kMaxWholeFile, 268'435'456u);
  std::filesystem::resize_file(path, kMaxWholeFile + 1);
  EXPECT_EQ(readWholeFile(path), std::nullopt);
  std::filesystem::resize_file(path, kMaxWholeFile);
  const auto bytes = readWholeFile(path);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(bytes->size(), kMaxWholeFile);
}

}  // namespace
}  // namespace zel::test
