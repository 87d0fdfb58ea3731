// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/report_text.h"

#include "calc/report_blocks.h"

namespace orva {

std::string WithVisibleRules(std::string_view report) {
    std::string text;
    text.reserve(report.size());
    while (!report.empty()) {
        const bool rule = report.substr(0, softHyphen.size()) == softHyphen;
        text += rule ? '-' : report.front();
        report.remove_prefix(rule ? softHyphen.size() : 1);
    }
    return text;
}

} // namespace orva
