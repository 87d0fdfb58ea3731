// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/record_checks.h"

#include <cmath>
#include <set>
#include <string_view>

#include "database/table_layout.h"
#include "database/value_checks.h"
#include "substance/record_fields.h"
#include "substance/substance_loading.h"
#include "thermo/eos_constants.h"

namespace orva {
namespace {

constexpr float missing = 1e-6F; // values up to here count as not given

float Value(const CompiledSubstance& substance, std::string_view field) {
    return substance.record.values[static_cast<std::size_t>(RecordPosition(field))];
}

float Limit(const CompiledSubstance& substance, const TableLayout& layout, std::string_view column) {
    for (const ValueColumn& entry : layout.values) {
        if (entry.column == column)
            return substance.record.values[static_cast<std::size_t>(ColumnPosition(entry))];
    }
    return 0;
}

class Checker {
public:
    Checker(CompiledSubstance& checked, AcceptedDeviations& list, CheckResults& found, Refusals& refused)
        : substance(checked), accepted(list), results(found), refusals(refused) {}

    void Check() {
        CheckConstants();
        CheckLimits();
        if (substance.refused)
            return;
        CheckSubject subject{substance, {}};
        SubstanceLoadResult result;
        if (!FillFromRecord(substance.record, true, subject.model.substance, result)) {
            Refuse(identityFile, "the record cannot be loaded");
            return;
        }
        subject.model.selection.eos = eosPengRobinson;
        if (!DetermineEosParameters(subject.model, eosPengRobinson)) {
            Refuse(constantsFile, "the constants of Peng/Robinson cannot be computed");
            return;
        }
        for (std::size_t check = 0; check < ValueChecks().size(); ++check) {
            for (Deviation& deviation : ValueChecks()[check].measure(subject))
                Judge(check, std::move(deviation));
        }
    }

private:
    void CheckConstants() {
        if (Value(substance, "molarMass") < missing)
            Refuse(identityFile, "molar_mass must be above 0");
        if (!substance.Has(constantsFile)) {
            Refuse(identityFile, "no row in " + std::string(constantsFile));
            return;
        }
        const float Tc = Value(substance, "Tc");
        const float Tb = Value(substance, "Tb");
        if (Tc < missing)
            Refuse(constantsFile, "Tc must be above 0");
        if (Value(substance, "pc") < missing)
            Refuse(constantsFile, "pc must be above 0");
        if (Tc >= missing && Tb >= Tc)
            Refuse(constantsFile, "Tb = " + NumberText(Tb) + " K is not below Tc = " + NumberText(Tc) + " K");
    }

    void CheckLimits() {
        for (const TableLayout& layout : TableLayouts()) {
            if (!layout.isBlock || !substance.Has(layout.file))
                continue;
            const float Tlo = Limit(substance, layout, "Tlo");
            const float Thi = Limit(substance, layout, "Thi");
            if (Tlo <= 0)
                Refuse(layout.file, "Tlo must be above 0");
            else if (Tlo >= Thi)
                Refuse(layout.file,
                       "Tlo = " + NumberText(Tlo) + " K is not below Thi = " + NumberText(Thi) + " K");
        }
    }

    void Judge(std::size_t index, Deviation deviation) {
        const ValueCheck& check = ValueChecks()[index];
        const double size = std::abs(deviation.value);
        Verdict verdict = Verdict::good;
        // A value that is no number compares false and must not pass.
        if (!(size <= check.refusal)) {
            verdict = accepted.Accept(substance.cas, check.name, size) ? Verdict::accepted : Verdict::refused;
        } else if (size > check.note) {
            verdict = Verdict::note;
        }
        // One fault of a row often fails several checks: the first one tells it.
        if (verdict == Verdict::refused && refusedFiles.insert(deviation.file).second)
            Refuse(deviation.file, RefusalReason(check, deviation));
        results.Add(index, {verdict, substance.cas, substance.nameEnglish, substance.Line(deviation.file),
                            std::move(deviation)});
    }

    static std::string RefusalReason(const ValueCheck& check, const Deviation& deviation) {
        if (!std::isfinite(deviation.value) || check.refusal == 0)
            return deviation.text;
        return deviation.text + " within " + LimitText(check, check.refusal);
    }

    void Refuse(std::string_view file, std::string reason) {
        substance.refused = true;
        refusals.push_back({std::string(file), substance.Line(file), substance.cas, std::move(reason)});
    }

    CompiledSubstance& substance;
    AcceptedDeviations& accepted;
    CheckResults& results;
    Refusals& refusals;
    std::set<std::string_view> refusedFiles; // by a check of values
};

} // namespace

CheckResults CheckRecords(std::vector<CompiledSubstance>& substances, AcceptedDeviations accepted,
                          Refusals& refusals) {
    CheckResults results;
    for (CompiledSubstance& substance : substances) {
        if (!substance.refused)
            Checker(substance, accepted, results, refusals).Check();
    }
    if (refusals.empty()) // with rows refused, what they would have needed is not known
        accepted.RefuseUnused(refusals);
    return results;
}

} // namespace orva
