// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include "database/elements.h"
#include "database/table_layout.h"
#include "database/value_checks.h"
#include "state/constants.h"
#include "substance/record_fields.h"
#include "substance/substance_loading.h"

namespace orva {
namespace {

constexpr float missing = 1e-6F;
constexpr double standardTemperature = 298.15;
constexpr std::string_view formationFile = "formation.tsv";

} // namespace

Deviations CheckMolarMass(CheckSubject& subject) {
    const std::string formula = CompactFormula(subject.compiled.record.formula);
    const auto atoms = AtomsOfFormula(formula);
    if (!atoms)
        return {{identityFile, Deviation::hopeless, "\"" + formula + "\" is not a molecular formula"}};
    double M = 0;
    for (const auto& [symbol, count] : *atoms) {
        const auto weight = AtomicWeight(symbol);
        if (!weight)
            return {{identityFile, Deviation::hopeless, "no atomic weight for " + symbol + " of " + formula}};
        M += *weight * count;
    }
    const float molarMass = subject.Value("molarMass");
    return {{identityFile, Percent(molarMass, M),
             "molar_mass = " + NumberText(molarMass) + ", not " + FixedText(M, 3) + " of " + formula}};
}

Deviations CheckCriticalFactor(CheckSubject& subject) {
    constexpr double usual = 0.27;
    const float rhoc = subject.Value("rhoc");
    if (rhoc < missing)
        return {};
    const double Zc =
        subject.Value("pc") * subject.Value("molarMass") / rhoc / gasConstant / subject.Value("Tc");
    return {{constantsFile, Zc - usual, "Tc, pc and rhoc give Zc = " + FixedText(Zc, 4) + ", not 0.27"}};
}

// What sublimes at normal pressure has its triple point above that pressure.
Deviations CheckTripleBelowBoiling(CheckSubject& subject) {
    const float T = subject.Value("Ttrip"), Tb = subject.Value("Tb"), p = subject.Value("ptrip");
    if (T < missing || Tb < missing)
        return {};
    const bool sublimes = p > normalPressure;
    const double excess = sublimes ? -Percent(T, Tb) : Percent(T, Tb);
    return {{constantsFile, excess > 0 ? excess : 0,
             "Ttrip = " + NumberText(T) + " K and Tb = " + NumberText(Tb)
                 + " K are not in the order that ptrip asks for"}};
}

Deviations CheckMeltingAtTriple(CheckSubject& subject) {
    const float T = subject.Value("Ttrip"), melting = subject.compiled.record.values[positionTmelt];
    if (T < missing || melting < missing)
        return {};
    return {{constantsFile, melting - T,
             "Tmelt = " + NumberText(melting) + " K, not Ttrip = " + NumberText(T) + " K"}};
}

Deviations CheckFormationEntropy(CheckSubject& subject) {
    const float h = subject.Value("hFormation"), g = subject.Value("gFormation");
    const float s = subject.Value("sConventional");
    const auto atoms = AtomsOfFormula(CompactFormula(subject.compiled.record.formula));
    if (h == 0 || g == 0 || s < missing || !atoms)
        return {};
    double elements = 0;
    for (const auto& [symbol, count] : *atoms) {
        const auto entropy = EntropyOfElement(symbol);
        if (!entropy)
            return {};
        elements += *entropy * count;
    }
    const double found = (static_cast<double>(h) - g) / standardTemperature;
    return {{formationFile, found - (s - elements),
             "hFormation and gFormation give " + FixedText(found, 3) + " kJ/(kmol K), sConventional "
                 + FixedText(s - elements, 3) + " kJ/(kmol K), which is not equal"}};
}

} // namespace orva
