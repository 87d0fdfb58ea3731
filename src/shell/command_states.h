// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <vector>

#include "shell/command_table.h"
#include "state/model_selection.h"
#include "state/substance_data.h"

namespace orva {

// The moments at which the menus change.
enum class SessionEvent : std::uint8_t {
    Start,
    ModelStateReset,
    DatabaseOpened,
    SubstanceAccepted,
    SubstanceUnusable, // loaded for the editor, without critical data
    ModelsAccepted,
    ProjectLoaded,
    DataMenuOpened,
    CalculationMenuOpened,
    DatabaseFunctionsOpened,
    VapourPressureFunctionsOpened,
    DiagramFunctionsOpened,
    DiagramVapourPressuresOpened,
    BatchModeOn,
    BatchModeOff
};

// What the enabling rules look at.
struct PhaseFacts {
    const SubstanceData& substance;
    const ModelSelection& selection;
    int batchRowCount = 0;
};

// Which commands and toolbar buttons are enabled, shown, and under which text, as the session goes on. A
// command that has no action yet stays disabled whatever the rules say.
class CommandStates {
public:
    CommandStates();

    // Applies every rule of the event, in the order of the rule table.
    void Apply(SessionEvent event, const PhaseFacts& facts);

    bool Enabled(int row) const;
    // Enabled with all menus above it.
    bool Reachable(int row) const;
    bool Visible(int row) const { return states.at(static_cast<std::size_t>(row)).visible; }
    // The mark of the diagram chosen last; it moves with each choice.
    bool Checked(int row) const { return row == checkedDiagram; }
    void CheckDiagram(int row) { checkedDiagram = row; }
    const std::string& Text(int row) const { return states.at(static_cast<std::size_t>(row)).text; }
    // What the rules alone say, without regard to whether the command is built.
    bool Allowed(int row) const { return states.at(static_cast<std::size_t>(row)).enabled; }

    bool ToolbarAllowed(int buttonIndex) const;
    bool ToolbarEnabled(int buttonIndex, const ModelSelection& selection = {}) const;

private:
    struct State {
        bool enabled = true;
        bool visible = true;
        std::string text;
    };

    bool HasBuiltEntry(int menuRow) const;

    std::vector<State> states;
    std::vector<bool> toolbar; // parallel to the toolbar table
    int checkedDiagram = -1;
};

} // namespace orva
