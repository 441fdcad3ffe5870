#include <random>
#include <set>

#include "drive_fixture.h"
#include "plot/session/plot_command.h"

namespace zel::test {
namespace {

/// A seeded user who does anything.
class RandomUser {
 public:
  explicit RandomUser(unsigned seed) : random_(seed) {}

  std::string script(int commands) {
    std::string result;
    for (; commands > 0; --commands) result += command() + "\n";
    return result;
  }

 private:
  int below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

  std::string place() {
    return std::to_string(below(3600) - 300) + "," + std::to_string(below(100)) + " " +
           std::to_string(below(2600) - 200);
  }

  std::string command() {
    static constexpr const char* kButtons[] = {"left", "left", "left", "right"};
    static constexpr const char* kHeld[] = {"left", "left", "right", "none"};
    static constexpr const char* kAnswers[] = {"0", "1,5", "-2E3", "1E999", "q", "", " 7", "\xff"};
    switch (below(9)) {
      case 0: return std::string("down ") + kButtons[below(4)] + " " + place();
      case 1: return std::string("move ") + kHeld[below(4)] + " " + place();
      case 2: return std::string("up ") + kButtons[below(4)] + " " + place();
      case 3: return below(2) == 0 ? "CmdGrafSiguiente" : "CmdGrafAnterior";
      case 4: return "key " + std::to_string(below(128));
      case 5: return std::string("answer ") + kAnswers[below(8)];
      case 6:
        if (below(4) == 0) return below(2) == 0 ? "lang ES" : "lang EN";
        return "resize " + std::to_string(95 + below(200)) + " " + std::to_string(60 + below(150));
      default: break;
    }
    // The command that ends it all is rare.
    const auto key = kPlotCommandKeys[static_cast<std::size_t>(below(16))];
    return key == keyOf(PlotCommand::configurar) && below(8) > 0 ? "Parar" : std::string(key);
  }

  std::mt19937 random_;
};

class DriveRandom : public DriveTest {
 protected:
  static void expectSane(const Json& object) {
    for (const char* end : {"xi", "xf", "yi", "yf", "trace_x", "p"})
      EXPECT_TRUE(object[end].is_number()) << end;
    const std::string mode = object["mode"];
    EXPECT_TRUE((std::set<std::string>{"NORMAL", "RECORRIDO", "ZOOM"}.contains(mode)));
    EXPECT_EQ(object["zoom_pressed"], mode == "ZOOM");
    EXPECT_EQ(object["pointer"], mode == "ZOOM" ? "cross" : "default");
    EXPECT_EQ(object["cursor"].is_null(), object["slope"].is_null());
    EXPECT_TRUE(mode == "RECORRIDO" || object["cursor"].is_null());
    EXPECT_TRUE(mode == "ZOOM" || object["zoom_rectangle"].is_null());
    EXPECT_EQ(object["panels"].size(), 4u);
    EXPECT_NE(object["panels"][0], "");
    for (const Json& message : object["messages"])
      EXPECT_EQ(message["kind"] != "information", object["closed_to"] == "main");
  }

  static void expectOneAfterAnother(const Json& earlier, const Json& later) {
    const int redraws = later["redraws"].get<int>() - earlier["redraws"].get<int>();
    EXPECT_TRUE(redraws == 0 || redraws == 1);
    EXPECT_EQ(later.contains("progress"), redraws == 1);
    if (earlier["closed_to"] == "main") {
      EXPECT_EQ(later["closed_to"], "main");
      EXPECT_EQ(redraws, 0);
    }
  }
};

TEST_F(DriveRandom, WhateverTheUserDoesEachObjectIsSane) {
  constexpr unsigned kSeeds = 12;  // for each document
  constexpr int kCommands = 50;
  for (const auto& entry : std::filesystem::directory_iterator(ZEL_EXAMPLES_DIR)) {
    if (entry.path().extension() != ".zel") continue;
    for (unsigned seed = 1; seed <= kSeeds; ++seed) {
      SCOPED_TRACE(entry.path().filename().string() + " " + std::to_string(seed));
      const Driven driven = drive(entry.path().string(), RandomUser(seed).script(kCommands),
                                  {"--width", "200", "--height", "150", "--quality", "10"});
      EXPECT_EQ(driven.err, "");
      ASSERT_EQ(driven.objects.size(), kCommands + 1u);
      expectSane(driven.objects[0]);
      for (std::size_t i = 1; i < driven.objects.size(); ++i) {
        expectSane(driven.objects[i]);
        expectOneAfterAnother(driven.objects[i - 1], driven.objects[i]);
      }
    }
  }
}

}  // namespace
}  // namespace zel::test
