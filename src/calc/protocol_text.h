// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <vector>

#include "calc/point_result.h"
#include "text/number_format.h"

namespace orva {

// One calculated point as a row of the protocol: the slots of the results in single precision.
using ProtocolRow = std::array<float, resultCount>;

// What the protocol says above its table.
struct ProtocolHead {
    std::string date;
    std::string substance;
    std::string modelText;
    int volumeBasis = 0, unitBasis = 0;
};

// The row of a result. A number that no single holds counts as missing, which is 0.
ProtocolRow ProtocolRowOf(const std::array<double, resultCount>& results);

// The protocol file: head, names of the columns, one line a row. A column whose rows sum up to 0 in single
// precision is left out, also where its rows cancel. Every line of the table ends with a separator; lines end
// with "\r\n".
std::string ProtocolText(const ProtocolHead& head, const std::vector<ProtocolRow>& rows, char listSeparator,
                         NumberStyle style);

// A written protocol as spreadsheets take it from the clipboard: tabs in place of the separator.
std::string ProtocolClipboardText(std::string_view protocol, char listSeparator);

// The three separators of lists in the order of their choice "Semikolon", "Komma", "Tab".
inline constexpr std::array<char, 3> listSeparators{';', ',', '\t'};
// Row of a separator in that choice, that of the semicolon for an unknown one.
int ListSeparatorIndex(char separator);

} // namespace orva
