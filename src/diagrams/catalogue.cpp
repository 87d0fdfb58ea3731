// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/catalogue.h"

#include "diagrams/caloric_curves.h"
#include "diagrams/coexistence_functions.h"
#include "diagrams/database_curves.h"
#include "diagrams/inversion_curves.h"
#include "diagrams/projections.h"
#include "diagrams/thermal_sections.h"
#include "diagrams/tie_lines.h"

namespace orva {

namespace {

using R = DiagramRanges;
using Q = Quantity;

constexpr AxisRow temperature{Q::Temperature, &R::TMin, &R::TMax};
constexpr AxisRow wideTemperature{Q::Temperature, &R::TMin, &R::TwideMax};
constexpr AxisRow pressure{Q::Pressure, &R::pMin, &R::pMax};
constexpr AxisRow volume{Q::Volume, &R::vMin, &R::vMax};
constexpr AxisRow density{Q::Density, &R::rhoMin, &R::rhoMax};
constexpr AxisRow pressureVolume{Q::PressureVolume, &R::pvMin, &R::pvMax};
constexpr AxisRow inverseTemperature{Q::InverseTemperature, &R::invTMin, &R::invTMax};
constexpr AxisRow logPressure{Q::LogPressure, &R::lnPMin, &R::lnPMax};
constexpr AxisRow vapourPressureSlope{Q::VapourPressureSlope, &R::dlnMin, &R::dlnMax};
constexpr AxisRow jouleThomson{Q::JouleThomson, &R::deltaMin, &R::deltaMax};
constexpr AxisRow vaporisation{Q::VaporisationEnthalpy, &R::hVapMin, &R::hVapMax};
constexpr AxisRow enthalpy{Q::Enthalpy, &R::hMin, &R::hMax};
constexpr AxisRow entropy{Q::Entropy, &R::sMin, &R::sMax};
constexpr AxisRow freeEnthalpy{Q::FreeEnthalpy, &R::hMin, &R::hMax};
constexpr AxisRow innerEnergy{Q::InnerEnergy, &R::hMin, &R::hMax};
constexpr AxisRow freeEnergy{Q::FreeEnergy, &R::hMin, &R::hMax};
constexpr AxisRow exergyH{Q::ExergyOfEnthalpy, &R::hMin, &R::hMax};
constexpr AxisRow exergyU{Q::ExergyOfInnerEnergy, &R::hMin, &R::hMax};
constexpr AxisRow ambientEntropy{Q::AmbientEntropy, &R::hMin, &R::hMax};
constexpr AxisRow heatCapacityP{Q::HeatCapacityP, &R::cpMin, &R::cpMax};
constexpr AxisRow heatCapacityV{Q::HeatCapacityV, &R::cpMin, &R::cpMax};
constexpr AxisRow isochoricHeatCapacity{Q::IsochoricHeatCapacity, &R::cpMin, &R::cpMax};
constexpr AxisRow residualEnthalpy{Q::ResidualEnthalpy, &R::dhMin, &R::dhMax};
constexpr AxisRow residualEntropy{Q::ResidualEntropy, &R::dsMin, &R::dsMax};
constexpr AxisRow residualFreeEnthalpy{Q::ResidualFreeEnthalpy, &R::dhMin, &R::dhMax};
constexpr AxisRow residualHeatCapacity{Q::ResidualHeatCapacity, &R::cpMin, &R::cpMax};
constexpr AxisRow eosParameterA{Q::EosParameterA, &R::hMin, &R::hMax};

using Value = double CaloricValues::*;

constexpr CurveProperty Only(Value y) {
    return {y, nullptr, false, -1};
}
constexpr CurveProperty Pair(Value x, Value y) {
    return {y, x, false, -1};
}
constexpr CurveProperty AmbientPair(Value y) {
    return {y, &CaloricValues::s, true, -1};
}
constexpr CurveProperty Residual(int row) {
    return {nullptr, nullptr, false, row};
}

// clang-format off
constexpr DiagramRow rows[] = {
    // sections
    {1, "mnuGraf_sub_cut", 1, volume, pressure, "isothermer Schnitt p - v", curveIsotherm, "pv", IsothermPv, TieLinePv, {}},
    {26, "mnuGraf_sub_cut", 2, pressure, density, "isothermer Schnitt rho - p", curveIsotherm, "rp", IsothermDensityOverP, TieLineDensity, {}},
    {2, "mnuGraf_sub_cut", 3, pressure, pressureVolume, "Isothermer Schnitt  pv - p", curveIsotherm, "vp", IsothermPvOverP, TieLinePvOverP, {}},
    {3, "mnuGraf_sub_cut", 5, volume, temperature, "isobarer Schnitt T - v", curveIsobar, "Tv", IsobarOverVolume, nullptr, {}},
    {4, "mnuGraf_sub_cut", 6, density, temperature, "isobarer Schnitt T -rho", curveIsobar, "Tr", IsobarOverDensity, nullptr, {}},
    {5, "mnuGraf_sub_cut", 8, temperature, pressure, "isochorer Schnitt p - T", curveIsochor, "pT", IsochorSection, nullptr, {}},
    // functions of T
    {34, "mnuGraf_sub_FuT", 1, wideTemperature, jouleThomson, "differentieller Joule-Thomson-Koeffizient aus EOS, isobar", curveIsobar, "yT", JouleThomsonOverT, nullptr, {}},
    {15, "mnuGraf_sub_FuT", 3, temperature, enthalpy, "~Enthalpie h", curveIsobar, "yT", CaloricOverT, TieLineCaloricOverT, Only(&CaloricValues::h)},
    {16, "mnuGraf_sub_FuT", 4, temperature, entropy, "~Entropie s", curveIsobar, "yT", CaloricOverT, TieLineCaloricOverT, Only(&CaloricValues::s)},
    {17, "mnuGraf_sub_FuT", 5, temperature, freeEnthalpy, "~Freie Enthalpie g", curveIsobar, "yT", CaloricOverT, TieLineCaloricOverT, Only(&CaloricValues::g)},
    {18, "mnuGraf_sub_FuT", 6, temperature, exergyH, "~Exergie der Enthalpie e ", curveIsobar, "yT", CaloricOverT, TieLineCaloricOverT, Only(&CaloricValues::exergyH)},
    {19, "mnuGraf_sub_FuT", 7, temperature, heatCapacityP, "Wärmekapazazität cp (real) = cp(idGas) + Residualwert nach EOS", curveIsobar, "yT", HeatCapacityOverT, nullptr, {}},
    {184, "mnuGraf_sub_FuT", 9, temperature, entropy, "Entropie s", curveIsochor, "yT", CaloricOverT, TieLineCaloricOverT, Only(&CaloricValues::s)},
    {183, "mnuGraf_sub_FuT", 10, temperature, innerEnergy, "Innere Energie u vs. Temperatur T", curveIsochor, "yT", CaloricOverT, TieLineCaloricOverT, Only(&CaloricValues::u)},
    {182, "mnuGraf_sub_FuT", 11, temperature, freeEnergy, "Freie Energie a vs. Temperatur T", curveIsochor, "yT", CaloricOverT, TieLineCaloricOverT, Only(&CaloricValues::f)},
    {181, "mnuGraf_sub_FuT", 12, temperature, exergyU, "Exergie der Inneren Energie e ", curveIsochor, "yT", CaloricOverT, TieLineCaloricOverT, Only(&CaloricValues::exergyU)},
    {185, "mnuGraf_sub_FuT", 13, temperature, isochoricHeatCapacity, "Wärmekapazität cV", curveIsochor, "yT", CaloricOverT, nullptr, Only(&CaloricValues::cv)},
    // functions of p
    {150, "mnuGraf_sub_Fup", 1, pressure, enthalpy, "~Enthalpie h", curveIsotherm, "yp", CaloricOverP, TieLineCaloricOverP, Only(&CaloricValues::h)},
    {151, "mnuGraf_sub_Fup", 2, pressure, entropy, "~Entropie s", curveIsotherm, "yp", CaloricOverP, TieLineCaloricOverP, Only(&CaloricValues::s)},
    {152, "mnuGraf_sub_Fup", 3, pressure, freeEnthalpy, "~Freie Enthalpie g", curveIsotherm, "yp", CaloricOverP, TieLineCaloricOverP, Only(&CaloricValues::g)},
    {153, "mnuGraf_sub_Fup", 4, pressure, exergyH, "~Exergie der Enthalpie e ", curveIsotherm, "yp", CaloricOverP, TieLineCaloricOverP, Only(&CaloricValues::exergyH)},
    {154, "mnuGraf_sub_Fup", 5, pressure, heatCapacityP, "Wärmekapazazität cp (real) = cp(idGas) + Residualwert nach EOS", curveIsotherm, "yp", CaloricOverP, TieLineCaloricOverP, Only(&CaloricValues::cp)},
    {155, "", -1, pressure, exergyU, "Exergie der Inneren Energie e ", curveIsotherm, "yp", CaloricOverP, TieLineCaloricOverP, Only(&CaloricValues::exergyU)},
    // functions of v
    {158, "mnuGraf_sub_FuV", 1, volume, entropy, "Entropie s vs. Volumen", curveIsotherm, "yv", CaloricOverVolume, TieLineCaloricOverVolume, Only(&CaloricValues::s)},
    {157, "mnuGraf_sub_FuV", 2, volume, innerEnergy, "Innere Energie u vs. Volumen", curveIsotherm, "yv", CaloricOverVolume, TieLineCaloricOverVolume, Only(&CaloricValues::u)},
    {156, "mnuGraf_sub_FuV", 3, volume, freeEnergy, "Freie Energie a vs. Volumen v", curveIsotherm, "yv", CaloricOverVolume, TieLineCaloricOverVolume, Only(&CaloricValues::f)},
    {160, "mnuGraf_sub_FuV", 4, volume, exergyU, "Exergie der Inneren Energie e vs. Volumen", curveIsotherm, "yv", CaloricOverVolume, TieLineCaloricOverVolume, Only(&CaloricValues::exergyU)},
    {159, "mnuGraf_sub_FuV", 5, volume, heatCapacityV, "Wärmekapazität cV vs. Volumen", curveIsotherm, "yv", CaloricOverVolume, TieLineCaloricOverVolume, Only(&CaloricValues::cv)},
    // residual functions
    {31, "mnuGraf_sub_res_FuT", 1, wideTemperature, residualEnthalpy, "residuale Enthalpie (h - h_id), isobar", curveIsobar, "yT", ResidualOverT, TieLineResidualOverT, Residual(4)},
    {30, "mnuGraf_sub_res_FuT", 2, wideTemperature, residualEntropy, "residuale Entropie (s - s_id), isobar", curveIsobar, "yT", ResidualOverT, TieLineResidualOverT, Residual(3)},
    {32, "mnuGraf_sub_res_FuT", 3, wideTemperature, residualFreeEnthalpy, "residuale Freie Enthalpie (g - g_id) = RT ln(phi), isobar", curveIsobar, "yT", ResidualOverT, TieLineResidualOverT, Residual(5)},
    {33, "mnuGraf_sub_res_FuT", 4, wideTemperature, residualHeatCapacity, "residuale Wärmekapazität (cp - cp_id), isobar", curveIsobar, "yT", ResidualOverT, TieLineResidualOverT, Residual(6)},
    {41, "mnuGraf_sub_res_Fup", 1, pressure, residualEnthalpy, "residuale Enthalpie (h - h_id), isotherm", curveIsotherm, "yp", ResidualOverP, TieLineResidualOverP, Residual(4)},
    {40, "mnuGraf_sub_res_Fup", 2, pressure, residualEntropy, "residuale Entropie (s - s_id), isotherm", curveIsotherm, "yp", ResidualOverP, TieLineResidualOverP, Residual(3)},
    {42, "mnuGraf_sub_res_Fup", 3, pressure, residualFreeEnthalpy, "residuale Freie Enthalpie (g - g_id) = RT ln(phi), isotherm", curveIsotherm, "yp", ResidualOverP, TieLineResidualOverP, Residual(5)},
    {43, "mnuGraf_sub_res_Fup", 4, pressure, residualHeatCapacity, "residuale Wärmekapazität (cp - cp_id), isotherm", curveIsotherm, "yp", ResidualOverP, TieLineResidualOverP, Residual(6)},
    // one function over another
    {107, "mnuGraf_sub_HS", 0, entropy, enthalpy, "Enthalpie h vs. Entropie s, isotherm", curveIsotherm, "yy", PairAlongP, TieLinePair, Pair(&CaloricValues::s, &CaloricValues::h)},
    {24, "mnuGraf_sub_HS", 1, entropy, enthalpy, "Enthalpie h vs. Entropie s, isobar", curveIsobar, "yy", PairAlongT, TieLinePair, Pair(&CaloricValues::s, &CaloricValues::h)},
    {109, "mnuGraf_sub_ES", 0, ambientEntropy, exergyH, "Exergie der Enthalpie e vs. T(u) * Entropie, isotherm", curveIsotherm, "yy", PairAlongP, TieLinePair, AmbientPair(&CaloricValues::exergyH)},
    {23, "mnuGraf_sub_ES", 1, ambientEntropy, exergyH, "Exergie der Enthalpie e vs. T(u) * Entropie, isobar", curveIsobar, "yy", PairAlongT, TieLinePair, AmbientPair(&CaloricValues::exergyH)},
    {21, "mnuGraf_sub_EH", 0, enthalpy, exergyH, "Exergie der Enthalpie e vs. Enthalpie, isotherm", curveIsotherm, "yy", PairAlongP, TieLinePair, Pair(&CaloricValues::h, &CaloricValues::exergyH)},
    {22, "mnuGraf_sub_EH", 1, enthalpy, exergyH, "Exergie der Enthalpie e vs. Enthalpie, isobar", curveIsobar, "yy", PairAlongT, TieLinePair, Pair(&CaloricValues::h, &CaloricValues::exergyH)},
    // projections
    {13, "mnuGraf_sub_proj", 0, temperature, vaporisation, "Verdampfungsenthalpie delta(LV)h = F(T)", curveProjection, "yT", VaporisationCurve, nullptr, {}},
    {6, "mnuGraf_sub_proj", 1, volume, pressure, "Projektion p - v", curveProjection, "pv", CoexistencePv, nullptr, {}},
    {27, "mnuGraf_sub_proj", 2, pressure, density, "Projektion rho - p", curveProjection, "rp", CoexistenceDensityOverP, nullptr, {}},
    {106, "mnuGraf_sub_proj", 3, pressure, pressureVolume, "Projektion pv - p", curveProjection, "vp", CoexistencePvOverP, nullptr, {}},
    {7, "mnuGraf_sub_proj", 4, volume, temperature, "Projektion T - v", curveProjection, "Tv", CoexistenceTOverVolume, nullptr, {}},
    {8, "mnuGraf_sub_proj", 5, temperature, density, "Projektion rho - T", curveProjection, "rT", CoexistenceDensities, nullptr, {}},
    {9, "mnuGraf_sub_proj", 6, temperature, pressure, "Projektion p - T", curveProjection, "pT", VapourPressureCurve, nullptr, {}},
    {90, "mnuGraf_sub_proj", 8, temperature, enthalpy, "Enthalpie H(T) im Phasengleichgewicht V - L", curveProjection, "yT", CoexistenceFunctionOverT, nullptr, Only(&CaloricValues::h)},
    {91, "mnuGraf_sub_proj", 9, temperature, entropy, "Entropie S(T) im Phasengleichgewicht V - L", curveProjection, "yT", CoexistenceFunctionOverT, nullptr, Only(&CaloricValues::s)},
    {93, "mnuGraf_sub_proj", 10, temperature, freeEnthalpy, "Freie Enthalpie G(T) im Phasengleichgewicht V - L", curveProjection, "yT", CoexistenceFunctionOverT, nullptr, Only(&CaloricValues::g)},
    {94, "mnuGraf_sub_proj", 11, temperature, exergyH, "Exergie der Enthalpie  e(T) im VLE", curveProjection, "yT", CoexistenceFunctionOverT, nullptr, Only(&CaloricValues::exergyH)},
    {92, "mnuGraf_sub_proj", 12, temperature, heatCapacityP, "Wärmekapazität cp(T) im Phasengleichgewicht V - L", curveProjection, "yT", CoexistenceFunctionOverT, nullptr, Only(&CaloricValues::cp)},
    {10, "mnuGraf_sub_proj", 14, inverseTemperature, logPressure, "Dampfdruckkurve mit ", curveProjection, "yT", LogVapourPressureCurve, nullptr, {}},
    {11, "mnuGraf_sub_proj", 15, inverseTemperature, vapourPressureSlope, "dlnp / d(1/T) vs. 1/T für Dampfdruckgleichung", curveProjection, "yT", VapourPressureSlopeCurve, nullptr, {}},
    // functions of the database; their windows come from their ranges of validity
    {306, "mnuGraf_sub_sub_database", 0, temperature, pressure, "Sättigungsdampfdruck pLV = Fu(T), Datenbankfunktion erweiterte Frost-Kalkwarf-Gleichung", curveFunctionOfT, "pT", DatabaseCurve, nullptr, {}},
    {307, "mnuGraf_sub_sub_database", 1, temperature, pressure, "Sättigungsdampfdruck pLV = Fu(T), Datenbankfunktion Wagner-Gleichung", curveFunctionOfT, "pT", DatabaseCurve, nullptr, {}},
    {308, "mnuGraf_sub_sub_database", 2, temperature, pressure, "Sättigungsdampfdruck pLV = Fu(T), Datenbankfunktion Antoine-Gleichung (Lo-p)", curveFunctionOfT, "pT", DatabaseCurve, nullptr, {}},
    {309, "mnuGraf_sub_sub_database", 3, temperature, pressure, "Sättigungsdampfdruck pLV = Fu(T), Datenbankfunktion Antoine-Gleichung (Hi-p)", curveFunctionOfT, "pT", DatabaseCurve, nullptr, {}},
    {300, "mnuGraf_sub_database", 1, temperature, density, "L-Dichte aus Datenbankfunktion", curveFunctionOfT, "yT", DatabaseCurve, nullptr, {}},
    {301, "mnuGraf_sub_database", 2, temperature, volume, "molares Volumen aus Datenbankfunktion rho(L)= F(T)", curveFunctionOfT, "yT", DatabaseCurve, nullptr, {}},
    {310, "mnuGraf_sub_database", 3, temperature, density, "S-Dichte aus Datenbankfunktion", curveFunctionOfT, "yT", DatabaseCurve, nullptr, {}},
    {305, "mnuGraf_sub_database", 4, temperature, vaporisation, "Verdampfungsenthalpie delta(LV)h = Fu(T), Datenbankfunktion", curveFunctionOfT, "yT", DatabaseCurve, nullptr, {}},
    {302, "mnuGraf_sub_database", 5, temperature, heatCapacityP, "Idealgas-Wärmekapazität cp = Fu(T), Datenbankfunktion", curveFunctionOfT, "yT", DatabaseCurve, nullptr, {}},
    {303, "mnuGraf_sub_database", 6, temperature, heatCapacityP, "Flüssigkeits-Wärmekapazität cp = Fu(T), Datenbankfunktion", curveFunctionOfT, "yT", DatabaseCurve, nullptr, {}},
    {304, "mnuGraf_sub_database", 7, temperature, heatCapacityP, "Feststoff-Wärmekapazität cp = Fu(T), Datenbankfunktion", curveFunctionOfT, "yT", DatabaseCurve, nullptr, {}},
    // set for one curve by the commands of the diagram window
    {12, "", -1, density, temperature, "Projektion T - rho", curveProjection, "Tr", CoexistenceTOverDensity, nullptr, {}},
    {80, "", -1, temperature, density, "Halbierende der Dichten", curveProjection, "rT", DensityDiameter, nullptr, {}},
    {70, "", -1, pressure, enthalpy, "Enthalpie h(p) im Phasengleichgewicht V - L", curveProjection, "yp", CoexistenceFunctionOverP, nullptr, Only(&CaloricValues::h)},
    {71, "", -1, pressure, entropy, "Entropie s(p) im Phasengleichgewicht V - L", curveProjection, "yp", CoexistenceFunctionOverP, nullptr, Only(&CaloricValues::s)},
    {72, "", -1, pressure, heatCapacityP, "Wärmekapazität cp(p) im Phasengleichgewicht V - L", curveProjection, "yp", CoexistenceFunctionOverP, nullptr, Only(&CaloricValues::cp)},
    {73, "", -1, pressure, freeEnthalpy, "Freie Enthalpie g(p) im Phasengleichgewicht V - L", curveProjection, "yp", CoexistenceFunctionOverP, nullptr, Only(&CaloricValues::g)},
    {74, "", -1, pressure, exergyH, "Exergie der Enthalpie e(p) im Phasengleichgewicht V - L", curveProjection, "yp", CoexistenceFunctionOverP, nullptr, Only(&CaloricValues::exergyH)},
    {75, "", -1, pressure, exergyU, "Exergie der Inneren Energie e(p) im Phasengleichgewicht V - L", curveProjection, "yp", CoexistenceFunctionOverP, nullptr, Only(&CaloricValues::exergyU)},
    {95, "", -1, temperature, exergyU, "Exergie der Inneren Energie e(T) im Phasengleichgewicht V - L", curveProjection, "yT", CoexistenceFunctionOverT, nullptr, Only(&CaloricValues::exergyU)},
    {98, "", -1, temperature, eosParameterA, "Parameter A(T) im Phasengleichgewicht V - L", curveProjection, "yT", CoexistenceParameterOverT, nullptr, {}},
    {99, "", -1, temperature, innerEnergy, "Innere Energie u(T) im Phasengleichgewicht V - L", curveProjection, "yT", CoexistenceFunctionOverT, nullptr, Only(&CaloricValues::u)},
    {89, "", -1, volume, heatCapacityV, "Wärmekapazität cV(V) im Phasengleichgewicht V - L", curveProjection, "yv", CoexistenceFunctionOverVolume, nullptr, Only(&CaloricValues::cv)},
    {97, "", -1, volume, freeEnergy, "Freie Energie a(V) im Phasengleichgewicht V - L", curveProjection, "yv", CoexistenceFunctionOverVolume, nullptr, Only(&CaloricValues::f)},
    {100, "", -1, volume, innerEnergy, "Innere Energie u(V) im Phasengleichgewicht V - L", curveProjection, "yv", CoexistenceFunctionOverVolume, nullptr, Only(&CaloricValues::u)},
    {101, "", -1, volume, entropy, "Entropie s(V) im Phasengleichgewicht V - L", curveProjection, "yv", CoexistenceFunctionOverVolume, nullptr, Only(&CaloricValues::s)},
    {102, "", -1, volume, exergyU, "Exergie der Inneren Energie e(V) im Phasengleichgewicht V - L", curveProjection, "yv", CoexistenceFunctionOverVolume, nullptr, Only(&CaloricValues::exergyU)},
    {96, "", -1, enthalpy, exergyH, "Exergie e(h) im Phasengleichgewicht V - L", curveProjection, "yy", CoexistencePair, nullptr, Pair(&CaloricValues::h, &CaloricValues::exergyH)},
    {120, "", -1, entropy, enthalpy, "Enthalpie h(s) im Phasengleichgewicht V - L", curveProjection, "yy", CoexistencePair, nullptr, Pair(&CaloricValues::s, &CaloricValues::h)},
    {121, "", -1, ambientEntropy, exergyH, "Exergie e(T(u) s) im Phasengleichgewicht V - L", curveProjection, "yy", CoexistencePair, nullptr, AmbientPair(&CaloricValues::exergyH)},
    {105, "", -1, temperature, pressure, "Inversionskurve p - T", curveInversion, "pT", InversionPOverT, nullptr, {}},
    {190, "", -1, pressure, pressureVolume, "Inversionskurve pv - p", curveInversion, "vp", InversionPvOverP, nullptr, {}},
};
// clang-format on

} // namespace

// A quantity that nobody thought of here had better be drawn again than lie.
bool DependsOnReference(Quantity quantity) {
    switch (quantity) {
    case Q::None:
    case Q::Temperature:
    case Q::Pressure:
    case Q::Volume:
    case Q::Density:
    case Q::PressureVolume:
    case Q::InverseTemperature:
    case Q::LogPressure:
    case Q::VapourPressureSlope:
    case Q::JouleThomson:
    case Q::VaporisationEnthalpy:
    case Q::HeatCapacityP:
    case Q::HeatCapacityV:
    case Q::IsochoricHeatCapacity:
    case Q::ResidualEnthalpy:
    case Q::ResidualEntropy:
    case Q::ResidualFreeEnthalpy:
    case Q::ResidualHeatCapacity:
    case Q::EosParameterA:
        return false;
    default:
        return true;
    }
}

std::span<const DiagramRow> Catalogue() {
    return rows;
}

const DiagramRow* FindDiagram(int type) {
    for (const DiagramRow& row : rows)
        if (row.type == type)
            return &row;
    return nullptr;
}

const DiagramRow* FindDiagram(std::string_view command, int index) {
    for (const DiagramRow& row : rows)
        if (row.command == command && row.index == index)
            return &row;
    return nullptr;
}

bool NamesVapourPressure(int type) {
    return type == 10 || type == 11;
}

} // namespace orva
