// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// Requests as the workbench writes them.
namespace orva::test {

inline constexpr std::string_view waterConstants =
    ".18015000E+02, .37312400E+03, .64709600E+03, .22064000E+05, .32199500E+03, .34429000E+00\r\n";
inline constexpr std::string_view noDensity = ".00000000E+00, .00000000E+00, .00000000E+00, .00000000E+00, "
                                              ".00000000E+00, .00000000E+00, .00000000E+00, "
                                              ".00000000E+00, .00000000E+00\r\n";
// Wagner, Pruss, J. Phys. Chem. Ref. Data 31 (2002) 387, in the form with four terms.
inline constexpr std::string_view waterWagner =
    "-.78582818E+01, .18734665E+01, -.23040884E+01, .25000000E+01, -.56532841E+01, .60000000E+01, "
    ".51321705E+01, "
    ".75000000E+01, .64709600E+03, .22064000E+05, .27400000E+03, .64700000E+03\r\n";
inline constexpr std::string_view noPressure =
    "0.00000000E+00, 0.00000000E+00, 0.00000000E+00, 0.00000000E+00, 0.00000000E+00, 0.00000000E+00, "
    "0.00000000E+00, "
    "0.00000000E+00, 0.00000000E+00, 0.00000000E+00, 0.00000000E+00, 0.00000000E+00\r\n";

inline std::string RequestOf(std::string_view code, std::string_view flags, std::string_view constants,
                             std::string_view density, std::string_view pressure) {
    std::string text(code);
    text.append("\r\n\"7732-18-5   \"\r\n").append(flags).append("\r\n");
    return text.append(constants).append(density).append(pressure);
}

// Water with the Wagner equation, without a density.
inline std::string WaterRequest(std::string_view code = "10") {
    return RequestOf(code, "1, 1, 3", waterConstants, noDensity, waterWagner);
}

} // namespace orva::test
