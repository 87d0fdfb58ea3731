// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/name_tables.h"

namespace orva {

namespace {

constexpr std::size_t modelNameWidth = 35;
constexpr std::size_t derivativeLabelWidth = 14;
constexpr std::string_view vaporPressureCodes = "ALP.AHP.FRO.WAG.AUG.KFW.KFR.THO";

constexpr std::array<std::string_view, 17> eosNames = {
    "Idealgas-EOS ",
    "",
    "CEOS van der Waals",
    "CEOS Berthelot",
    "CEOS Redlich / Kwong",
    "CEOS Soave / Redlich / Kwong",
    "CEOS Peng / Robinson",
    "CEOS Vo / Halme I   ",
    "CEOS Vo / Halme II  ",
    "",
    "VIRIAL-Gl. Hand-Eingabe",
    "VIRIAL-Gl. Van der Waals",
    "VIRIAL-Gl. Berthelot",
    "VIRIAL-Gl. Redlich / Kwong",
    "VIRIAL-Gl. Soave / Redlich / Kwong",
    "VIRIAL-Gl. Peng / Robinson  ",
    "VIRIAL-Gl. Pitzer / Curl     ",
};

constexpr std::array<std::string_view, 9> vaporPressureNames = {
    "keine",
    "Antoine (T < Normalsiede-T)",
    "Antoine (T > Normalsiede-T)",
    "            Frost/Kalkwarf",
    "                    Wagner",
    "       August (korreliert)",
    "Fro/Kalk (v.d.Waals korreliert)",
    "Fro/Kalk (Redl./Kwong korreliert)",
    "Antoine  (Thompson korreliert)",
};

constexpr std::array<std::string_view, 7> vaporizationModelNames = {
    "Gleichung Fu(T) aus Datenbank ",  "Chen-Korrelation",
    "Carruth/Kobayashi-Korrelation",   "Watson-Korrelation",
    "aus Dampfdruckgl.+ rhoL(T)",      "aus Dampfdruckgl.+ Benson",
    "aus kub.-EOS (Globalberechnung)",
};

constexpr std::array<std::string_view, 3> cpModelNames = {
    "(keine Gleichung vorhanden)   ",
    "Polynomansatz",
    "sinh/cosh-Ansatz",
};

constexpr std::array<std::string_view, 24> derivativeLabels = {
    " (dp/dV) bei T",
    " (dp/dT) bei v",
    " (dV/dp) bei T",
    " (dV/dT) bei p",
    " (dT/dV) bei p",
    " (dT/dp) bei v",
    " alpha/(1/K)  ",
    "   chi/(1/kPa)",
    "  beta/(1/K)  ",
    "       d2p/dV²",
    "",
    "",
    "       d2V/dT²",
    "       d2T/dV²",
    "     ln (phi*)",
    "    dln phi/dT",
    "  d2ln phi/dT²",
    "   (s-s_idG)/R",
    "   (h-h_idG)/R",
    "   (g-g_idG)/R",
    " (cp-cp_idG)/R",
    " (dT/dp) bei H",
    " cv/kJ/kmol/K ",
    " cp/kJ/kmol/K ",
};

// Characters, not bytes: the labels hold a "²".
std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (const char c : text)
        count += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U ? 1 : 0;
    return count;
}

template<std::size_t n>
std::array<std::string, n> Padded(const std::array<std::string_view, n>& texts, std::size_t width) {
    std::array<std::string, n> table;
    for (std::size_t i = 0; i < n; ++i) {
        const std::size_t length = CharacterCount(texts[i]);
        table[i] = std::string(texts[i]) + std::string(length < width ? width - length : 0, ' ');
    }
    return table;
}

} // namespace

NameTables FillNameTables() {
    return {Padded(eosNames, modelNameWidth), Padded(vaporPressureNames, modelNameWidth),
            Padded(vaporizationModelNames, modelNameWidth), Padded(cpModelNames, modelNameWidth),
            Padded(derivativeLabels, derivativeLabelWidth)};
}

std::string_view VaporPressureCodeOf(int vaporPressure) {
    if (vaporPressure < 1 || vaporPressure > 8)
        return "000";
    return vaporPressureCodes.substr(4 * static_cast<std::size_t>(vaporPressure) - 4, 3);
}

int VaporPressureIndexOf(std::string_view code) {
    for (int index = 1; index <= 8; ++index)
        if (VaporPressureCodeOf(index) == code)
            return index;
    return 0;
}

} // namespace orva
