// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/project.h"

#include <algorithm>
#include <filesystem>

#include "shell/project_file.h"
#include "shell/road.h"
#include "substance/substance_choice.h"
#include "substance/substance_loading.h"
#include "text/capitals.h"
#include "text/paths.h"
#include "text/text_file.h"
#include "thermo/vapour_pressure.h"

namespace orva {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view separators = "\\/";
constexpr std::string_view lastSessionName = "ORVALASTSESSION.QCF";
constexpr std::string_view projectPattern = "*.QCF";
constexpr double leastEnvironment = 1e-6; // K, in place of 0

bool HasFolder(std::string_view path) {
    return path.find_first_of(separators) != path.npos;
}

// By the end of the path alone, capitals or not.
bool IsLastSession(std::string_view path) {
    return InCapitals(path).ends_with(lastSessionName);
}

ProjectFile ProjectOf(const Session& session) {
    const Options& options = session.options;
    const ModelSelection& selection = session.model.selection;
    const ReferencePoint& reference = session.model.reference;
    ProjectFile project;
    project.date = session.machine.ShortDate();
    project.comment = session.state.projectComment;
    project.database = FileNameOnly(session.state.databaseFile);
    project.cas = session.model.substance.cas;
    project.curveT = session.curve.curveT;
    project.curveP = session.curve.curveP;
    project.curveV = session.curve.curveV;
    project.energyFactor = options.energyFactor;
    project.volumeBasis = options.volumeBasis;
    project.unitBasis = options.unitBasis;
    project.curveTpRestricted = options.curveTpRestricted;
    project.curvePoints = options.curvePoints;
    project.listSeparator = options.listSeparator;
    project.vaporPressure = selection.vaporPressure;
    project.eos = selection.eos;
    project.cpModel = selection.cpModel;
    project.vaporization = selection.vaporization;
    project.watsonExponent = selection.watsonExponent;
    project.eosPriority = selection.eosPriority;
    project.referenceKind = reference.kind;
    project.h0 = reference.h0;
    project.s0 = reference.s0;
    project.T0 = reference.T0;
    project.p0 = reference.p0;
    project.Tenv = reference.Tenv;
    project.penv = reference.penv;
    project.processLineMode = session.processLineMode;
    return project;
}

// The selection with all that follows from it, so that the model window finds nothing of another session: a
// stale `nonCubic` would take the priority away.
void TakeModels(ModelSelection& selection, const ProjectFile& project) {
    selection.vaporPressure = project.vaporPressure;
    selection.vaporPressureCode = VaporPressureCodeOf(project.vaporPressure);
    selection.eos = std::max<std::int16_t>(project.eos, eosIdealGas); // kept on purpose: none becomes row 0
    selection.nonCubic = selection.eos == eosIdealGas || selection.eos >= virialByHand;
    selection.cpModel = project.cpModel;
    selection.vaporization = project.vaporization;
    selection.watsonExponent = project.watsonExponent;
    selection.eosPriority = project.eosPriority;
}

void TakeProject(Session& session, const ProjectFile& project) {
    session.curve = {project.curveT, project.curveP, project.curveV};
    session.calculation.diagramTemperature = project.curveT;
    Options& options = session.options;
    options.energyFactor = project.energyFactor;
    options.volumeBasis = project.volumeBasis;
    options.unitBasis = project.unitBasis;
    options.curveTpRestricted = project.curveTpRestricted;
    options.curvePoints = project.curvePoints;
    options.listSeparator = project.listSeparator;
    TakeModels(session.model.selection, project);
    ReferencePoint& reference = session.model.reference;
    reference.kind = project.referenceKind;
    reference.h0 = project.h0;
    reference.s0 = project.s0;
    reference.T0 = project.T0;
    reference.p0 = project.p0;
    reference.Tenv = project.Tenv == 0 ? leastEnvironment : project.Tenv;
    reference.penv = project.penv;
    session.processLineMode = project.processLineMode;
}

// False if no database is loaded, neither that of the project nor another one.
bool OpenProjectDatabase(Session& session, const std::string& name) {
    if (OpenDatabase(session, PathOf(name)))
        return true;
    const std::string notFound = "Projekt-Datenbank " + name + " im ORVA-Verzeichnis nicht gefunden";
    if (!session.state.databaseLoaded) {
        session.dialogs.Show({"Ausführung nicht möglich", notFound, MessageIcon::Exclamation});
        return false;
    }
    session.dialogs.Show({"Hinweis",
                          notFound + " bzw. leer.\nDie aktuelle Bank " + session.state.databaseFile
                              + " wird weiter verwendet.",
                          MessageIcon::Exclamation});
    return true;
}

bool LoadProjectSubstance(Session& session, std::string_view cas) {
    const int index = FindByCas(session.List(), cas);
    session.state.substanceIndex = 0;
    if (index == 0)
        return false;
    SubstanceData& substance = session.model.substance;
    const SubstanceLoadResult loaded =
        LoadSubstanceRecord(session.database, index, session.state.englishText, substance);
    if (loaded.readError) {
        session.dialogs.Show(RecordUnreadableMessage(index));
        return false;
    }
    session.state.substanceIndex = static_cast<std::int16_t>(index);
    if (loaded.criticalDataMissing)
        session.dialogs.Show(CriticalDataMissingMessage(substance));
    return true;
}

fs::path ProjectPath(const Session& session, std::string_view path) {
    return HasFolder(path) ? PathOf(path) : session.machine.InstallationFolder() / PathOf(path);
}

// A file that names no database and substance leaves the session alone; any other one begins with the reset.
bool TakeUpProject(Session& session, const std::string& path) {
    ProjectFile head;
    const std::optional<std::string> bytes = ReadFileStart(ProjectPath(session, path));
    if (!bytes || ReadProject(*bytes, head) < projectCasLine)
        return false;
    session.ResetModelState();
    std::fill_n(session.statusPanels.begin(), 3, "");
    if (!LoadProject(session, path))
        return false;
    session.statusPanels[0] = session.model.substance.name;
    session.state.rangesStale = true;
    session.Enter(SessionEvent::ProjectLoaded);
    return true;
}

} // namespace

