// SPDX-License-Identifier: GPL-3.0-or-later
#include "database/value_checks.h"

#include "substance/record_fields.h"

namespace orva {
namespace {

template<int first, int second> Deviations Compare(CheckSubject& subject) {
    return CompareEquations(subject, first, second);
}

constexpr ValueCheck checks[] = {
    {"p(Tb)", "each vapour-pressure equation that reaches Tb within 5 K, against 101.325 kPa", "%", 1.5, 2,
     CheckPressureAtTb},
    {"p(Tc)", "each vapour-pressure equation that reaches Tc, against pc", "%", 1.5, 5, CheckPressureAtTc},
    {"p(Ttrip)", "the equation that reaches lowest, at the triple point against ptrip", "%", 10, 40,
     CheckPressureAtTtrip},
    {"p rises", "fall of a vapour-pressure equation over its range", "%", 0, 0, CheckPressureRises},
    {"Wagner/Frost", "Wagner against Frost/Kalkwarf above 1 kPa, common range", "%", 3, 10,
     Compare<vpWagner, vpFrostKalkwarf>},
    {"Wagner/Antoine-", "Wagner against the low Antoine equation, common range above 1 kPa", "%", 3, 10,
     Compare<vpWagner, vpAntoineLow>},
    {"Wagner/Antoine+", "Wagner against the high Antoine equation, common range", "%", 3, 10,
     Compare<vpWagner, vpAntoineHigh>},
    {"Frost/Antoine-", "Frost/Kalkwarf against the low Antoine equation, common range above 1 kPa", "%", 3,
     10, Compare<vpFrostKalkwarf, vpAntoineLow>},
    {"Frost/Antoine+", "Frost/Kalkwarf against the high Antoine equation, common range", "%", 3, 10,
     Compare<vpFrostKalkwarf, vpAntoineHigh>},
    {"Antoine-/Antoine+", "low against high Antoine equation, common range", "%", 3, 10,
     Compare<vpAntoineLow, vpAntoineHigh>},
    {"omega", "-lg(p(0.7 Tc)/pc) - 1 against omega", "", 0.01, 0.03, CheckAcentricFactor},
    {"M", "molar mass against the formula", "%", 0.005, 0.05, CheckMolarMass},
    {"Zc", "pc M/(rhoc R Tc) against 0.27", "", 0.04, 0.1, CheckCriticalFactor},
    {"Ttrip/Tb", "Ttrip below Tb where ptrip is below 101.325 kPa, and above it otherwise", "%", 0, 0,
     CheckTripleBelowBoiling},
    {"Tmelt/Ttrip", "melting temperature against the triple point", "K", 2, 20, CheckMeltingAtTriple},
    {"sFormation", "(hFormation - gFormation)/298.15 against sConventional and the elements", "", 0.2, 0.5,
     CheckFormationEntropy},
    {"rhoL > 0", "liquid density positive over its range", "%", 0, 0, CheckLiquidDensityPositive},
    {"rhoL(Tb)", "liquid density at Tb against the value of the constants", "%", 0.5, 3,
     CheckLiquidDensityAtTb},
    {"rhoL(Tb)/rhoc", "ratio of the densities at Tb and at the critical point against 2.7", "", 0.4, 1,
     CheckLiquidDensityRatio},
    {"rhoL falls", "rise of the liquid density over its range", "%", 0.1, 1, CheckLiquidDensityFalls},
    {"rhoL(Tc)", "liquid density carried on to Tc against rhoc", "%", 10, 30, CheckLiquidDensityAtTc},
    {"rhoS/rhoL", "solid lighter than the liquid where their ranges meet", "%", 0, 20, CheckSolidDensity},
    {"hVap(ref)", "function of hVap against the first point of the constants", "%", 2, 5,
     CheckVaporisationReference},
    {"hVap(Tb)", "function of hVap against the point at Tb", "%", 2, 5, CheckVaporisationAtTb},
    {"hVap falls", "rise of the function of hVap over its range", "%", 0.1, 1, CheckVaporisationFalls},
    {"hVap/Clapeyron", "function of hVap against Clapeyron with Peng/Robinson volumes, 0.55 to 0.9 Tc", "%",
     5, 12, CheckClapeyron},
    {"cp forms", "ideal-gas polynomial against sinh/cosh, common range", "%", 2, 3, CheckIdealGasForms},
    {"cp floor", "ideal-gas heat capacity below 2.5 R", "%", 0, 0.5, CheckIdealGasFloor},
    {"cp rises", "fall of the ideal-gas heat capacity over its range", "%", 0.5, 5, CheckIdealGasRises},
    {"cpL/cp", "liquid heat capacity below that of the ideal gas", "%", 0, 10, CheckLiquidHeatCapacity},
    {"cpS", "solid heat capacity negative, or falling by more than the limit", "%", 1, 20,
     CheckSolidHeatCapacity},
};

} // namespace

std::span<const ValueCheck> ValueChecks() {
    return checks;
}

float CheckSubject::Value(std::string_view field) const {
    return compiled.record.values[static_cast<std::size_t>(RecordPosition(field))];
}

double Percent(double value, double expected) {
    return 100 * (value / expected - 1);
}

} // namespace orva
