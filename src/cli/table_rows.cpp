#include "cli/table_rows.h"

#include <array>
#include <charconv>
#include <cmath>
#include <ostream>
#include <string>

namespace zel {
namespace {

class TextRows : public TableRows {
 public:
  explicit TextRows(const Console& console) : console_(console) {}

  void write(double value, std::span<const std::optional<double>> results) override {
    console_.out << console_.number(value);
    for (const auto& result : results)
      console_.out << ';' << (result ? console_.number(*result) : std::string());
    console_.out << '\n';
  }

 private:
  const Console& console_;
};

class JsonRows : public TableRows {
 public:
  JsonRows(std::ostream& out, bool is_curve) : out_(out), keys_(is_curve ? kCurve : kFunction) {}

  void write(double value, std::span<const std::optional<double>> results) override {
    out_ << (is_empty_ ? "[\n" : ",\n");
    is_empty_ = false;
    out_ << "{\"" << keys_[0] << "\":";
    writeNumber(value);
    for (std::size_t i = 0; i < results.size(); ++i) {
      out_ << ",\"" << keys_[i + 1] << "\":";
      writeNumber(results[i]);
    }
    out_ << '}';
  }

  void end() override { out_ << (is_empty_ ? "[]\n" : "\n]\n"); }

 private:
  static constexpr std::string_view kFunction = "xy";
  static constexpr std::string_view kCurve = "txy";

  /// The shortest text that reads back; a zero keeps its sign where "-0" would be an integer.
  void writeNumber(std::optional<double> number) {
    if (!number || !std::isfinite(*number)) {
      out_ << "null";
    } else if (*number == 0 && std::signbit(*number)) {
      out_ << "-0.0";
    } else {
      std::array<char, 32> text{};
      const auto written = std::to_chars(text.data(), text.data() + text.size(), *number);
      out_.write(text.data(), written.ptr - text.data());
    }
  }

  std::ostream& out_;
  std::string_view keys_;
  bool is_empty_ = true;
};

}  // namespace

std::unique_ptr<TableRows> makeTextRows(const Console& console) {
  return std::make_unique<TextRows>(console);
}

std::unique_ptr<TableRows> makeJsonRows(std::ostream& out, bool is_curve) {
  return std::make_unique<JsonRows>(out, is_curve);
}

}  // namespace zel