std::string FileNameOnly(std::string_view path) {
    return std::string(path.substr(path.find_last_of(separators) + 1));
}

bool SaveProject(Session& session, const std::string& path) {
    SessionState& state = session.state;
    if (!IsLastSession(path))
        state.projectComment =
            session.dialogs
                .InputText({" Datei-Kommentar (optional) ",
                            "Eingabe Kommentartext\n<Abbrechen> = kein Kommentar", state.projectComment})
                .value_or("");
    const fs::path full = HasFolder(path) ? PathOf(path) : PathOf(state.dirProject) / PathOf(path);
    if (WriteFile(full, WriteProject(ProjectOf(session))))
        return true;
    session.dialogs.Show({"Ausgabe-Fehler", "Die Datei kann nicht geschrieben werden:\n" + PathText(full),
                          MessageIcon::Exclamation});
    return false;
}

bool SaveProjectDialog(Session& session) {
    SessionState& state = session.state;
    FileRequest request;
    request.title = "aktuelles Projekt speichern unter ...";
    request.filter = "ORVA-Projektdatei (*.QCF)|*.QCF";
    request.folder = state.dirProject;
    request.fileName = state.projectFile;
    request.defaultExtension = ".QCF";
    request.saving = true;
    const std::optional<std::string> chosen = session.dialogs.ChooseFile(request);
    if (!chosen)
        return false;
    const bool saved = SaveProject(session, *chosen);
    if (HasFolder(*chosen))
        state.dirProject = chosen->substr(0, chosen->find_last_of(separators) + 1);
    if (saved)
        state.projectFile = FileNameOnly(*chosen);
    return saved;
}

bool StartSavingProject(Session& session) {
    if (session.oneTimeProjectHint)
        session.dialogs.Show({"einmaliger allgemeiner Hinweis",
                              "Bitte beachten:\n"
                              "Vor dem Abspeichern des Projekts müssen die Einstellungen\n"
                              "unter \"Modelle\" und \"Optionen\" komplett sein.",
                              MessageIcon::Information});
    session.oneTimeProjectHint = false;
    return SaveProjectDialog(session);
}

bool LoadProject(Session& session, std::string_view path) {
    const std::optional<std::string> bytes = ReadFileStart(ProjectPath(session, path));
    ProjectFile head;
    const int headLines = bytes ? ReadProject(*bytes, head) : 0;
    if (headLines < projectDatabaseLine || !OpenProjectDatabase(session, head.database))
        return false;
    if (headLines < projectCasLine || !LoadProjectSubstance(session, head.cas))
        return false;
    // The equation is still that of the session; the model window computes the one of the project.
    if (session.model.selection.vaporPressure > vpAugust)
        CorrelateVapourPressure(session.model.substance, session.model.selection.vaporPressure);
    ProjectFile project = ProjectOf(session);
    const int lines = ReadProject(*bytes, project);
    TakeProject(session, project);
    return lines == projectLineCount;
}

OpenWithPreview LoadProjectDialog(Session& session) {
    return {session, "Projekt laden (*.QCF)", std::string(projectPattern), session.state.dirProject,
            session.state.projectFile};
}

bool LoadChosenProject(Session& session, const OpenWithPreview& choice) {
    if (!choice.Accepted())
        return false;
    session.state.dirProject = choice.Folder();
    session.state.projectFile = choice.File();
    std::error_code ignored;
    fs::current_path(PathOf(choice.Folder()), ignored);
    return TakeUpProject(session, PathText(PathOf(choice.Folder()) / PathOf(choice.File())));
}

bool LoadLastSession(Session& session) {
    return TakeUpProject(session, session.state.lastSessionFile);
}

} // namespace orva
