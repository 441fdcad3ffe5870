#include "plot/session/plot_command.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

TEST(PlotCommands, HaveAKeyEachThatLeadsToThem) {
  for (std::size_t i = 0; i < kPlotCommandKeys.size(); ++i) {
    const auto command = static_cast<PlotCommand>(i);
    EXPECT_EQ(plotCommand(keyOf(command)), command) << keyOf(command);
  }
  for (const char* const other : {"", "recorrer", "Recorrer "}) EXPECT_FALSE(plotCommand(other));
}

}  // namespace
}  // namespace zel::test
