// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/road.h"

#include "diagrams/default_ranges.h"
#include "substance/substance_choice.h"
#include "substance/substance_loading.h"
#include "text/paths.h"
#include "thermo/vaporisation_enthalpy.h"
#include "thermo/vapour_pressure.h"

namespace orva {

namespace {

constexpr const char* masterDatabase = "ORVA.Q05";
constexpr int firstCorrelatedEquation = vpFrostKalkwarfVdW;

void ReportLoadFailure(Session& session, const std::string& file) {
    if (session.state.databaseLoaded)
        session.dialogs.Show({"Warnung",
                              "Datenbank " + file + " im ORVA-Verzeichnis nicht gefunden bzw. leer.\n"
                                  + "Bereits geladene Datenbank " + session.state.databaseFile
                                  + " wird weiter verwendet.",
                              MessageIcon::Exclamation});
    else
        session.dialogs.Show({"Ausführung nicht möglich", "Datenbank " + file + " nicht gefunden bzw. leer",
                              MessageIcon::Exclamation});
}

// A virial equation gives no liquid, so there is no p from the density of one.
bool RefuseLiquidDensity(Session& session, int kind) {
    if (kind != kindTRhoLiquid || !session.model.selection.nonCubic)
        return false;
    session.dialogs.Show(
        {"Ausführung nicht möglich", "nur möglich mit einer kubischen EOS", MessageIcon::Exclamation});
    session.calculation.CalcKind = kindNone;
    return true;
}

bool AskForEquilibrium(Session& session) {
    Question question;
    question.title = "T-p-Vorgabe";
    question.text = "Sollen die Vorgabewerte T, p ein V-L-Phasengleichgewicht beschreiben?\n"
                    "ACHTUNG: Bei \"Ja\" wird die Existenz einer L-Phase vorausgesetzt\n"
                    "und eine \"Partialberechnung\" durchgeführt.";
    question.icon = MessageIcon::Exclamation;
    question.yesIsDefault = false;
    return session.dialogs.Ask(question);
}

// Calculations of equilibrium first settle how it is treated.
bool AsksForMethod(const Session& session) {
    const CalculationState& calculation = session.calculation;
    switch (calculation.CalcKind) {
    case kindSaturationPressure:
    case kindSaturationTemperature:
        return true;
    case kindTP:
        return calculation.AssumeEquilibrium;
    case kindVaporisationAtT:
    case kindVaporisationAtP:
        return session.model.selection.vaporization == vaporisationBenson;
    case kindVesselPartial:
        return !session.options.batchMode;
    default:
        return false;
    }
}

} // namespace

bool OpenDatabase(Session& session, const std::filesystem::path& path) {
    const DatabaseLoadResult loaded =
        session.database.LoadDatabase(path, session.machine.InstallationFolder(), session.state.englishText);
    if (!loaded.Good())
        return false;
    SessionState& state = session.state;
    state.databaseFile = PathText(path);
    state.databaseLoaded = true;
    state.substanceCount = static_cast<std::int16_t>(session.List().entries.size());
    session.Enter(SessionEvent::DatabaseOpened);
    return true;
}

bool OpenDatabaseDialog(Session& session) {
    const SessionState& state = session.state;
    FileRequest request;
    request.title = "Datenbank auswählen und laden";
    request.filter = "Datenbank (*.Q05)|*.Q05";
    request.folder = PathText(session.machine.InstallationFolder());
    request.fileName = state.databaseFile.empty() ? masterDatabase : state.databaseFile;
    request.defaultExtension = "*.Q05";
    const auto file = session.dialogs.ChooseFile(request);
    if (!file)
        return false;
    if (OpenDatabase(session, PathOf(*file)))
        return true;
    ReportLoadFailure(session, *file);
    return false;
}

bool AcceptSubstance(Session& session, int listIndex) {
    SubstanceData trial;
    if (LoadSubstanceRecord(session.database, listIndex, session.state.englishText, trial).readError) {
        session.dialogs.Show(RecordUnreadableMessage(listIndex)); // nothing of the session is lost
        return false;
    }
    session.ResetModelState();
    if (AskDeleteBatchData(session.state, session.dialogs))
        session.batch.rows.resize(1);
    SubstanceData& substance = session.model.substance;
    const SubstanceLoadResult loaded =
        LoadSubstanceRecord(session.database, listIndex, session.state.englishText, substance);
    session.state.substanceIndex = static_cast<std::int16_t>(listIndex);
    session.statusPanels[0] = substance.name;
    if (loaded.criticalDataMissing) {
        session.Enter(SessionEvent::SubstanceUnusable);
        session.dialogs.Show(CriticalDataMissingMessage(substance));
        return false;
    }
    if (session.model.selection.vaporPressure >= firstCorrelatedEquation)
        CorrelateVapourPressure(substance, session.model.selection.vaporPressure);
    session.Enter(SessionEvent::SubstanceAccepted);
    session.state.projectComment.clear();
    session.state.rangesStale = true;
    return true;
}

void RestoreSubstance(Session& session) {
    LoadSubstanceRecord(session.database, session.state.substanceIndex, session.state.englishText,
                        session.model.substance);
}

ModelChoice MakeModelChoice(Session& session) {
    if (session.runner == nullptr)
        return {session.model, session.names};
    const auto determine = [&session](SubstanceModel& model, int eos) {
        return DetermineEosConstants(model, eos, session.machine, *session.runner);
    };
    return {session.model, session.names, determine};
}

void AcceptModels(Session& session, const StatusPanels& panels) {
    session.Enter(SessionEvent::ModelsAccepted);
    session.statusPanels[0] = panels.substance;
    session.statusPanels[1] = panels.eos;
    session.statusPanels[2] = panels.vaporPressure;
    SetDefaultRanges(session.model, session.options, session.ranges);
    if (session.options.batchMode)
        session.Enter(SessionEvent::BatchModeOn); // a vessel stays out of reach
}

void AcceptReference(Session& session) {
    if (session.commands.Allowed(FindCommand("mnuOptions")))
        SetDefaultRanges(session.model, session.options, session.ranges);
}

bool SetCalculation(Session& session, int kind, bool assumeEquilibrium) {
    CalculationState& calculation = session.calculation;
    calculation.CalcKind = static_cast<std::int16_t>(kind == kindNone ? kindTRho : kind);
    calculation.AssumeEquilibrium = false;
    if (RefuseLiquidDensity(session, calculation.CalcKind) || !IsKindAvailable(calculation.CalcKind))
        return false;
    calculation.AssumeEquilibrium = assumeEquilibrium && calculation.CalcKind == kindTP;
    calculation.CurrentDataSet = 0;
    calculation.InputContext =
        IsVessel(calculation.CalcKind) ? inputContextVessel : calculation.CalcKind + inputContextOffset;
    calculation.GlobalMethod = calculation.CalcKind != kindVesselPartial && !session.model.selection.nonCubic;
    return true;
}

CalculationStart DispatchCalculation(Session& session, int kind) {
    const bool batch = session.options.batchMode;
    const bool assumed = kind == kindTP && !batch && AskForEquilibrium(session);
    if (!SetCalculation(session, kind, assumed))
        return {};
    CalculationStart start;
    const CalculationState& calculation = session.calculation;
    start.askForProcess = calculation.CalcKind == kindPolytrope;
    if (start.askForProcess)
        return start;
    start.askForMethod = AsksForMethod(session);
    if (start.askForMethod)
        return start;
    start.showResult = calculation.CalcKind != kindVesselPartial;
    start.askForPoint = !batch;
    return start;
}

CalculationInput MakeCalculationInput(Session& session) {
    return {session.model, session.names, session.calculation};
}

CalculationStart StartAfterMethod(Session& session) {
    CalculationState& calculation = session.calculation;
    const bool vessel = IsVessel(calculation.CalcKind);
    calculation.InputContext = vessel ? inputContextVessel : calculation.CalcKind + inputContextOffset;
    CalculationStart start;
    start.showResult = !vessel;
    start.askForPoint = !session.options.batchMode;
    return start;
}

CalculationStart StartAfterProcess(Session& session, ProcessPoint point) {
    BatchRow& start = session.batch.rows.front();
    start.T = point.T;
    start.p = point.p;
    session.calculation.processPoint = std::move(point);
    CalculationStart next;
    next.showResult = SetCalculation(session, kindPolytrope, false);
    return next;
}

void OpenCalculationMenu(Session& session) {
    if (session.state.batchRowCount == 0 && session.options.batchMode)
        session.dialogs.Show({"Ausführung nicht möglich",
                              "Diese Berechnungsart ist nur möglich, wenn Stapeldaten\n"
                              " (exper. T-p-rho-..-Daten) bereitgestellt sind.\n\n"
                              "Geben Sie Stapeldaten ein\n"
                              "(per File oder Neueingabe) => Menü \"Daten/exper. Daten...\"",
                              MessageIcon::Exclamation});
    session.Enter(SessionEvent::CalculationMenuOpened);
}

} // namespace orva
