// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace orva {

// The substances of the loaded database in record order. List indices count from 1 everywhere;
// entries[i - 1] belongs to list index i. Texts keep their blank padding.
struct SubstanceListEntry {
    std::int16_t number = 0;
    std::string formula; // 12 characters
    std::string name;    // 40 characters, synonyms included
    std::string cas;     // 12 characters
};

struct SubstanceList {
    std::vector<SubstanceListEntry> entries;

    const SubstanceListEntry& At(int index) const { return entries.at(static_cast<std::size_t>(index) - 1); }
};

} // namespace orva
