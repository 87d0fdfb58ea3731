// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>

#include "database/table_layout.h"
#include "database/value_checks.h"
#include "thermo/density_correlations.h"

namespace orva {
namespace {

constexpr std::string_view liquidFile = "rho_liquid.tsv";
constexpr float missing = 1e-6F;
constexpr double criticalMargin = 3; // K

double RhoLiquid(const CheckSubject& subject, double T) {
    return LiquidDensity(subject.Data(), static_cast<float>(T)).rho;
}

} // namespace

Deviations CheckLiquidDensityPositive(CheckSubject& subject) {
    const LiquidDensityBlock& block = subject.Data().rhoLiquid;
    if (!subject.Has(liquidFile))
        return {};
    for (int T = block.Tlo; T <= block.Thi; ++T) {
        if (!(RhoLiquid(subject, T) > 0))
            return {{liquidFile, Deviation::hopeless,
                     "the liquid density is not positive at " + std::to_string(T) + " K"}};
    }
    return {{liquidFile, 0, ""}};
}

Deviations CheckLiquidDensityAtTb(CheckSubject& subject) {
    const float Tb = subject.Value("Tb"), expected = subject.Value("rhoLb");
    const LiquidDensityBlock& block = subject.Data().rhoLiquid;
    if (!subject.Has(liquidFile) || expected < missing || Tb < static_cast<float>(block.Tlo)
        || Tb > static_cast<float>(block.Thi))
        return {};
    const double rho = RhoLiquid(subject, Tb);
    return {{liquidFile, Percent(rho, expected),
             "gives " + FixedText(rho, 2) + " kg/m^3 at Tb, not " + NumberText(expected) + " kg/m^3"}};
}

Deviations CheckLiquidDensityRatio(CheckSubject& subject) {
    constexpr double usual = 2.7;
    const float rho = subject.Value("rhoLb"), rhoc = subject.Value("rhoc");
    if (rho < missing || rhoc < missing)
        return {};
    return {{constantsFile, rho / rhoc - usual,
             "rho_Tb/rhoc = " + FixedText(rho / rhoc, 3) + ", not " + FixedText(usual, 1)}};
}

Deviations CheckLiquidDensityFalls(CheckSubject& subject) {
    const LiquidDensityBlock& block = subject.Data().rhoLiquid;
    if (!subject.Has(liquidFile))
        return {};
    double least = RhoLiquid(subject, block.Tlo), rise = 0;
    for (int T = block.Tlo; T <= block.Thi && T <= block.Tcr; ++T) {
        const double rho = RhoLiquid(subject, T);
        rise = std::max(rise, Percent(rho, least));
        least = std::min(least, rho);
    }
    return {{liquidFile, rise, "the density rises with T by " + FixedText(rise, 2) + " %, not at all"}};
}

Deviations CheckLiquidDensityAtTc(CheckSubject& subject) {
    const SubstanceData& data = subject.Data();
    const LiquidDensityBlock& block = data.rhoLiquid;
    if (!subject.Has(liquidFile) || data.rhoc < missing || block.Thi < data.Tc - criticalMargin)
        return {};
    const double rho = RhoLiquid(subject, std::min<double>(data.Tc, block.Tcr));
    return {{liquidFile, Percent(rho, data.rhoc),
             "leads to " + FixedText(rho, 1) + " kg/m^3 at Tc, not rhoc = " + FixedText(data.rhoc, 1)
                 + " kg/m^3"}};
}

Deviations CheckSolidDensity(CheckSubject& subject) {
    const SubstanceData& data = subject.Data();
    constexpr std::string_view file = "rho_solid.tsv";
    const double gap = data.rhoLiquid.Tlo - data.rhoSolid.Thi;
    if (!subject.Has(file) || !subject.Has(liquidFile) || std::abs(gap) > 5)
        return {};
    const double solid = SolidDensity(data, static_cast<float>(data.rhoSolid.Thi)).rho;
    const double liquid = RhoLiquid(subject, data.rhoLiquid.Tlo);
    return {{file, std::max(0.0, -Percent(solid, liquid)),
             "gives " + FixedText(solid, 1) + " kg/m^3 where the liquid has " + FixedText(liquid, 1)
                 + " kg/m^3, which is not heavier"}};
}

} // namespace orva
