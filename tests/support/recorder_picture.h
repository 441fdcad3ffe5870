#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "pictures/colour.h"
#include "pictures/picture.h"

namespace zel::test {

/// "12,-3": mapped coordinates are whole; what is not shows as "?".
inline std::string pointText(Point point) {
  const auto whole = [](double value) {
    const bool plain = std::fabs(value) < 1e15 && value == std::floor(value);
    return plain ? std::to_string(static_cast<long long>(value)) : std::string("?");
  };
  return whole(point.x) + "," + whole(point.y);
}

/// Records every call as data. Clearing it forgets what was drawn before.
class RecorderPicture : public Picture {
 public:
  struct Call {
    enum class Kind { clear, axes, line, graph, start, extend, dot };

    Kind kind;
    Point point;  // where a line begins, a piece goes on or a dot lies
    Point to;     // where a line ends
    double radius = 0;
    char letter = '\0';
    std::int32_t colour = 0;

    bool operator==(const Call&) const = default;
  };

  void clear() override { calls.assign(1, {Call::Kind::clear, {}, {}}); }
  void beginAxes() override { calls.push_back({Call::Kind::axes, {}, {}}); }
  void line(Point from, Point to) override { calls.push_back({Call::Kind::line, from, to}); }
  void beginGraph(char letter, std::int32_t colour) override {
    calls.push_back({Call::Kind::graph, {}, {}, 0, letter, colour});
  }
  void startPiece(Point point) override { calls.push_back({Call::Kind::start, point, {}}); }
  void extendPiece(Point point) override { calls.push_back({Call::Kind::extend, point, {}}); }
  void dot(Point centre, double radius) override {
    calls.push_back({Call::Kind::dot, centre, {}, radius});
  }

  /// A text for each call: "clear", "axes", "line 0,5 9,5", "graph a #0000ff", "start 1,2",
  /// "extend 3,4", "dot 3,4 radius 20".
  std::vector<std::string> texts() const {
    std::vector<std::string> result;
    for (const Call& call : calls) result.push_back(text(call));
    return result;
  }

  /// The lines of axes and marks: "0,5 9,5".
  std::vector<std::string> lines() const {
    std::vector<std::string> result;
    for (const Call& call : calls) {
      if (call.kind == Call::Kind::line)
        result.push_back(pointText(call.point) + " " + pointText(call.to));
    }
    return result;
  }

  /// The points of each piece of curve: "1,2 3,4".
  std::vector<std::string> pieces() const {
    std::vector<std::string> result;
    for (const Call& call : calls) {
      if (call.kind == Call::Kind::start)
        result.push_back(pointText(call.point));
      else if (call.kind == Call::Kind::extend)
        result.back() += " " + pointText(call.point);
    }
    return result;
  }

  /// The centres of the dots: "1,2".
  std::vector<std::string> dots() const {
    std::vector<std::string> result;
    for (const Call& call : calls) {
      if (call.kind == Call::Kind::dot) result.push_back(pointText(call.point));
    }
    return result;
  }

  std::vector<Call> calls;

 private:
  static std::string text(const Call& call) {
    switch (call.kind) {
      case Call::Kind::clear: return "clear";
      case Call::Kind::axes: return "axes";
      case Call::Kind::line: return "line " + pointText(call.point) + " " + pointText(call.to);
      case Call::Kind::graph:
        return std::string("graph ") + call.letter + " " + colourText(call.colour);
      case Call::Kind::start: return "start " + pointText(call.point);
      case Call::Kind::extend: return "extend " + pointText(call.point);
      case Call::Kind::dot:
        return "dot " + pointText(call.point) + " radius " +
               std::to_string(static_cast<int>(call.radius));
    }
    return {};
  }
};

}  // namespace zel::test
