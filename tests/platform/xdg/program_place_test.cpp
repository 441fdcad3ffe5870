#include <gtest/gtest.h>

#include "platform/desktop_services.h"

namespace zel::test {
namespace {

TEST(ProgramPlace, IsTheFolderAndTheNameOfTheProgramsFile) {
  const ProgramPlace place = programPlace("/opt/zel 2.8/bin/zel");
  EXPECT_EQ(place.folder, "/opt/zel 2.8/bin");
  EXPECT_EQ(place.name, "zel");
}

}  // namespace
}  // namespace zel::test
