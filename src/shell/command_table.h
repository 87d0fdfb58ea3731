// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "state/model_selection.h"

namespace orva {

// What choosing a command starts. A command without an action is there, in its place and disabled, until the
// work behind it is built.
enum class CommandAction : std::uint8_t {
    None,
    OpenDatabase,
    ShowStatus,
    LoadLastSession,
    LoadProject,
    SaveProject,
    ShowEosParameters,
    Exit,
    ChooseSubstance,
    ChooseModels,
    Calculate, // argument: calculation kind
    Draw,      // argument: diagram type
    ShowOptions,
    ShowReference,
    ShowTips,
    About,
    Help
};

enum class CommandKind : std::uint8_t { Menu, Command, Separator };

// One entry of the main menu. Entries of an array carry their index; the others have noIndex.
struct CommandRow {
    std::string_view name;
    int index;
    std::string_view parent; // name of the menu, empty for the menu bar
    int parentIndex;
    std::string_view text;
    CommandKind kind = CommandKind::Command;
    CommandAction action = CommandAction::None;
    int argument = 0;
};

inline constexpr int noIndex = -1;

// The whole main menu in its order, parents before their entries.
std::span<const CommandRow> CommandTable();

// "mnuStoff", "mnuCalc(2)": the object name of a command.
std::string CommandKey(std::string_view name, int index = noIndex);

// Row of a command, -1 for none.
int FindCommand(std::string_view name, int index = noIndex);

// A button of the toolbar; buttons that are not listed are spacers.
struct ToolbarRow {
    int index;
    std::string_view toolTip;
    std::string_view command; // the menu command behind it, empty if it has none
    int commandIndex = noIndex;
    CommandAction action = CommandAction::None; // of a button without a menu command
};

std::span<const ToolbarRow> ToolbarTable();

// Row of the menu command behind a button, -1 for none. The vessel button follows the priority of the
// equations: the global method with the equation of state, the partial one with the vapour pressure.
int ToolbarCommand(const ToolbarRow& button, const ModelSelection& selection);

} // namespace orva
