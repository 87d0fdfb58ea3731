// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orva {

// Numbers as text. All results are UTF-8 (plain ASCII but for literal text of a mask).

// The decimal separator of a text: ',' on a system that writes 3/4 as "0,75".
struct NumberStyle {
    char decimal = '.';
};

// Writes x by a mask. `0` is a digit that is always shown, `#` one that is shown only when significant, `.`
// the decimal separator (always shown), `%` multiplies by 100 and stands as written, `E+00` a signed exponent
// with at least as many digits as zeros behind it. An exponent scales the number to as many digits before the
// separator as the mask has places there, none included. More digits before the separator than places are
// shown whole. A ";" separates the forms for positive (and zero) and negative values; the second form brings
// its sign as literal text. Without a second form a negative value has "-" where the number begins, behind
// the literal text in front of it. A value that is rounded to zero has no sign. Everything else, before,
// between and behind the digits, is literal text, but a "0" or "#" there is a place. A mask without places
// shows its literal text only. Rounding is half away from zero on the 15 significant decimal digits of x, so
// that 1.005 by "0.00" is "1.01". Not a number and infinities are written as "NaN", "Inf", "-Inf" with the
// literal text around them.
std::string Format(double x, std::string_view mask, NumberStyle style = {});

// The default conversion: up to 7 significant digits for a single, 15 for a double, shortest form without
// trailing zeros; the exponent form d.ddE-05 where plain notation would need more than 7 (15) places before
// or behind the separator: 1/30 as a single is "3.333334E-02", 0.001234 stays "0.001234", 12345678 is
// "1.234568E+07".
std::string General(float x, NumberStyle style = {});
std::string General(double x, NumberStyle style = {});

// The text of an input field: the default conversion with a point, or as many digits more as it takes for
// ParseNumber to give the same number back. Empty for not a number and infinities.
std::string FieldText(float x);
std::string FieldText(double x);

// The default conversion with a blank in place of a plus sign.
std::string Str(float x, NumberStyle style = {});
std::string Str(double x, NumberStyle style = {});
std::string Str(int x);

} // namespace orva
