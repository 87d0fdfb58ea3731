// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace orva {

// Why a row of the substance tables is not taken.
struct Refusal {
    std::string file;
    int line = 0;    // from 1; 0 when the file as a whole is meant
    std::string cas; // empty when no substance can be named
    std::string reason;
};

using Refusals = std::vector<Refusal>;

// "wagner.tsv:12: 75-07-0: a: "1.2.3" is not a number", without the parts that are not known.
std::string RefusalText(const Refusal& refusal);

} // namespace orva
