// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "calc/calc_batch.h"
#include "calc/calculation_state.h"
#include "calc/protocol.h"
#include "shell/command_states.h"
#include "state/batch_data.h"
#include "state/diagram_ranges.h"
#include "state/dialogs.h"
#include "state/machine.h"
#include "state/name_tables.h"
#include "state/options.h"
#include "state/program_runner.h"
#include "state/session_state.h"
#include "state/settings.h"
#include "state/substance_model.h"
#include "substance/database.h"

namespace orva {

// Owner of every record of one running program. The rooms get from it just what they read or write.
class Session {
public:
    // Start-up: decimal separator, model state, name tables, defaults of the windows, folders, enabling
    // rules. Without a runner the equations whose constants come from a helper program are not offered;
    // without a store the settings last as long as the session.
    Session(const Machine& machine, Dialogs& dialogs, ProgramRunner* runner = nullptr,
            Settings* settings = nullptr);

    const Machine& machine;
    Dialogs& dialogs;
    ProgramRunner* const runner;
    Settings& settings;

    NameTables names;
    SubstanceModel model;
    Options options;
    SessionState state;
    DiagramRanges ranges;
    CurveRequest curve;
    BatchDataSet batch;
    CalculationState calculation;
    Protocol protocol;
    Database database;
    CommandStates commands;
    NumberStyle style;

    // The reset before a new substance is taken, with the menus that it closes.
    void ResetModelState();

    // Applies the enabling rules of an event.
    void Enter(SessionEvent event);

    const SubstanceList& List() const { return database.List(); }
    CalculationContext Calculation();

    bool oneTimeProjectHint = true;   // the hint before the first save of a project
    std::int16_t processLineMode = 1; // parameter mode of process lines

    // The four panels of the status bar: substance, equation of state, vapour-pressure equation, contact.
    std::array<std::string, 4> statusPanels;

private:
    SessionSettings ownSettings; // in place of a store
};

// The contact line of the status bar and the text of the about box.
std::string_view ContactText();
Message AboutMessage();

} // namespace orva
