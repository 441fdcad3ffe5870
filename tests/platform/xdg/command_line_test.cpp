#include "platform/command_line.h"

#include <array>

#include <gtest/gtest.h>

namespace zel::test {
namespace {

template <std::size_t Count>
std::string lineOf(const std::array<const char*, Count>& arguments) {
  return commandLine(static_cast<int>(Count), arguments.data());
}

TEST(CommandLine, IsEmptyWithoutArguments) {
  EXPECT_EQ(lineOf(std::array{"zel"}), "");
  EXPECT_EQ(lineOf(std::array<const char*, 0>()), "");
}

TEST(CommandLine, IsOnePathWhateverItsBlanks) {
  EXPECT_EQ(lineOf(std::array{"zel", "my waves.zel"}), "my waves.zel");
  EXPECT_EQ(lineOf(std::array{"zel", "my", "waves.zel"}), "my waves.zel");
  EXPECT_EQ(lineOf(std::array{"zel", "", "a"}), " a");
}

TEST(CommandLine, HasTheBytesThatWereGiven) {
  EXPECT_EQ(lineOf(std::array{"zel", "n\xFF.zel"}), "n\xFF.zel");
  EXPECT_EQ(lineOf(std::array{"zel", "\xC3\xB1.zel"}), "ñ.zel");
}

}  // namespace
}  // namespace zel::test
