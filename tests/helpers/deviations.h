// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "helpers/dvopar/vo_halme_fit.h"
#include "state/name_tables.h"
#include "substance/database.h"
#include "substance/substance_loading.h"
#include "substance/vo_halme_exchange.h"
#include "text/columns.h"
#include "thermo/cubic_equation.h"
#include "thermo/density_correlations.h"
#include "thermo/eos_constants.h"
#include "thermo/saturation_bracket.h"
#include "thermo/vapour_pressure.h"
#include "thermo/vo_halme_constants.h"

// How far an equation of state lies off the Wagner equation and the liquid density of a substance.
namespace orva::test {

struct NamedSubstance {
    std::string_view cas, name;
};

inline constexpr std::array<NamedSubstance, 10> tenSubstances = {{{"7732-18-5", "water"},
                                                                  {"7664-41-7", "ammonia"},
                                                                  {"124-38-9", "carbon dioxide"},
                                                                  {"106-97-8", "n-butane"},
                                                                  {"111-65-9", "n-octane"},
                                                                  {"64-17-5", "ethanol"},
                                                                  {"67-64-1", "acetone"},
                                                                  {"811-97-2", "R134a"},
                                                                  {"108-88-3", "toluene"},
                                                                  {"7446-09-5", "sulfur dioxide"}}};

// A substance of the database by its CAS number; nothing if it is not there.
inline std::optional<SubstanceData> FromDatabase(const std::filesystem::path& path, std::string_view cas) {
    Database database;
    if (!database.LoadDatabase(path, path.parent_path(), true).Good())
        return std::nullopt;
    for (std::size_t i = 0; i < database.List().entries.size(); ++i) {
        if (Trim(database.List().entries[i].cas) != cas)
            continue;
        SubstanceData substance;
        if (!LoadSubstanceRecord(database, static_cast<int>(i) + 1, true, substance).readError)
            return substance;
    }
    return std::nullopt;
}

inline SubstanceModel ModelWith(const SubstanceData& substance, int eos, int vaporPressure) {
    SubstanceModel model;
    model.substance = substance;
    model.selection.eos = static_cast<std::int16_t>(eos);
    model.selection.vaporPressure = static_cast<std::int16_t>(vaporPressure);
    model.selection.vaporPressureCode = VaporPressureCodeOf(vaporPressure);
    return model;
}

// Constants of any row, those of rows 7 and 8 by the fit, from the request as the workbench writes it.
inline bool Determine(SubstanceModel& model) {
    const int eos = model.selection.eos;
    if (eos != eosVoHalme1 && eos != eosVoHalme2)
        return DetermineEosParameters(model, eos);
    const dvopar::ParsedRequest parsed = dvopar::ParseRequest(VoHalmeRequestText(model, eos));
    if (!parsed.request)
        return false;
    const dvopar::VoHalmeFit fit = dvopar::FitVoHalme(*parsed.request);
    if (!fit.parameters)
        return false;
    model.voHalme = *fit.parameters;
    return SetVoHalmeConstants(model);
}

struct Deviation {
    double mean = 0, max = 0; // per cent

    void Take(double relative, int count) {
        mean += 100 * std::abs(relative) / count;
        max = std::max(max, 100 * std::abs(relative));
    }
};

struct Deviations {
    Deviation pressure, density;
    bool failed = false;
};

// At 44 even steps between 0.55 and 0.98 T(cr), above the lower limits of both equations.
inline Deviations DeviationsOf(SubstanceModel& model) {
    constexpr int count = 44;
    Deviations result;
    const SubstanceData& s = model.substance;
    const double high = 0.98 * s.Tc;
    const double low =
        std::max({0.55 * s.Tc, static_cast<double>(s.wagner.Tlo), static_cast<double>(s.rhoLiquid.Tlo)});
    for (int i = 0; i < count; ++i) {
        const double T = low + (high - low) * i / (count - 1);
        const SaturationResult saturation = BracketedSaturationPressure(model, T);
        const VapourPressureResult p = VapourPressure(s, T, vpWagner);
        const DensityResult rho = LiquidDensity(s, static_cast<float>(T));
        if (saturation.failed || p.failed || rho.failed) {
            result.failed = true;
            return result;
        }
        result.pressure.Take(saturation.value / p.value - 1, count);
        result.density.Take(s.molarMass / model.work.Roots[0] / rho.rho - 1, count);
    }
    return result;
}

} // namespace orva::test
