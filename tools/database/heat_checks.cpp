// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>
#include <optional>

#include "database/table_layout.h"
#include "database/value_checks.h"
#include "state/constants.h"
#include "substance/record_fields.h"
#include "thermo/heat_capacity.h"
#include "thermo/vaporisation_enthalpy.h"

namespace orva {
namespace {

constexpr std::string_view hVapFile = "h_vap.tsv";
constexpr std::string_view polynomialFile = "cp_ideal_polynomial.tsv";
constexpr std::string_view sinhCoshFile = "cp_ideal_sinh_cosh.tsv";
constexpr std::string_view cpLiquidFile = "cp_liquid.tsv";
constexpr std::string_view cpSolidFile = "cp_solid.tsv";
constexpr float missing = 1e-6F;

struct CpForm {
    std::string_view file;
    int model;
    int Tlo, Thi;
};

std::vector<CpForm> IdealGasForms(const CheckSubject& subject) {
    const SubstanceData& data = subject.Data();
    std::vector<CpForm> forms = {{polynomialFile, 1, data.cpPolynomial.Tlo, data.cpPolynomial.Thi},
                                 {sinhCoshFile, 2, data.cpSinhCosh.Tlo, data.cpSinhCosh.Thi}};
    std::erase_if(forms, [&](const CpForm& form) { return !subject.Has(form.file); });
    return forms;
}

Deviations VaporisationPoint(const CheckSubject& subject, float expected, float at) {
    const VaporisationBlock& block = subject.Data().hVapFunction;
    if (!subject.Has(hVapFile) || expected < missing || at < static_cast<float>(block.Tlo)
        || at > static_cast<float>(block.Thi))
        return {};
    const VaporisationDbResult result = VaporisationEnthalpyDb(subject.Data(), at);
    if (result.failed)
        return {{hVapFile, Deviation::hopeless, "has no value at " + NumberText(at) + " K"}};
    return {{hVapFile, Percent(result.h, expected),
             "gives " + FixedText(result.h, 0) + " kJ/kmol at " + NumberText(at) + " K, not "
                 + NumberText(expected) + " kJ/kmol"}};
}

// The deepest fall below what was reached before.
template<class Function> double LargestFall(int Tlo, int Thi, Function f) {
    double greatest = f(Tlo), fall = 0;
    for (int T = Tlo; T <= Thi; ++T) {
        const double value = f(T);
        fall = std::max(fall, -Percent(value, greatest));
        greatest = std::max(greatest, value);
    }
    return fall;
}

int BestEquation(const SubstanceData& data, double T) {
    if (T >= data.wagner.Tlo && T <= data.wagner.Thi)
        return vpWagner;
    if (T >= data.frostKalkwarf.Tlo && T <= data.frostKalkwarf.Thi)
        return vpFrostKalkwarf;
    return vpNone;
}

} // namespace

Deviations CheckVaporisationReference(CheckSubject& subject) {
    return VaporisationPoint(subject, subject.Value("hVapRef"), subject.Value("TVapRef"));
}

Deviations CheckVaporisationAtTb(CheckSubject& subject) {
    const auto& values = subject.compiled.record.values;
    return VaporisationPoint(subject, values[positionHVapSecond], values[positionTVapSecond]);
}

Deviations CheckVaporisationFalls(CheckSubject& subject) {
    if (!subject.Has(hVapFile))
        return {};
    const VaporisationBlock& block = subject.Data().hVapFunction;
    double least = VaporisationEnthalpyDb(subject.Data(), block.Tlo).h, rise = 0;
    for (int T = block.Tlo; T <= block.Thi; ++T) {
        const VaporisationDbResult result = VaporisationEnthalpyDb(subject.Data(), T);
        if (result.failed || result.h <= 0)
            break;
        rise = std::max(rise, Percent(result.h, least));
        least = std::min(least, result.h);
    }
    return {{hVapFile, rise, "rises with T by " + FixedText(rise, 2) + " %, not at all"}};
}

// The vapour volume from the equation of state, the liquid volume from the density table.
Deviations CheckClapeyron(CheckSubject& subject) {
    const SubstanceData& data = subject.Data();
    if (!subject.Has(hVapFile) || !subject.Has("rho_liquid.tsv"))
        return {};
    std::optional<Deviation> worst;
    for (const double Tr : {0.55, 0.65, 0.75, 0.85, 0.9}) {
        const double T = Tr * data.Tc;
        const int equation = BestEquation(data, T);
        if (equation == vpNone || T < data.hVapFunction.Tlo || T > data.hVapFunction.Thi
            || T < data.rhoLiquid.Tlo || T > data.rhoLiquid.Thi)
            continue;
        VaporisationRequest request;
        request.T = T;
        const VaporisationResult result =
            VaporisationEnthalpy(subject.model, vaporisationLiquidDensity, equation, request);
        const VaporisationDbResult function = VaporisationEnthalpyDb(data, T);
        if (result.failed || function.failed || result.h <= 0)
            continue;
        const double value = Percent(function.h, result.h);
        if (!worst || std::abs(value) > std::abs(worst->value))
            worst = {hVapFile, value,
                     "gives " + FixedText(function.h, 0) + " kJ/kmol at " + FixedText(T, 1)
                         + " K, the slope of the vapour pressure " + std::to_string(result.h)
                         + " kJ/kmol, which is not equal"};
    }
    return worst ? Deviations{*worst} : Deviations{};
}

Deviations CheckIdealGasForms(CheckSubject& subject) {
    const std::vector<CpForm> forms = IdealGasForms(subject);
    if (forms.size() < 2)
        return {};
    std::optional<Deviation> worst;
    for (int T = std::max(forms[0].Tlo, forms[1].Tlo); T <= std::min(forms[0].Thi, forms[1].Thi); T += 5) {
        const double a = IdealGasCp(subject.Data(), T, 1).cp, b = IdealGasCp(subject.Data(), T, 2).cp;
        const double value = Percent(a, b);
        if (!worst || std::abs(value) > std::abs(worst->value))
            worst = {polynomialFile, value,
                     "gives " + FixedText(a, 2) + " kJ/(kmol K) at " + std::to_string(T) + " K, sinh/cosh "
                         + FixedText(b, 2) + " kJ/(kmol K), which is not equal"};
    }
    return worst ? Deviations{*worst} : Deviations{};
}

Deviations CheckIdealGasFloor(CheckSubject& subject) {
    Deviations found;
    for (const CpForm& form : IdealGasForms(subject)) {
        double least = Deviation::hopeless;
        for (int T = form.Tlo; T <= form.Thi; ++T)
            least = std::min(least, IdealGasCp(subject.Data(), T, form.model).cp);
        found.push_back({form.file, std::max(0.0, -Percent(least, 2.5 * gasConstant)),
                         "falls to " + FixedText(least, 2) + " kJ/(kmol K), not above 2.5 R"});
    }
    return found;
}

Deviations CheckIdealGasRises(CheckSubject& subject) {
    Deviations found;
    for (const CpForm& form : IdealGasForms(subject)) {
        const double fall = LargestFall(form.Tlo, form.Thi,
                                        [&](int T) { return IdealGasCp(subject.Data(), T, form.model).cp; });
        found.push_back({form.file, fall, "falls with T by " + FixedText(fall, 2) + " %, not less"});
    }
    return found;
}

Deviations CheckLiquidHeatCapacity(CheckSubject& subject) {
    const SubstanceData& data = subject.Data();
    const std::vector<CpForm> forms = IdealGasForms(subject);
    if (!subject.Has(cpLiquidFile) || forms.empty())
        return {};
    std::optional<Deviation> worst;
    for (int T = data.cpLiquid.Tlo; T <= data.cpLiquid.Thi; ++T) {
        const double liquid = LiquidCp(data, T);
        if (!(liquid > 0))
            return {{cpLiquidFile, Deviation::hopeless, "is not positive at " + std::to_string(T) + " K"}};
        if (T < forms.back().Tlo || T > forms.back().Thi)
            continue;
        const double gas = IdealGasCp(data, T, forms.back().model).cp;
        const double value = std::max(0.0, -Percent(liquid, gas));
        if (!worst || value > worst->value)
            worst = {cpLiquidFile, value,
                     "gives " + FixedText(liquid, 2) + " kJ/(kmol K) at " + std::to_string(T)
                         + " K, the ideal gas " + FixedText(gas, 2) + " kJ/(kmol K), which is not less"};
    }
    return worst ? Deviations{*worst} : Deviations{};
}

Deviations CheckSolidHeatCapacity(CheckSubject& subject) {
    const SubstanceData& data = subject.Data();
    if (!subject.Has(cpSolidFile))
        return {};
    for (int T = data.cpSolid.Tlo; T <= data.cpSolid.Thi; ++T) {
        if (!(SolidCp(data, T) > 0))
            return {{cpSolidFile, Deviation::hopeless, "is not positive at " + std::to_string(T) + " K"}};
    }
    const double fall = LargestFall(data.cpSolid.Tlo, data.cpSolid.Thi,
                                    [&](int T) { return static_cast<double>(SolidCp(data, T)); });
    return {{cpSolidFile, fall, "falls with T by " + FixedText(fall, 2) + " %, not less"}};
}

} // namespace orva
