// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "database/record_compiler.h"
#include "state/substance_model.h"

namespace orva {

// A substance as the program would load it, with the constants of Peng/Robinson.
struct CheckSubject {
    const CompiledSubstance& compiled;
    SubstanceModel model;

    bool Has(std::string_view file) const { return compiled.Has(file); }
    const SubstanceData& Data() const { return model.substance; }
    float Value(std::string_view field) const; // of the record, as it stands in the table
};

// By how much one row misses a check. The text reads on with " within LIMIT".
struct Deviation {
    std::string_view file; // the table to blame
    double value = 0;      // in the unit of the check; `hopeless` when there is no number to compare
    std::string text;

    static constexpr double hopeless = std::numeric_limits<double>::infinity();
};
using Deviations = std::vector<Deviation>;

// One check of values against each other. A deviation above `note` is listed, one above `refusal` refuses the
// row.
struct ValueCheck {
    std::string_view name;
    std::string_view what;
    std::string_view unit; // "%", "K" or "" for plain numbers
    double note;
    double refusal;
    Deviations (*measure)(CheckSubject&);
};

// All checks, in the order of the report.
std::span<const ValueCheck> ValueChecks();

// Relative deviation in %.
double Percent(double value, double expected);

// Families of checks. Sources of the tests: Clapeyron 1834 with the volumes of Peng/Robinson; the rest is
// the comparison of two entries for one quantity.
Deviations CheckPressureAtTb(CheckSubject& subject);
Deviations CheckPressureAtTc(CheckSubject& subject);
Deviations CheckPressureAtTtrip(CheckSubject& subject);
Deviations CheckPressureRises(CheckSubject& subject);
// The largest relative difference of two of the equations (VaporPressureIndex) in their common range.
Deviations CompareEquations(CheckSubject& subject, int first, int second);
Deviations CheckAcentricFactor(CheckSubject& subject);

Deviations CheckMolarMass(CheckSubject& subject);
Deviations CheckCriticalFactor(CheckSubject& subject);
Deviations CheckTripleBelowBoiling(CheckSubject& subject);
Deviations CheckMeltingAtTriple(CheckSubject& subject);
Deviations CheckFormationEntropy(CheckSubject& subject);

Deviations CheckLiquidDensityPositive(CheckSubject& subject);
Deviations CheckLiquidDensityAtTb(CheckSubject& subject);
Deviations CheckLiquidDensityRatio(CheckSubject& subject);
Deviations CheckLiquidDensityFalls(CheckSubject& subject);
Deviations CheckLiquidDensityAtTc(CheckSubject& subject);
Deviations CheckSolidDensity(CheckSubject& subject);

Deviations CheckVaporisationReference(CheckSubject& subject);
Deviations CheckVaporisationAtTb(CheckSubject& subject);
Deviations CheckVaporisationFalls(CheckSubject& subject);
Deviations CheckClapeyron(CheckSubject& subject);

Deviations CheckIdealGasForms(CheckSubject& subject);
Deviations CheckIdealGasFloor(CheckSubject& subject);
Deviations CheckIdealGasRises(CheckSubject& subject);
Deviations CheckLiquidHeatCapacity(CheckSubject& subject);
Deviations CheckSolidHeatCapacity(CheckSubject& subject);

} // namespace orva
