// Number text and the rounding to 15 digits: any double, and any text, beside the C library.
#include "fuzz.h"
#include "numbers/number_text.h"
#include "numbers/rounding.h"
#include "numbers/rounding_steps.h"
#include "support/plain_number.h"

namespace zel::fuzz {
namespace {

/// The general format of the C library with the program's separator and exponents.
std::string plainText(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.15G", value == 0 ? 0.0 : value);
  std::string result(text);
  for (char& character : result)
    if (character == '.') character = ',';
  return result;
}

void checkValue(double value) {
  const NumberText text = writeNumber(value);
  require(text.view().size() <= NumberText::kCapacity, "a text is short", text);
  require(isNumeric(text), "what is written is numeric", text);
  // From 0,0001 to below 1E+15 both have no exponent, and elsewhere both have one.
  require(text.view() == plainText(value), "a text is that of the C library", text);
  const auto read = readNumber(text);
  const double rounded = roundTo15Digits(value);
  require(read ? isSame(*read, rounded) : std::isinf(rounded), "rounding is what the text gives",
          text);
  require(isSame(rounded, roundThroughText(value)), "the fast rounding is the slow one", text);
  require(isSame(rounded, roundAny<PlainArithmetic>(value)), "rounding without fma", text);
  require(isSame(rounded, roundAny<FusedArithmetic>(value)), "rounding with fma", text);
  if (!read) return;
  require(writeNumber(*read).view() == text.view(), "a second rounding changes nothing", text);
  require(isSame(roundTo15Digits(rounded), rounded), "rounded twice is rounded once", text);
}

void checkInteger(double value) {
  const double nearest = std::nearbyint(value);
  const auto whole = roundToInt32(value);
  require(whole.has_value() == (nearest >= INT32_MIN && nearest <= INT32_MAX), "fits in 32 bits");
  require(!whole || *whole == nearest, "the nearest integer of 32 bits");
  const auto half = roundToInt16(value);
  require(half.has_value() == (nearest >= INT16_MIN && nearest <= INT16_MAX), "fits in 16 bits");
  require(!half || *half == nearest, "the nearest integer of 16 bits");
}

void checkText(std::string_view text) {
  require(isNumeric(text) == test::isPlainNumber(text), "numeric is what the C library reads",
          text);
  const auto value = readNumber(text);
  const auto expected = test::plainFiniteNumber(text);
  require(value.has_value() == expected.has_value(), "what can be read", text);
  if (!value) return;
  // A magnitude below the smallest double is 0 in the one and 0 or a subnormal in neither.
  require(isSame(*value + 0.0, *expected + 0.0), "what is read is the nearest double", text);
  checkValue(*value);
  checkInteger(*value);
}

}  // namespace
}  // namespace zel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  zel::fuzz::Input input(data, size);
  zel::fuzz::checkText(input.rest());
  const double value = input.rawNumber();
  zel::fuzz::checkInteger(value);
  if (std::isfinite(value)) zel::fuzz::checkValue(value);
  zel::fuzz::checkText(input.rest());
  return 0;
}
