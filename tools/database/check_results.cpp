// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/check_results.h"

#include <algorithm>
#include <cmath>

namespace orva {
namespace {

constexpr std::size_t worstShown = 3;

std::string SizeText(const ValueCheck& check, double value) {
    if (!std::isfinite(value))
        return "none";
    std::string text = FixedText(value, check.unit.empty() ? 4 : 2);
    return check.unit.empty() ? text : text + " " + std::string(check.unit);
}

std::string Left(std::string text, std::size_t width) {
    text.resize(std::max(width, text.size()), ' ');
    return text;
}

std::string Right(const std::string& text, std::size_t width) {
    return std::string(width > text.size() ? width - text.size() : 0, ' ') + text;
}

std::size_t Count(const std::vector<Finding>& findings, Verdict verdict) {
    return static_cast<std::size_t>(std::count_if(findings.begin(), findings.end(),
                                                  [&](const Finding& f) { return f.verdict == verdict; }));
}

std::string_view VerdictText(Verdict verdict) {
    switch (verdict) {
    case Verdict::note:
        return "note";
    case Verdict::accepted:
        return "accepted";
    case Verdict::refused:
        return "refused";
    case Verdict::good:
        break;
    }
    return "good";
}

} // namespace

CheckResults::CheckResults() : findings(ValueChecks().size()) {}

void CheckResults::Add(std::size_t check, Finding finding) {
    findings[check].push_back(std::move(finding));
}

std::vector<Finding> CheckResults::Sorted(std::size_t check) const {
    std::vector<Finding> sorted = findings[check];
    std::stable_sort(sorted.begin(), sorted.end(), [](const Finding& a, const Finding& b) {
        return std::abs(a.deviation.value) > std::abs(b.deviation.value);
    });
    return sorted;
}

std::string LimitText(const ValueCheck& check, double limit) {
    const std::string number = NumberText(static_cast<float>(limit));
    return check.unit.empty() ? number : number + " " + std::string(check.unit);
}

std::string CheckTable(const CheckResults& results) {
    std::string text = Left("check", 19) + Right("rows", 5) + Right("notes", 7) + Right("accepted", 10)
                       + Right("refused", 9) + Right("note", 9) + Right("refusal", 9) + Right("median", 11)
                       + "  worst\n";
    for (std::size_t i = 0; i < ValueChecks().size(); ++i) {
        const ValueCheck& check = ValueChecks()[i];
        const std::vector<Finding> sorted = results.Sorted(i);
        text += Left(std::string(check.name), 19) + Right(std::to_string(sorted.size()), 5)
                + Right(std::to_string(Count(sorted, Verdict::note)), 7)
                + Right(std::to_string(Count(sorted, Verdict::accepted)), 10)
                + Right(std::to_string(Count(sorted, Verdict::refused)), 9)
                + Right(LimitText(check, check.note), 9) + Right(LimitText(check, check.refusal), 9);
        if (!sorted.empty())
            text += Right(SizeText(check, std::abs(sorted[sorted.size() / 2].deviation.value)), 11);
        std::string separator = "  ";
        for (std::size_t k = 0; k < std::min(worstShown, sorted.size()); ++k) {
            if (sorted[k].deviation.value == 0)
                break;
            text += separator + SizeText(check, sorted[k].deviation.value) + " (" + sorted[k].name + ")";
            separator = ", ";
        }
        text += "\n";
    }
    return text;
}

std::string DeviationList(const CheckResults& results, std::string_view onlyCheck) {
    std::string text;
    for (std::size_t i = 0; i < ValueChecks().size(); ++i) {
        const ValueCheck& check = ValueChecks()[i];
        if (!onlyCheck.empty() && onlyCheck != check.name)
            continue;
        for (const Finding& finding : results.Sorted(i)) {
            if (finding.verdict == Verdict::good)
                continue;
            text += std::string(check.name) + ": " + std::string(VerdictText(finding.verdict)) + ": "
                    + std::string(finding.deviation.file) + ":" + std::to_string(finding.line) + ": "
                    + finding.cas + " " + finding.name + ": " + SizeText(check, finding.deviation.value)
                    + ": " + finding.deviation.text + "\n";
        }
    }
    return text;
}

} // namespace orva
