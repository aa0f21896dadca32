// SPDX-License-Identifier: MIT
// Numbers out of texts and texts out of numbers, in the few forms that the program's files and screens use.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace number {

/// The number at the start of a text: blanks are passed over, "&H" leads hexadecimal digits, an exponent may
/// follow; 0 where no number stands there.
double valueOf(std::string_view value);
/// The same as a whole number, rounded half to even. Raises "Overflow" outside 32 bits.
std::int32_t wholeOf(std::string_view value);
/// Rounded half to even, as a whole number. Raises "Overflow" outside 32 bits.
std::int32_t rounded(double value);
/// The shortest usual text of a number with up to 15 significant digits: "3", "3.33333333333333", "-0.5",
/// "1E+20".
std::string toText(double value);
/// The same for a single-precision number, with up to 7 significant digits.
std::string toText(float value);
std::string toText(std::int64_t value);
inline std::string toText(int value) { return toText(static_cast<std::int64_t>(value)); }
/// The whole part with commas between thousands; empty for a number that rounds to 0.
std::string grouped(double value);

}  // namespace number
