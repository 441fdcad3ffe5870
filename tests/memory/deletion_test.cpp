// Every allocation of a deletion fails once: all of the graphs go, or none of them does.

#include <iostream>
#include <new>

#include <gtest/gtest.h>

#include "app/main_commands.h"
#include "app/program_fixture.h"
#include "failing_new.h"

namespace zel::test {
namespace {

using DeletionInWantOfMemory = ProgramTest;

TEST_F(DeletionInWantOfMemory, TakesAllGraphsOrNone) {
  const std::string formula = "x+" + std::string(100, '1');  // a copy of it needs memory
  addFunction('a', formula);
  addFunction('b', formula);
  addFunction('c', formula);
  const GraphTable before = program.graphs;
  const auto isThere = [this](char letter) { return program.graphs.slot(letter)->defined; };
  bool is_deleted = false;
  const long failures = failEachAllocation(
      false,
      [&] {
        program.graphs = before;
        try {
          is_deleted = deleteGraphs(program, "ac");
        } catch (const std::bad_alloc&) {
        }
      },
      [&] {
        EXPECT_EQ(isThere('a'), isThere('c'));
        EXPECT_TRUE(isThere('b'));
      });
  std::cout << failures << " failures\n";
  EXPECT_GT(failures, 3);
  EXPECT_TRUE(is_deleted);
  EXPECT_FALSE(isThere('a'));
}

}  // namespace
}  // namespace zel::test
