// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/session.h"

#include "state/resets.h"
#include "text/paths.h"

namespace orva {

namespace {

constexpr double diagramReferenceTemperature = 298.15; // K
constexpr std::string_view lastSessionName = "OrvaLastSession.QCF";

} // namespace

Session::Session(const Machine& ownMachine, Dialogs& ownDialogs, ProgramRunner* ownRunner, Settings* store)
    : machine(ownMachine), dialogs(ownDialogs), runner(ownRunner),
      settings(store != nullptr ? *store : ownSettings), protocol(machine, dialogs) {
    state.decimalComma = machine.DecimalComma();
    style.decimal = state.decimalComma ? ',' : '.';
    statusPanels = {"", "", "", std::string(ContactText())};
    ResetModelState();
    names = FillNameTables();
    model.selection.eos = eosNotChosen;
    model.selection.vaporPressureCode = "0";
    calculation.diagramTemperature = diagramReferenceTemperature;
    curve.curveT = diagramReferenceTemperature;
    model.reference.kind = 1;
    const std::string folder = PathText(machine.InstallationFolder());
    state.dirBatch = state.dirDiagram2D = state.dirDiagram3D = state.dirXY = folder;
    state.dirProject = PathText(machine.WritableFolder());
    state.lastSessionFile = PathText(machine.WritableFolder() / lastSessionName);
    Enter(SessionEvent::Start);
}

void Session::ResetModelState() {
    if (options.batchMode)
        Enter(SessionEvent::BatchModeOff); // the mode is reset, and the menu follows it
    orva::ResetModelState(model, options, state, ranges);
    calculation.GlobalMethod = state.vesselGlobal;
    Enter(SessionEvent::ModelStateReset);
}

void Session::Enter(SessionEvent event) {
    commands.Apply(event, PhaseFacts{model.substance, model.selection, state.batchRowCount});
}

CalculationContext Session::Calculation() {
    return {model, options, names, batch, calculation, style};
}

std::string_view ContactText() {
    return "ORVA-6: freie Software unter der GPL 3 oder neuer";
}

Message AboutMessage() {
    return {"Über das Programm",
            "ORVA-6\n"
            "Zustände und Prozesse reiner Stoffe: Zustandsgleichungen, Phasengleichgewicht,\n"
            "thermodynamische Funktionen, Diagramme.\n\n"
            "Freie Software unter der GNU General Public License, Version 3 oder neuer.\n"
            "Die Quellen der Stoffdaten stehen bei den Tabellen der Datenbank.",
            MessageIcon::Information};
}

} // namespace orva
