#pragma once

/// The rounding to 15 significant digits that number text stands for, without the text.
namespace zel {

/// What reading the number text of a finite value gives, to the last bit: the value rounded half to
/// even at 15 significant digits, then to the nearest double. Zero of either sign gives 0. An
/// infinity where the text is too large to be read back (from 1,797693134862315E+308 on).
double roundTo15Digits(double value);

}  // namespace zel
