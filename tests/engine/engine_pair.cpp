#include "engine/engine_pair.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <span>

namespace zel::test {
namespace {

std::string bits(double value) {
  return std::to_string(value) + " = " + std::to_string(std::bit_cast<std::uint64_t>(value));
}

std::string at(double x, const std::string& code) { return code + " at " + bits(x); }

bool isSame(double value, double expected) {
  return std::isnan(expected)
             ? std::isnan(value)
             : std::bit_cast<std::uint64_t>(value) == std::bit_cast<std::uint64_t>(expected);
}

}  // namespace

void EnginePair::setT(double value) {
  engine_.SetT(value);
  reference_.SetT(value);
}

void EnginePair::setP(double value) {
  engine_.SetP(value);
  reference_.SetP(value);
}

std::string EnginePair::last() const {
  if (!is_defined_) return "! " + message_;
  char text[40];
  std::snprintf(text, sizeof text, "= %.17g", value_ + 0.0);
  return text;
}

std::string EnginePair::evaluate(double x, const std::string& code) {
  value_ = 7;
  message_ = "none";
  is_defined_ = engine_.Evaluate(x, value_, code, message_);
  double expected = 7;
  std::string expected_message = "none";
  const bool is_defined = reference_.Evaluate(x, expected, code, expected_message);
  ++evaluations_;
  if (is_defined_ != is_defined || !isSame(value_, expected) || message_ != expected_message)
    return at(x, code) + ": " + bits(value_) + " " + message_ + " and not " + bits(expected) + " " +
           expected_message;
  return cacheDifference(code);
}

std::string EnginePair::sweep(const std::vector<double>& xs, const std::string& code) {
  std::vector<double> values(xs.size());
  engine_.EvaluateSweep(code, xs, values);
  for (std::size_t i = 0; i < xs.size(); ++i) {
    const std::string difference = compareSample(values[i], xs[i], code, " in a sweep: ");
    if (!difference.empty()) return difference;
  }
  return cacheDifference(code);
}

std::string EnginePair::curve(const std::vector<double>& ts, const std::string& code_x,
                              const std::string& code_y) {
  std::vector<double> xs(ts.size());
  std::vector<double> ys(ts.size());
  for (std::size_t done = 0; done < ts.size();)
    done += engine_.CurvePart(code_x, code_y, std::span(ts).subspan(done),
                              std::span(xs).subspan(done), std::span(ys).subspan(done));
  for (std::size_t i = 0; i < ts.size(); ++i) {
    reference_.SetT(ts[i]);
    std::string difference = compareSample(xs[i], ts[i], code_x, " as x(t): ");
    if (difference.empty()) difference = compareSample(ys[i], ts[i], code_y, " as y(t): ");
    if (!difference.empty()) return difference;
  }
  return cacheDifference(code_y);
}

std::string EnginePair::compareSample(double value, double x, const std::string& code,
                                      const char* what) {
  double expected = std::nan("");
  std::string message;
  reference_.Evaluate(x, expected, code, message);
  ++evaluations_;
  if (isSame(value, expected)) return {};
  return at(x, code) + what + bits(value) + " and not " + bits(expected);
}

std::string EnginePair::cacheDifference(const std::string& code) const {
  const ParseCache& cache = engine_.parseCache();
  const ParseCache& expected = reference_.parseCache();
  if (cache.code() != expected.code())
    return "the cache is valid for " + std::string(cache.code()) + " after " + code;
  if (cache.position() != expected.position())
    return "the cache is at slot " + std::to_string(cache.position()) + " after " + code;
  for (std::size_t i = 1; i <= ParseCache::kSlots; ++i)
    if (cache.slot(i) != expected.slot(i))
      return "slot " + std::to_string(i) + " of the cache after " + code;
  return {};
}

}  // namespace zel::test
