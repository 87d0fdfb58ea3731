// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/command_states.h"

#include <cmath>

#include "state/constants.h"

namespace orva {

namespace {

using Condition = bool (*)(const PhaseFacts&);

bool Given(double x) {
    return std::abs(x) > missingValue;
}

bool Always(const PhaseFacts&) {
    return true;
}
bool Never(const PhaseFacts&) {
    return false;
}
bool IsCubic(const PhaseFacts& f) {
    return !f.selection.nonCubic;
}
bool HasCriticalData(const PhaseFacts& f) {
    return f.substance.Tc > missingValue && f.substance.pc > missingValue;
}
bool HasLiquidDensity(const PhaseFacts& f) {
    return Given(f.substance.rhoLiquid.r1) || Given(f.substance.rhoLiquid.r2);
}
bool HasSolidDensity(const PhaseFacts& f) {
    return Given(f.substance.rhoSolid.s1) || Given(f.substance.rhoSolid.s2);
}
bool HasVaporisation(const PhaseFacts& f) {
    return f.substance.hVapFunction.Tlo > missingValue;
}
bool HasIdealGasCp(const PhaseFacts& f) {
    return f.substance.cpPolynomial.Tlo > missingValue || f.substance.cpSinhCosh.Tlo > missingValue;
}
bool HasLiquidCp(const PhaseFacts& f) {
    return f.substance.cpLiquid.Tlo > missingValue;
}
bool HasSolidCp(const PhaseFacts& f) {
    return f.substance.cpSolid.Tlo > missingValue;
}
template<auto block> bool HasRange(const PhaseFacts& f) {
    return (f.substance.*block).Tlo > missingValue && (f.substance.*block).Thi > missingValue;
}

enum class RuleEffect : std::uint8_t {
    Enable,     // enabled = condition
    EnableIfSo, // enabled where the condition holds, else as it was
    Show,       // visible = condition
    Name        // text, where the condition holds
};

// A rule on a menu command; a rule on a toolbar button has the name "toolbar".
struct EnablingRule {
    SessionEvent event;
    std::string_view name;
    int index;
    RuleEffect effect;
    Condition condition;
    std::string_view text = "";
};

constexpr std::string_view toolbarName = "toolbar";

using enum SessionEvent;
using enum RuleEffect;

// clang-format off
constexpr EnablingRule enablingRules[] = {
    {Start, "mnuStoff", noIndex, Enable, Never},
    {Start, "mnuModel", noIndex, Enable, Never},
    {Start, "mnuData_ParameterEOS", noIndex, Enable, Never},
    {Start, toolbarName, 11, Enable, Never},
    {Start, toolbarName, 15, Enable, Never},
    {Start, "mnuData_BatchInput", noIndex, Enable, Never},
    {Start, "mnuData_BatchEdit", noIndex, Enable, Never},
    {Start, "mnuData_EditStoffdaten", noIndex, Enable, Never},

    {ModelStateReset, "mnuCalcMain", noIndex, Enable, Never},
    {ModelStateReset, "mnuOptions", noIndex, Enable, Never},
    {ModelStateReset, "mnuFitting", noIndex, Enable, Never},
    {ModelStateReset, "mnu2D", noIndex, Enable, Never},
    {ModelStateReset, "mnu3D", noIndex, Enable, Never},
    {ModelStateReset, "mnuData_SaveProject", noIndex, Enable, Never},
    {ModelStateReset, toolbarName, 7, Enable, Never},

    {DatabaseOpened, "mnuModel", noIndex, Enable, Never},
    {DatabaseOpened, "mnuCalcMain", noIndex, Enable, Never},
    {DatabaseOpened, "mnuOptions", noIndex, Enable, Never},
    {DatabaseOpened, "mnuFitting", noIndex, Enable, Never},
    {DatabaseOpened, "mnu2D", noIndex, Enable, Never},
    {DatabaseOpened, "mnu3D", noIndex, Enable, Never},
    {DatabaseOpened, "mnuStoff", noIndex, Enable, Always},
    {DatabaseOpened, "mnuData_EditStoffdaten", noIndex, Enable, Always},
    {DatabaseOpened, "mnuData_BatchInput", noIndex, Enable, Always},

    {SubstanceAccepted, "mnuData_EditStoffdaten", noIndex, Enable, Always},
    {SubstanceAccepted, "mnuModel", noIndex, Enable, HasCriticalData},
    {SubstanceAccepted, "mnuData_SaveProject", noIndex, Enable, Always},
    {SubstanceAccepted, toolbarName, 7, Enable, Always},
    {SubstanceAccepted, toolbarName, 11, Enable, Always},
    {SubstanceAccepted, toolbarName, 15, Enable, Always},

    {SubstanceUnusable, "mnuModel", noIndex, Enable, Never},

    {ModelsAccepted, "mnuModel", noIndex, Enable, Always},
    {ModelsAccepted, "mnuData_ParameterEOS", noIndex, Enable, Always},
    {ModelsAccepted, "mnuCalcMain", noIndex, Enable, Always},
    {ModelsAccepted, "mnuOptions", noIndex, Enable, Always},
    {ModelsAccepted, "mnuFitting", noIndex, Enable, Always},
    {ModelsAccepted, "mnu2D", noIndex, Enable, Always},
    {ModelsAccepted, "mnu3D", noIndex, Enable, Always},
    {ModelsAccepted, "mnu3DSub", 1, Enable, IsCubic},
    {ModelsAccepted, "mnuCalc", 15, Enable, IsCubic},
    {ModelsAccepted, "mnuCalc", 18, Enable, Always},

    {ProjectLoaded, "mnuData_Status", noIndex, Enable, Always},
    {ProjectLoaded, "mnuStoff", noIndex, Enable, Always},
    {ProjectLoaded, "mnuModel", noIndex, Enable, HasCriticalData},
    {ProjectLoaded, "mnuData_EditStoffdaten", noIndex, Enable, Always},
    {ProjectLoaded, "mnuData_BatchInput", noIndex, Enable, Always},
    {ProjectLoaded, "mnuData_SaveProject", noIndex, Enable, Always},
    {ProjectLoaded, toolbarName, 7, Enable, Always},
    {ProjectLoaded, toolbarName, 11, Enable, Always},
    {ProjectLoaded, toolbarName, 15, Enable, Always},

    {DataMenuOpened, "mnuData_BatchEdit", noIndex, EnableIfSo, [](const PhaseFacts& f) { return f.batchRowCount > 0; }},

    {CalculationMenuOpened, "mnuCalc", 18, Name, IsCubic, "T => Virialkoeffizienten B, Parameter der CEOS"},
    {CalculationMenuOpened, "mnuCalc", 18, Name, [](const PhaseFacts& f) { return f.selection.nonCubic; }, "T => Virialkoeffizienten B"},

    {DatabaseFunctionsOpened, "mnuCalc_sub_database", 1, Enable, HasLiquidDensity},
    {DatabaseFunctionsOpened, "mnuCalc_sub_database", 2, Enable, HasSolidDensity},
    {DatabaseFunctionsOpened, "mnuCalc_sub_database", 3, Enable, HasVaporisation},
    {DatabaseFunctionsOpened, "mnuCalc_sub_database", 4, Enable, HasIdealGasCp},
    {DatabaseFunctionsOpened, "mnuCalc_sub_database", 5, Enable, HasLiquidCp},
    {DatabaseFunctionsOpened, "mnuCalc_sub_database", 6, Enable, HasSolidCp},

    {VapourPressureFunctionsOpened, "mnuCalc_sub_sub_database", 0, Enable, HasRange<&SubstanceData::frostKalkwarf>},
    {VapourPressureFunctionsOpened, "mnuCalc_sub_sub_database", 1, Enable, HasRange<&SubstanceData::wagner>},
    {VapourPressureFunctionsOpened, "mnuCalc_sub_sub_database", 2, Enable, HasRange<&SubstanceData::antoineLow>},
    {VapourPressureFunctionsOpened, "mnuCalc_sub_sub_database", 3, Enable, HasRange<&SubstanceData::antoineHigh>},

    {DiagramFunctionsOpened, "mnuGraf_sub_database", 1, Enable, HasLiquidDensity},
    {DiagramFunctionsOpened, "mnuGraf_sub_database", 2, Enable, HasLiquidDensity},
    {DiagramFunctionsOpened, "mnuGraf_sub_database", 3, Enable, HasSolidDensity},
    {DiagramFunctionsOpened, "mnuGraf_sub_database", 4, Enable, HasVaporisation},
    {DiagramFunctionsOpened, "mnuGraf_sub_database", 5, Enable, HasIdealGasCp},
    {DiagramFunctionsOpened, "mnuGraf_sub_database", 6, Enable, HasLiquidCp},
    {DiagramFunctionsOpened, "mnuGraf_sub_database", 7, Enable, HasSolidCp},

    {DiagramVapourPressuresOpened, "mnuGraf_sub_sub_database", 0, Enable, HasRange<&SubstanceData::frostKalkwarf>},
    {DiagramVapourPressuresOpened, "mnuGraf_sub_sub_database", 1, Enable, HasRange<&SubstanceData::wagner>},
    {DiagramVapourPressuresOpened, "mnuGraf_sub_sub_database", 2, Enable, HasRange<&SubstanceData::antoineLow>},
    {DiagramVapourPressuresOpened, "mnuGraf_sub_sub_database", 3, Enable, HasRange<&SubstanceData::antoineHigh>},

    {BatchModeOn, "mnuCalc", 15, Enable, Never},
    {BatchModeOn, "mnuCalc", 16, Enable, Never},
    {BatchModeOn, "mnuCalc", 1, Show, Always},
    {BatchModeOn, "mnuCalc", 2, Show, Always},
    {BatchModeOn, "mnuCalc", 3, Show, Always},
    {BatchModeOn, "mnuCalc", 0, Name, Always, "Spalten T, rho(V) => p, Zustand L/V     + thermod. Fu."},
    {BatchModeOn, "mnuCalc", 1, Name, Always, "Spalten T, rho(L) => p, Zustand L/V     + thermod. Fu."},
    {BatchModeOn, "mnuCalc", 2, Name, Always, "Spalten T, p         => rho, Zustand L/V  + thermod. Fu."},
    {BatchModeOn, "mnuCalc", 3, Name, Always, "Spalten p, rho(V) => T, Zustand L/V     + thermod. Fu."},

    {BatchModeOff, "mnuCalc", 1, Show, Never},
    {BatchModeOff, "mnuCalc", 0, Name, Always, "T, rho      => p, Zustand L/V     + thermod. Fu."},
    {BatchModeOff, "mnuCalc", 2, Name, Always, "T, p         => rho, Zustand L/V  + thermod. Fu."},
    {BatchModeOff, "mnuCalc", 3, Name, Always, "p, rho      => T, Zustand L/V     + thermod. Fu."},
    {BatchModeOff, "mnuCalc", 15, Enable, IsCubic},
    {BatchModeOff, "mnuCalc", 16, Enable, Always},
};
// clang-format on

int ToolbarPosition(int buttonIndex) {
    const auto table = ToolbarTable();
    for (std::size_t i = 0; i < table.size(); ++i)
        if (table[i].index == buttonIndex)
            return static_cast<int>(i);
    return -1;
}

} // namespace

CommandStates::CommandStates() : states(CommandTable().size()), toolbar(ToolbarTable().size(), true) {
    for (std::size_t i = 0; i < states.size(); ++i)
        states[i].text = CommandTable()[i].text;
}

void CommandStates::Apply(SessionEvent event, const PhaseFacts& facts) {
    for (const EnablingRule& rule : enablingRules) {
        if (rule.event != event)
            continue;
        const bool holds = rule.condition(facts);
        if (rule.name == toolbarName) {
            toolbar.at(static_cast<std::size_t>(ToolbarPosition(rule.index))) = holds;
            continue;
        }
        State& state = states.at(static_cast<std::size_t>(FindCommand(rule.name, rule.index)));
        switch (rule.effect) {
        case Enable:
            state.enabled = holds;
            break;
        case EnableIfSo:
            state.enabled = state.enabled || holds;
            break;
        case Show:
            state.visible = holds;
            break;
        case Name:
            if (holds)
                state.text = rule.text;
            break;
        }
    }
}

// A menu without a built entry anywhere below it would be dead.
bool CommandStates::HasBuiltEntry(int menuRow) const {
    const auto table = CommandTable();
    const CommandRow& menu = table[static_cast<std::size_t>(menuRow)];
    for (std::size_t i = 0; i < table.size(); ++i) {
        const CommandRow& row = table[i];
        if (row.parent != menu.name || row.parentIndex != menu.index)
            continue;
        if (row.action != CommandAction::None
            || (row.kind == CommandKind::Menu && HasBuiltEntry(static_cast<int>(i))))
            return true;
    }
    return false;
}

bool CommandStates::Enabled(int row) const {
    const CommandRow& command = CommandTable()[static_cast<std::size_t>(row)];
    if (!Allowed(row))
        return false;
    return command.kind == CommandKind::Menu ? HasBuiltEntry(row) : command.action != CommandAction::None;
}

bool CommandStates::Reachable(int row) const {
    for (int at = row; at >= 0;) {
        if (!Enabled(at))
            return false;
        const CommandRow& command = CommandTable()[static_cast<std::size_t>(at)];
        at = command.parent.empty() ? -1 : FindCommand(command.parent, command.parentIndex);
    }
    return true;
}

bool CommandStates::ToolbarAllowed(int buttonIndex) const {
    const int position = ToolbarPosition(buttonIndex);
    return position >= 0 && toolbar.at(static_cast<std::size_t>(position));
}

bool CommandStates::ToolbarEnabled(int buttonIndex, const ModelSelection& selection) const {
    if (!ToolbarAllowed(buttonIndex))
        return false;
    const ToolbarRow& button = ToolbarTable()[static_cast<std::size_t>(ToolbarPosition(buttonIndex))];
    if (button.action != CommandAction::None)
        return true;
    const int row = ToolbarCommand(button, selection);
    return row >= 0 && Reachable(row);
}

} // namespace orva
