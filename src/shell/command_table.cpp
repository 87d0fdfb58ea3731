// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/command_table.h"

#include <algorithm>
#include <iterator>

#include "calc/calculation_state.h"

namespace orva {

namespace {

using enum CommandKind;
using enum CommandAction;

constexpr int globalVessel = 15, partialVessel = 16; // entries of the calculation menu

// clang-format off
constexpr CommandRow commandTable[] = {
    {"mnuData", noIndex, "", noIndex, "  &Daten...", Menu},
    {"mnuData_OpenBank", noIndex, "mnuData", noIndex, "Datenbank öffnen...", Command, OpenDatabase},
    {"mnuData_Status", noIndex, "mnuData", noIndex, "geladen sind ...", Command, ShowStatus},
    {"mnuData_LoadLastSession", noIndex, "mnuData", noIndex, "letzte Sitzung laden", Command, LoadLastSession},
    {"mnuData_LoadProject", noIndex, "mnuData", noIndex, "existierendes Projekt laden ...", Command, LoadProject},
    {"mnuData_SaveProject", noIndex, "mnuData", noIndex, "aktuelles Projekt speichern unter ...", Command, SaveProject},
    {"mnuData_BatchInput", noIndex, "mnuData", noIndex, "exper. Daten für Diagramm, Fitting, Batchrechnung       NEU                     "},
    {"mnuData_BatchEdit", noIndex, "mnuData", noIndex, "exper. Daten für Diagramm, Fitting, Batchrechnung       Sichten / Editieren"},
    {"mnuData_EditStoffdaten", noIndex, "mnuData", noIndex, "Stoffdatenbank-Editor"},
    {"mnuData_EditXY", noIndex, "mnuData", noIndex, "XY-Editor (X-Y-Daten eingeben | laden )"},
    {"mnuData_ParameterEOS", noIndex, "mnuData", noIndex, "Parameter EOS; berechnetes kritisches Molvolumen", Command, ShowEosParameters},
    {"mnuJOBACK", noIndex, "mnuData", noIndex, "Abschätzung von Stoffdaten aus Molekül-Strukturgruppen", Menu},
    {"mnuData_JOBACK_CritData", noIndex, "mnuJOBACK", noIndex, "Kritische Daten nach LYDERSEN/JOBACK, azentr. Faktor"},
    {"mnuData_JOBACK_bildung", noIndex, "mnuJOBACK", noIndex, "Bildungsgrößen (Idealgas-Zustand) nach JOBACK"},
    {"mnuData_JOBACK_cpIdG", noIndex, "mnuJOBACK", noIndex, "Wärmekapazität (Idealgas-Zustand) nach JOBACK"},
    {"mnuData_Exit", noIndex, "mnuData", noIndex, "E&xit                                            Alt+F4", Command, Exit},

    {"mnuStoff", noIndex, "", noIndex, "&Stoffwahl", Command, ChooseSubstance},
    {"mnuModel", noIndex, "", noIndex, "&Modelle", Command, ChooseModels},

    {"mnu2D", noIndex, "", noIndex, "Diagramme-&2D...", Menu},
    {"mnuGraf", 0, "mnu2D", noIndex, "Variable T, p, v:  Schnitte isotherm, isobar, isochor", Menu},
    {"mnuGraf_sub_cut", 1, "mnuGraf", 0, "isotherm p - v", Command, Draw, 1},
    {"mnuGraf_sub_cut", 2, "mnuGraf", 0, "isotherm rho - p", Command, Draw, 26},
    {"mnuGraf_sub_cut", 3, "mnuGraf", 0, "isotherm pv - p", Command, Draw, 2},
    {"mnuGraf_sub_cut", 4, "mnuGraf", 0, "", Separator},
    {"mnuGraf_sub_cut", 5, "mnuGraf", 0, "isobar T - v", Command, Draw, 3},
    {"mnuGraf_sub_cut", 6, "mnuGraf", 0, "isobar T - rho", Command, Draw, 4},
    {"mnuGraf_sub_cut", 7, "mnuGraf", 0, "", Separator},
    {"mnuGraf_sub_cut", 8, "mnuGraf", 0, "isochor p - T", Command, Draw, 5},
    {"mnuGraf", 1, "mnu2D", noIndex, "thermodynam. Funktionen  z = Fu(T)", Menu},
    {"mnuGraf_sub_FuT", 1, "mnuGraf", 1, "diff. Joule-Thomson-Koeff.    (isobar)", Command, Draw, 34},
    {"mnuGraf_sub_FuT", 2, "mnuGraf", 1, "", Separator},
    {"mnuGraf_sub_FuT", 3, "mnuGraf", 1, "Enthalpie h(T)                        (isobar)", Command, Draw, 15},
    {"mnuGraf_sub_FuT", 4, "mnuGraf", 1, "Entropie s(T)                          (isobar)", Command, Draw, 16},
    {"mnuGraf_sub_FuT", 5, "mnuGraf", 1, "g(T) = h - T*s                         (isobar)", Command, Draw, 17},
    {"mnuGraf_sub_FuT", 6, "mnuGraf", 1, "Exergie der Enthalpie e(T)     (isobar)", Command, Draw, 18},
    {"mnuGraf_sub_FuT", 7, "mnuGraf", 1, "Wärmekapazität  cp(T)          (isobar)", Command, Draw, 19},
    {"mnuGraf_sub_FuT", 8, "mnuGraf", 1, "", Separator},
    {"mnuGraf_sub_FuT", 9, "mnuGraf", 1, "Entropie s(T)                          (isochor)", Command, Draw, 184},
    {"mnuGraf_sub_FuT", 10, "mnuGraf", 1, "Innere Energie u(T)                (isochor)", Command, Draw, 183},
    {"mnuGraf_sub_FuT", 11, "mnuGraf", 1, "Freie Energie a(T)                  (isochor)", Command, Draw, 182},
    {"mnuGraf_sub_FuT", 12, "mnuGraf", 1, "Exergie der Inn. Energie e(T)  (isochor)", Command, Draw, 181},
    {"mnuGraf_sub_FuT", 13, "mnuGraf", 1, "Wärmekapazität  cV(T)           (isochor)", Command, Draw, 185},
    {"mnuGraf", 2, "mnu2D", noIndex, "thermodynam. Funktionen  z = Fu(p)", Menu},
    {"mnuGraf_sub_Fup", 1, "mnuGraf", 2, "Enthalpie h(p)                (isotherm)", Command, Draw, 150},
    {"mnuGraf_sub_Fup", 2, "mnuGraf", 2, "Entropie s(p)                  (isotherm)", Command, Draw, 151},
    {"mnuGraf_sub_Fup", 3, "mnuGraf", 2, "g(p) = h - T*s                  (isotherm)", Command, Draw, 152},
    {"mnuGraf_sub_Fup", 4, "mnuGraf", 2, "Exergie der Enthalpie e(p)  (isotherm)", Command, Draw, 153},
    {"mnuGraf_sub_Fup", 5, "mnuGraf", 2, "Wärmekapaz. cp(p)        (isotherm)", Command, Draw, 154},
    {"mnuGraf", 3, "mnu2D", noIndex, "thermodynam. Funktionen  z = Fu(V)", Menu},
    {"mnuGraf_sub_FuV", 1, "mnuGraf", 3, "Entropie s(V)              (isotherm)", Command, Draw, 158},
    {"mnuGraf_sub_FuV", 2, "mnuGraf", 3, "Innere Energie u(V)    (isotherm)", Command, Draw, 157},
    {"mnuGraf_sub_FuV", 3, "mnuGraf", 3, "Freie Energie a(V)      (isotherm)", Command, Draw, 156},
    {"mnuGraf_sub_FuV", 4, "mnuGraf", 3, "Exergie der Inneren Energie e(V)   (isotherm)", Command, Draw, 160},
    {"mnuGraf_sub_FuV", 5, "mnuGraf", 3, "Wärmekapaz. cV(V)    (isotherm)", Command, Draw, 159},
    {"mnuGraf", 4, "mnu2D", noIndex, "Residualfunktionen (z - z_idG) = Fu(T)", Menu},
    {"mnuGraf_sub_res_FuT", 1, "mnuGraf", 4, "resid. Enthalpie            (h - h_idG) (isobar)", Command, Draw, 31},
    {"mnuGraf_sub_res_FuT", 2, "mnuGraf", 4, "resid. Entropie             (s - s_idG)  (isobar)", Command, Draw, 30},
    {"mnuGraf_sub_res_FuT", 3, "mnuGraf", 4, "resid. Freie Enthalpie   (g - g_idG) = RT ln(phi)  (isobar)", Command, Draw, 32},
    {"mnuGraf_sub_res_FuT", 4, "mnuGraf", 4, "resid. Wärmekapazität (cp - c_idG) (isobar)", Command, Draw, 33},
    {"mnuGraf", 5, "mnu2D", noIndex, "Residualfunktionen (z - z_idG) = Fu(p)", Menu},
    {"mnuGraf_sub_res_Fup", 1, "mnuGraf", 5, "resid. Enthalpie            (h - h_idG) (isotherm)", Command, Draw, 41},
    {"mnuGraf_sub_res_Fup", 2, "mnuGraf", 5, "resid. Entropie             (s - s_idG)  (isotherm)", Command, Draw, 40},
    {"mnuGraf_sub_res_Fup", 3, "mnuGraf", 5, "resid. Freie Enthalpie   (g - g_idG) = RT ln(phi)  (isotherm)", Command, Draw, 42},
    {"mnuGraf_sub_res_Fup", 4, "mnuGraf", 5, "resid. Wärmekapazität (cp - c_idG) (isotherm)", Command, Draw, 43},
    {"mnuGraf", 6, "mnu2D", noIndex, "Enthalpie h vs. Entropie s ", Menu},
    {"mnuGraf_sub_HS", 0, "mnuGraf", 6, "isotherm", Command, Draw, 107},
    {"mnuGraf_sub_HS", 1, "mnuGraf", 6, "isobar", Command, Draw, 24},
    {"mnuGraf", 7, "mnu2D", noIndex, "Exergie der Enthalpie e vs. T(u) * Entropie", Menu},
    {"mnuGraf_sub_ES", 0, "mnuGraf", 7, "isotherm", Command, Draw, 109},
    {"mnuGraf_sub_ES", 1, "mnuGraf", 7, "isobar", Command, Draw, 23},
    {"mnuGraf", 8, "mnu2D", noIndex, "Exergie der Enthalpie e vs. Enthalpie", Menu},
    {"mnuGraf_sub_EH", 0, "mnuGraf", 8, "isotherm", Command, Draw, 21},
    {"mnuGraf_sub_EH", 1, "mnuGraf", 8, "isobar", Command, Draw, 22},
    {"mnuGraf", 9, "mnu2D", noIndex, "Projektionen (Phasengleichgewicht V - L)", Menu},
    {"mnuGraf_sub_proj", 0, "mnuGraf", 9, "Verdampf.-enthalpie delta(LV)h(T) entspr. Einstellung \"Modelle\"", Command, Draw, 13},
    {"mnuGraf_sub_proj", 1, "mnuGraf", 9, "Druck p(v)", Command, Draw, 6},
    {"mnuGraf_sub_proj", 2, "mnuGraf", 9, "Dichte rho( p)", Command, Draw, 27},
    {"mnuGraf_sub_proj", 3, "mnuGraf", 9, "pv( p)", Command, Draw, 106},
    {"mnuGraf_sub_proj", 4, "mnuGraf", 9, "Temperatur T( v)", Command, Draw, 7},
    {"mnuGraf_sub_proj", 5, "mnuGraf", 9, "Dichte rho(T)", Command, Draw, 8},
    {"mnuGraf_sub_proj", 6, "mnuGraf", 9, "Druck p(T)", Command, Draw, 9},
    {"mnuGraf_sub_proj", 7, "mnuGraf", 9, "", Separator},
    {"mnuGraf_sub_proj", 8, "mnuGraf", 9, "Enthalpie h(T)", Command, Draw, 90},
    {"mnuGraf_sub_proj", 9, "mnuGraf", 9, "Entropie s(T)", Command, Draw, 91},
    {"mnuGraf_sub_proj", 10, "mnuGraf", 9, "Freie Enthalpie g(T)", Command, Draw, 93},
    {"mnuGraf_sub_proj", 11, "mnuGraf", 9, "Exergie der Enthalpie e(T)", Command, Draw, 94},
    {"mnuGraf_sub_proj", 12, "mnuGraf", 9, "Wärmekapazität cp(T)", Command, Draw, 92},
    {"mnuGraf_sub_proj", 13, "mnuGraf", 9, "", Separator},
    {"mnuGraf_sub_proj", 14, "mnuGraf", 9, "ln(p(LV)) vs. 1/T", Command, Draw, 10},
    {"mnuGraf_sub_proj", 15, "mnuGraf", 9, "d(ln(p)/d(1/T) vs. 1/T", Command, Draw, 11},
    {"mnuGraf", 10, "mnu2D", noIndex, "Datenbankfunktionen Fu(T)", Menu},
    {"mnuGraf_sub_database", 0, "mnuGraf", 10, "Sättigungsdampfdruck", Menu},
    {"mnuGraf_sub_sub_database", 0, "mnuGraf_sub_database", 0, "erweiterte Frost-Kalkwarf-Gleichung", Command, Draw, 306},
    {"mnuGraf_sub_sub_database", 1, "mnuGraf_sub_database", 0, "Wagner-Gleichung", Command, Draw, 307},
    {"mnuGraf_sub_sub_database", 2, "mnuGraf_sub_database", 0, "Antoine-Gleichung (Lo-p)", Command, Draw, 308},
    {"mnuGraf_sub_sub_database", 3, "mnuGraf_sub_database", 0, "Antoine-Gleichung (Hi-p)", Command, Draw, 309},
    {"mnuGraf_sub_database", 1, "mnuGraf", 10, "L-Dichte", Command, Draw, 300},
    {"mnuGraf_sub_database", 2, "mnuGraf", 10, "     V,molar | V,spez. | V,red. (=> Optionen)", Command, Draw, 301},
    {"mnuGraf_sub_database", 3, "mnuGraf", 10, "S-Dichte", Command, Draw, 310},
    {"mnuGraf_sub_database", 4, "mnuGraf", 10, "Verdampfungsenthalpie", Command, Draw, 305},
    {"mnuGraf_sub_database", 5, "mnuGraf", 10, "Idealgas-Wärmekapazität", Command, Draw, 302},
    {"mnuGraf_sub_database", 6, "mnuGraf", 10, "L-Wärmekapazität", Command, Draw, 303},
    {"mnuGraf_sub_database", 7, "mnuGraf", 10, "S-Wärmekapazität", Command, Draw, 304},

    {"mnu3D", noIndex, "", noIndex, "Diagramme-&3D...", Menu},
    {"mnu3DSub", 0, "mnu3D", noIndex, "Druck                     p(v, T) "},
    {"mnu3DSub", 1, "mnu3D", noIndex, "Volumen                 v(p, T)"},
    {"mnu3DSub", 2, "mnu3D", noIndex, "Temperatur            T(p, v)"},
    {"mnu3DSub", 3, "mnu3D", noIndex, "", Separator},
    {"mnu3DSub", 4, "mnu3D", noIndex, "Wärmekapazität     cp(p, T)"},
    {"mnu3DSub", 5, "mnu3D", noIndex, "Enthalpie                h(p, T)"},
    {"mnu3DSub", 6, "mnu3D", noIndex, "Entropie                 s(p, T)"},
    {"mnu3DSub", 7, "mnu3D", noIndex, "Freie Enthalpie       g(p, T)"},
    {"mnu3DSub", 8, "mnu3D", noIndex, "Exergie von H         e(p, T)"},

    {"mnuCalcMain", noIndex, "", noIndex, "&Berechnung...", Menu},
    {"mnuCalc", 0, "mnuCalcMain", noIndex, "T, rho      => p, Zustand L/V    + thermod. Fu.", Command, Calculate, kindTRho},
    {"mnuCalc", 1, "mnuCalcMain", noIndex, "T, rho(L)  => p, Zustand L/V    + thermod. Fu.", Command, Calculate, kindTRhoLiquid},
    {"mnuCalc", 2, "mnuCalcMain", noIndex, "T, p         => rho, Zustand L/V + thermod. Fu.", Command, Calculate, kindTP},
    {"mnuCalc", 3, "mnuCalcMain", noIndex, "p, rho      => T, Zustand L/V    + thermod. Fu.", Command, Calculate, kindPRho},
    {"mnuCalc", 4, "mnuCalcMain", noIndex, "", Separator},
    {"mnuCalc", 5, "mnuCalcMain", noIndex, "L-V-Gleichgewicht: T => p(LV), [rho(L), rho(V)] + Fu. ", Command, Calculate, kindSaturationPressure},
    {"mnuCalc", 6, "mnuCalcMain", noIndex, "L-V-Gleichgewicht: p => T(LV), [rho(L), rho(V)] + Fu.", Command, Calculate, kindSaturationTemperature},
    {"mnuCalc", 7, "mnuCalcMain", noIndex, "", Separator},
    {"mnuCalc", 8, "mnuCalcMain", noIndex, "Verdampfungsenthalpie: T => delta(LV)h", Command, Calculate, kindVaporisationAtT},
    {"mnuCalc", 9, "mnuCalcMain", noIndex, "Verdampfungsenthalpie: p => delta(LV)h", Command, Calculate, kindVaporisationAtP},
    {"mnuCalc", 10, "mnuCalcMain", noIndex, "", Separator},
    {"mnuCalc", 11, "mnuCalcMain", noIndex, "Thermodynam. Funktionen: T, p => h, u, s, g, a, e,  cp, ...", Command, Calculate, kindFunctions},
    {"mnuCalc", 12, "mnuCalcMain", noIndex, "", Separator},
    {"mnuCalc", 13, "mnuCalcMain", noIndex, "Polytropen-Prozess", Command, None, kindPolytrope},
    {"mnuCalc", 14, "mnuCalcMain", noIndex, "", Separator},
    {"mnuCalc", 15, "mnuCalcMain", noIndex, "Behälter  (T, m, v => p, v(L)/v(V)), Global-Berechnungsmethode", Command, Calculate, kindVesselGlobal},
    {"mnuCalc", 16, "mnuCalcMain", noIndex, "Behälter  (T, m, v => p, v(L)/v(V)), Partial-Berechnungsmethode", Command, Calculate, kindVesselPartial},
    {"mnuCalc", 17, "mnuCalcMain", noIndex, "", Separator},
    {"mnuCalc", 18, "mnuCalcMain", noIndex, "T => 2. Virialkoeffizienten B", Command, Calculate, kindVirialComparison},
    {"mnuCalc", 19, "mnuCalcMain", noIndex, "", Separator},
    {"mnuCalc", 20, "mnuCalcMain", noIndex, "Datenbankfunktionen F(T)", Menu},
    {"mnuCalc_sub_database", 0, "mnuCalc", 20, "Sättigungsdampfdruck", Menu},
    {"mnuCalc_sub_sub_database", 0, "mnuCalc_sub_database", 0, "erweiterte Frost-Kalkwarf-Gleichung", Command, Calculate, kindFrostKalkwarf},
    {"mnuCalc_sub_sub_database", 1, "mnuCalc_sub_database", 0, "Wagner-Gleichung", Command, Calculate, kindWagner},
    {"mnuCalc_sub_sub_database", 2, "mnuCalc_sub_database", 0, "Antoine-Gleichung (Lo-p)", Command, Calculate, kindAntoineLow},
    {"mnuCalc_sub_sub_database", 3, "mnuCalc_sub_database", 0, "Antoine-Gleichung (Hi-p)", Command, Calculate, kindAntoineHigh},
    {"mnuCalc_sub_database", 1, "mnuCalc", 20, "L-Dichte", Command, Calculate, kindLiquidDensity},
    {"mnuCalc_sub_database", 2, "mnuCalc", 20, "S-Dichte", Command, Calculate, kindSolidDensity},
    {"mnuCalc_sub_database", 3, "mnuCalc", 20, "Verdampfungsenthalpie", Command, Calculate, kindVaporisationDb},
    {"mnuCalc_sub_database", 4, "mnuCalc", 20, "Idealgas-Wärmekapazität", Command, Calculate, kindIdealGasCp},
    {"mnuCalc_sub_database", 5, "mnuCalc", 20, "L-Wärmekapazität", Command, Calculate, kindLiquidCp},
    {"mnuCalc_sub_database", 6, "mnuCalc", 20, "S-Wärmekapazität", Command, Calculate, kindSolidCp},

    {"mnuFitting", noIndex, "", noIndex, "&Fitting"},
    {"mnuOptions", noIndex, "", noIndex, "&Optionen", Command, ShowOptions},
    {"mnuWindow", noIndex, "", noIndex, "Fenster...", Menu},
    {"mnuHilfe", noIndex, "", noIndex, "&Hilfe...", Menu},
    {"mnuHilfe_About", noIndex, "mnuHilfe", noIndex, "Über das Programm", Command, About},
    {"mnuHilfe_Index", noIndex, "mnuHilfe", noIndex, "Hilfeindex", Command, Help},
    {"mnuHilfe_Tip", noIndex, "mnuHilfe", noIndex, "Zeige Tipps", Command, ShowTips},
    {"mnuHilfe_AboutText", noIndex, "mnuHilfe", noIndex, "ORVA-6, Lizenz und Kontakt", Command, About},
};

constexpr ToolbarRow toolbarTable[] = {
    {2, " Neues Projekt ", "mnuData_OpenBank"},
    {4, " Letzte Sitzung laden ", "mnuData_LoadLastSession"},
    {6, " Existierendes Projekt laden ", "mnuData_LoadProject"},
    {7, " Aktuelles Projekt speichern ", "mnuData_SaveProject"},
    {11, " Normierung thermodynamischer Funktionen ", "", noIndex, ShowReference},
    {15, " Behälterberechnung (Global-Methode)", "mnuCalc", globalVessel},
};
// clang-format on

} // namespace

std::span<const CommandRow> CommandTable() {
    return commandTable;
}

std::span<const ToolbarRow> ToolbarTable() {
    return toolbarTable;
}

int ToolbarCommand(const ToolbarRow& button, const ModelSelection& selection) {
    const bool isVessel = button.commandIndex == globalVessel;
    return FindCommand(button.command,
                       isVessel && !selection.eosPriority ? partialVessel : button.commandIndex);
}

std::string CommandKey(std::string_view name, int index) {
    std::string key(name);
    if (index != noIndex)
        key.append("(").append(std::to_string(index)).append(")");
    return key;
}

int FindCommand(std::string_view name, int index) {
    const auto row =
        std::find_if(std::begin(commandTable), std::end(commandTable), [&](const CommandRow& candidate) {
            return candidate.name == name && candidate.index == index;
        });
    return row == std::end(commandTable) ? -1 : static_cast<int>(row - std::begin(commandTable));
}

} // namespace orva
