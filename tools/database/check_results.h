// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "database/value_checks.h"

namespace orva {

enum class Verdict { good, note, accepted, refused };

struct Finding {
    Verdict verdict = Verdict::good;
    std::string cas, name;
    int line = 0; // in the table of the deviation
    Deviation deviation;
};

// All that the checks measured.
class CheckResults {
public:
    CheckResults();

    void Add(std::size_t check, Finding finding);
    // Findings of a check, the largest deviation first.
    std::vector<Finding> Sorted(std::size_t check) const;

private:
    std::vector<std::vector<Finding>> findings; // by check
};

// "2 %", "0.01".
std::string LimitText(const ValueCheck& check, double limit);

// A table with a row for each check: rows measured, notes, accepted and refused ones, limits, median and the
// worst cases.
std::string CheckTable(const CheckResults& results);

// Every deviation that is not good, of one check or of all: "wagner.tsv:12: 75-07-0 Acetaldehyde: ...".
std::string DeviationList(const CheckResults& results, std::string_view onlyCheck);

} // namespace orva
