// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>

#include "calc/calculation_input.h"
#include "shell/session.h"
#include "substance/model_choice.h"

namespace orva {

// The road that all work follows: database, substance, models, then calculations and diagrams.

// `mnuData_OpenBank`: asks for the file, loads it and words the failure. True if a database was opened and
// the choice of a substance comes next.
bool OpenDatabaseDialog(Session& session);

// Loads a database file, the same without the dialog. The database that was open stays when this fails.
bool OpenDatabase(Session& session, const std::filesystem::path& path);

// Accepts list index `listIndex`: resets the model state, asks about loaded data series, loads the record,
// opens the next commands. True if the choice of models comes next; false for a substance without critical
// data, which stays loaded for the editor.
bool AcceptSubstance(Session& session, int listIndex);

// Loads the record of the accepted substance again, after a look at others.
void RestoreSubstance(Session& session);

// The rules of the model window on the records of the session.
ModelChoice MakeModelChoice(Session& session);

// What follows when the model window accepted its choice and the constants stand: commands, status panels,
// units and ranges.
void AcceptModels(Session& session, const StatusPanels& panels);

// What follows when the reference window changed the reference point: the default windows of the diagrams,
// once the models stand.
void AcceptReference(Session& session);

// The windows that a calculation opens, in this order.
struct CalculationStart {
    bool askForMethod = false;  // `frmCalcIn` comes first, the others when it is left with OK
    bool askForProcess = false; // a process is given first, the result comes with its end
    bool showResult = false;
    bool askForPoint = false;

    bool Opens() const { return askForMethod || askForProcess || showResult || askForPoint; }
};

// A command of the calculation menu: sets the kind, asks whether T and p describe equilibrium, and tells
// which windows open. Nothing opens for a kind that is refused.
CalculationStart DispatchCalculation(Session& session, int kind);

// The same with the answer known. False for a kind that is refused.
bool SetCalculation(Session& session, int kind, bool assumeEquilibrium);

// The rules of the window `frmCalcIn` on the records of the session.
CalculationInput MakeCalculationInput(Session& session);

// What opens when `frmCalcIn` was left with OK.
CalculationStart StartAfterMethod(Session& session);

// What opens when a process was followed to its end.
CalculationStart StartAfterProcess(Session& session, ProcessPoint point);

// Opening the calculation menu: the hint on a missing data series, and the texts that follow the models.
void OpenCalculationMenu(Session& session);

} // namespace orva
