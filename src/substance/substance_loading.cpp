// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/substance_loading.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "state/constants.h"
#include "state/model_selection.h"
#include "substance/record_fields.h"
#include "text/columns.h"
#include "thermo/vapour_pressure.h"

namespace orva {

namespace {

constexpr double formationTemperature = 298.15; // K
constexpr double nearBoiling = 2;               // K
constexpr float harmlessDivisor = 0.1F;         // in place of a zero in the sinh term

bool IsUsable(const DatabaseRecord& record) {
    const auto finite = [](float value) { return std::isfinite(value); };
    const auto fits = [&record](const RecordField& field) {
        return !field.isLimit || FitsLimit(record.values[static_cast<std::size_t>(field.position)]);
    };
    return std::ranges::all_of(record.values, finite) && std::ranges::all_of(RecordFields(), fits);
}

float FiniteSingle(double x) {
    const float single = std::abs(x) <= std::numeric_limits<float>::max() ? static_cast<float>(x) : 0.0F;
    return std::isfinite(single) ? single : 0.0F;
}

double RoundedToFourDecimals(double x) {
    return std::floor(x * 10000 + 0.5) / 10000;
}

void TakeTexts(const DatabaseRecord& record, bool englishText, SubstanceData& substance) {
    substance.formula = FixedField(TrimRight(record.formula), 12);
    substance.formulaCompact = CompactFormula(substance.formula);
    const std::string_view name = englishText ? record.nameEnglish : record.nameGerman;
    substance.name = TrimRight(name.substr(0, name.find(';')));
    substance.cas = record.cas;
}

void TakeValues(const DatabaseRecord& record, SubstanceData& substance) {
    for (const RecordField& field : RecordFields())
        field.set(substance, record.values[static_cast<std::size_t>(field.position)]);
    substance.molarMass = FiniteSingle(RoundedToFourDecimals(substance.molarMass));
    substance.Tc = RoundedToFourDecimals(substance.Tc);
    substance.pc = RoundedToFourDecimals(substance.pc);
    if (substance.Ttrip < missingValue)
        substance.Ttrip = record.values[positionTmelt];
    substance.vcDatabase = substance.rhoc > missingValue ? substance.molarMass / substance.rhoc : 0;
}

// ln p = A + B / T through (Tb, 101.325 kPa) and (Tc, pc). Missing data leave a constant without meaning, and
// the equation is then not offered.
void ComputeAugust(SubstanceData& s) {
    const double B = s.Tb * s.Tc * std::log(s.pc / normalPressure) / (s.Tb - s.Tc);
    s.august.B = FiniteSingle(B);
    s.august.A = FiniteSingle(std::log(s.pc) - B / s.Tc);
}

int DefaultVapourPressure(const SubstanceData& substance) {
    if (substance.wagner.Tlo > 0)
        return vpWagner;
    if (substance.frostKalkwarf.Tlo > 0)
        return vpFrostKalkwarf;
    if (substance.antoineLow.Tlo > 0)
        return vpAntoineLow;
    return substance.antoineHigh.Tlo > 0 ? vpAntoineHigh : vpNone;
}

void ComputeBoilingTemperature(SubstanceData& substance) {
    const int equation = DefaultVapourPressure(substance);
    if (substance.Tb > missingValue || equation == vpNone)
        return;
    substance.Tb = FiniteSingle(VapourPressureTemperature(substance, normalPressure, equation).value);
}

// A form without its first coefficient counts as absent, also where it has others.
template<class Block> bool IdealGasFormValid(const Block& block, double first) {
    return std::abs(block.Tlo * first * block.Thi) > missingValue;
}

bool CondensedFormValid(const HeatCapacityPolynomial& block) {
    return (std::abs(block.C0) > missingValue || std::abs(block.C1) > missingValue)
           && block.Tlo > missingValue && block.Thi > missingValue;
}

void CheckHeatCapacities(SubstanceData& substance) {
    SinhCoshHeatCapacity& q = substance.cpSinhCosh;
    q.q2 = std::abs(q.q2);
    if (std::abs(q.q0) > missingValue && q.q2 < missingValue)
        q.q2 = harmlessDivisor;
    substance.cpPolynomialValid = IdealGasFormValid(substance.cpPolynomial, substance.cpPolynomial.C0);
    substance.cpSinhCoshValid = IdealGasFormValid(q, q.q0);
    substance.cpLiquidValid = CondensedFormValid(substance.cpLiquid);
    substance.cpSolidValid = CondensedFormValid(substance.cpSolid);
}

// The point at the normal boiling temperature is preferred. Without a boiling temperature the empty second
// point counts as near, and the first one is lost; kept on purpose.
void ChooseVaporisationPoint(const DatabaseRecord& record, SubstanceData& substance) {
    const double T = record.values[positionTVapSecond];
    if (std::abs(substance.Tb - T) < nearBoiling) {
        substance.hVapRef = record.values[positionHVapSecond];
        substance.TVapRef = record.values[positionTVapSecond];
    }
}

void ComputeFormationEntropy(SubstanceData& substance) {
    const double h = substance.hFormation;
    const double g = substance.gFormation;
    substance.sFormation = std::abs(h * g) > missingValue ? FiniteSingle((h - g) / formationTemperature) : 0;
}

} // namespace

std::string CompactFormula(std::string_view text) {
    std::string compact(text);
    std::erase(compact, ' ');
    return compact;
}

bool FillFromRecord(const DatabaseRecord& record, bool englishText, SubstanceData& substance,
                    SubstanceLoadResult& result) {
    if (!IsUsable(record)) {
        result.readError = true;
        return false;
    }
    const auto given = [&record](std::string_view name) {
        return record.values[static_cast<std::size_t>(RecordPosition(name))] > missingValue;
    };
    TakeTexts(record, englishText, substance);
    TakeValues(record, substance);
    result.criticalDataMissing = !given("Tc") || !given("pc");
    ComputeAugust(substance);
    ComputeBoilingTemperature(substance);
    CheckHeatCapacities(substance);
    ChooseVaporisationPoint(record, substance);
    ComputeFormationEntropy(substance);
    return true;
}

SubstanceLoadResult LoadSubstanceRecord(Database& database, int listIndex, bool englishText,
                                        SubstanceData& substance) {
    SubstanceLoadResult result;
    if (listIndex == 0)
        return result;
    const std::optional<DatabaseRecord> record = database.ReadRecord(listIndex);
    if (!record) {
        result.readError = true;
        return result;
    }
    FillFromRecord(*record, englishText, substance, result);
    return result;
}

Message CriticalDataMissingMessage(const SubstanceData& substance) {
    return {"WARNUNG",
            "T(cr) und/oder p(cr) in der Datenbank nicht verfügbar.\n\n"
            "(fehlende kritische Daten können im Stoffdatenbank-Editor manuell eingetragen werden.)\n\n"
            "Für "
                + substance.name + " sind keine Berechnungen möglich!",
            MessageIcon::Exclamation};
}

Message RecordUnreadableMessage(int listIndex) {
    return {"WARNUNG",
            "Der Datensatz " + std::to_string(listIndex)
                + " der Datenbank ist beschädigt und kann nicht gelesen werden.",
            MessageIcon::Exclamation};
}

} // namespace orva
