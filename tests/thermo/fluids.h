// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cmath>

#include "state/name_tables.h"
#include "state/substance_model.h"
#include "thermo/eos_constants.h"
#include "thermo/vapour_pressure.h"

// A few real substances for tests and benchmarks. Critical points: Bücker, Wagner, J. Phys. Chem. Ref. Data
// 35 (2006) 929 (n-butane); Wagner, Pruß, J. Phys. Chem. Ref. Data 31 (2002) 387 (water); Span, Wagner, J.
// Phys. Chem. Ref. Data 25 (1996) 1509 (carbon dioxide); Gao, Wu, Bell, Harvey, Lemmon, J. Phys. Chem. Ref.
// Data 52 (2023) 013102 (ammonia). Antoine at low pressure: Poling, Prausnitz, O'Connell, The Properties of
// Gases and Liquids (2001). Frost/Kalkwarf: Perry's Chemical Engineers' Handbook, converted to kPa. Wagner
// and Antoine at high pressure: fits to the equations of state above, as compiled in the substance tables of
// this project.
namespace orva::fluids {

inline SubstanceData NamedFluid(const char* name, const char* formula, const char* cas, float molarMass) {
    SubstanceData s;
    s.name = name;
    s.formula = formula;
    s.formula.resize(12, ' ');
    s.formulaCompact = formula;
    s.cas = cas;
    s.cas.resize(12, ' ');
    s.molarMass = molarMass;
    return s;
}

inline void SetCriticalData(SubstanceData& s, double Tc, double pc, double rhoc, double omega, float Tb) {
    s.Tc = Tc;
    s.pc = pc;
    s.rhoc = rhoc;
    s.vcDatabase = s.molarMass / rhoc;
    s.omega = omega;
    s.Tb = Tb;
}

// The August block and the three correlated ones, from Tb, Tc, pc.
inline void Correlate(SubstanceData& s) {
    const double B = std::log(s.pc / 101.325) * s.Tc * s.Tb / (s.Tb - s.Tc);
    s.august = {static_cast<float>(std::log(s.pc) - B / s.Tc), static_cast<float>(B)};
    for (const int equation : {vpFrostKalkwarfVdW, vpFrostKalkwarfRK, vpThompson})
        CorrelateVapourPressure(s, equation);
}

inline SubstanceData NButane() {
    SubstanceData s = NamedFluid("n-Butan", "C4H10", "106-97-8", 58.124F);
    SetCriticalData(s, 425.125, 3796, 228.007, 0.20081, 272.66F);
    s.Ttrip = 134.895F;
    s.ptrip = 0.00066566F;
    s.antoineLow = {5.93266F, 935.773F, 238.789F, 201, 292};
    s.antoineHigh = {6.35576021F, 1175.58101F, 271.079F, 273, 425};
    s.frostKalkwarf = {25.8123988F, -1894.91368F, 273.15F, -7.046F, 0, 0, 0, 4.10447372e-06F, 2, 135, 425, 0};
    s.wagner = {-7.09123827F, 1.82680717F, -2.13107697F, 2.5F, -4.95996518F, 6, 3.49575375F,
                7.5F,         425.125F,    3796,         158,  425,          0};
    Correlate(s);
    return s;
}

inline SubstanceData Water() {
    SubstanceData s = NamedFluid("Wasser", "H2O", "7732-18-5", 18.015F);
    SetCriticalData(s, 647.096, 22064, 321.995, 0.34429, 373.124F);
    s.Ttrip = 273.16F;
    s.ptrip = 0.61166F;
    s.antoineLow = {7.11564F, 1687.537F, 230.17F, 274, 473};
    s.antoineHigh = {7.26763422F, 1814.45357F, 244.852613F, 373, 640};
    s.frostKalkwarf = {28.9853543F, -3152.19621F,    273.15F, -7.3037F, 0,   0,
                       0,           1.80896681e-06F, 2,       274,      647, 0};
    s.wagner = {-7.85828179F, 1.8734665F, -2.30408839F, 2.5F, -5.6532841F, 6, 5.13217052F,
                7.5F,         647.096F,   22064,        274,  647,         0};
    Correlate(s);
    return s;
}

// Tb is the sublimation temperature at normal pressure, below the triple point.
inline SubstanceData CarbonDioxide() {
    SubstanceData s = NamedFluid("Kohlendioxid", "CO2", "124-38-9", 44.009F);
    SetCriticalData(s, 304.1282, 7377.3, 467.592, 0.22394, 194.686F);
    s.Ttrip = 216.592F;
    s.ptrip = 517.96F;
    s.antoineHigh = {6.662752F, 840.110383F, 269.327397F, 217, 304};
    s.frostKalkwarf = {58.0357465F, -2056.38437F, 273.15F, -21.268F, 0, 0, 0, 0.017766553F, 1, 217, 304, 0};
    s.wagner = {-7.05236464F, 1.83107976F, -1.2604812F, 2, -1.52471466F, 3, -6.7399036F, 6, 304.1282F,
                7377.3F,      217,         304,         0};
    Correlate(s);
    return s;
}

inline SubstanceData Ammonia() {
    SubstanceData s = NamedFluid("Ammoniak", "NH3", "7664-41-7", 17.031F);
    SetCriticalData(s, 405.56, 11363.4, 233.257, 0.256, 239.834F);
    s.Ttrip = 195.49F;
    s.ptrip = 6.0534F;
    s.antoineLow = {6.4854F, 926.132F, 240.17F, 196, 254};
    s.antoineHigh = {6.82203235F, 1082.29438F, 258.030634F, 239, 405};
    s.frostKalkwarf = {36.2962676F, -2028.02494F, 273.15F, -11.607F, 0, 0, 0, 0.00746725932F, 1, 196, 405, 0};
    s.wagner = {-7.2603023F, 1.51264373F, -1.82517673F, 2.5F, -7.47545478F, 6, 8.37911636F,
                7.5F,        405.56F,     11363.4F,     196,  405,          0};
    Correlate(s);
    return s;
}

inline std::array<SubstanceData, 4> All() {
    return {NButane(), Water(), CarbonDioxide(), Ammonia()};
}

// The rows with closed formulas.
inline constexpr std::array<EosRow, 5> cubicRows = {eosVanDerWaals, eosBerthelot, eosRedlichKwong,
                                                    eosSoaveRedlichKwong, eosPengRobinson};

inline constexpr std::array<EosRow, 7> virialRows = {
    virialByHand,       virialVanDerWaals, virialBerthelot, virialRedlichKwong, virialSoaveRedlichKwong,
    virialPengRobinson, virialPitzerCurl};

// A substance with its models accepted, its constants determined.
inline SubstanceModel ModelOf(const SubstanceData& substance, int eos, int vaporPressure = vpNone) {
    SubstanceModel model;
    model.substance = substance;
    model.selection.eos = static_cast<std::int16_t>(eos);
    model.selection.nonCubic = eos == eosIdealGas || eos > 9;
    model.selection.vaporPressure = static_cast<std::int16_t>(vaporPressure);
    model.selection.vaporPressureCode = VaporPressureCodeOf(vaporPressure);
    DetermineEosParameters(model, eos);
    return model;
}

// Plausible constants of the Vo / Halme rows for tests of the temperature function; zeta as for Peng /
// Robinson, OmegaA, OmegaB and s belong to it.
inline void SetVoHalme(SubstanceModel& model, double k) {
    VoHalmeParameters& vh = model.voHalme;
    vh.zeta = 0.3;
    vh.OmegaB = 0.0741;
    vh.s = (1 - 3 * vh.zeta + vh.OmegaB) / vh.OmegaB;
    vh.OmegaA = 3 * vh.zeta * vh.zeta + vh.s * vh.OmegaB + 2 * vh.s * vh.OmegaB * vh.OmegaB;
    vh.ac = 8.31451 * 8.31451 * vh.OmegaA * model.substance.Tc * model.substance.Tc / model.substance.pc;
    vh.k = k;
    vh.m1 = 0.9;
    vh.m2 = 0.3;
    vh.m3 = -0.2;
    model.eos.vCritCalc = CriticalVolumeFromFactor(model.substance, vh.zeta);
}

} // namespace orva::fluids
