// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "database/table_layout.h"

namespace orva {

// Operations on one cell. Each hands back a reason for a refusal, or nothing.

struct CellNumber {
    float value = 0;
    std::optional<std::string> fault;
};

// The single nearest to the written number, whatever the locale. An empty cell is 0: not given. A written 0
// of a value column becomes 1E-37, which readers take for a true zero. Limits must be whole kelvins of 16
// bits.
CellNumber ReadNumber(std::string_view cell, ColumnKind kind);

// The single that stands for a true zero.
inline constexpr float trueZero = 1E-37F;

using Bibliography = std::set<std::string, std::less<>>;

// The keys of sources.md: first cells of the table under the heading "## Bibliography".
Bibliography ReadBibliography(std::string_view sources);

// A key, or one behind "FIT:" or "EST:", must stand in the bibliography.
std::optional<std::string> SourceFault(std::string_view source, const Bibliography& bibliography);

// Two to seven digits, two digits, the check digit.
std::optional<std::string> CasFault(std::string_view cas);

// Text of a field of the record, `width` bytes wide in Windows-1252.
std::optional<std::string> TextFault(std::string_view text, std::size_t width);

// The shortest text that reads back as the same single, and one with a fixed number of decimals.
std::string NumberText(float number);
std::string FixedText(double number, int decimals);

} // namespace orva
