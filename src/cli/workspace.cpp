// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/workspace.h"

#include "calc/units.h"
#include "cli/model_options.h"
#include "diagrams/default_ranges.h"
#include "shell/road.h"
#include "state/constants.h"

namespace orva {

namespace {

constexpr const char* masterDatabase = "ORVA.Q05";
constexpr std::size_t largestContextCount = 1000; // kept at a time

std::filesystem::path PathOf(std::string_view text) {
    return {std::u8string(text.begin(), text.end())};
}

// A file on the command line lies in the working directory, where the window looks into the installation
// folder.
std::string FileToOpen(const std::string& database) {
    if (database.empty())
        return masterDatabase;
    const std::filesystem::path path = PathOf(database);
    std::error_code ignored;
    if (path.has_parent_path() || !std::filesystem::exists(path, ignored))
        return database;
    const std::u8string here = (std::filesystem::path(".") / path).u8string();
    return {here.begin(), here.end()};
}

// Boxes name the file as it was given.
void NameAsGiven(std::vector<Message>& messages, std::string_view opened, std::string_view given) {
    for (Message& message : messages)
        if (const std::size_t at = message.text.find(opened); at != message.text.npos)
            message.text.replace(at, opened.size(), given);
}

// The reference window: taking a kind settles the normal pressure, then the fields are written.
void ApplyReference(const ReferenceOptions& options, ReferencePoint& reference) {
    if (options.kind) {
        reference.kind = static_cast<std::int16_t>(*options.kind);
        reference.p0 = static_cast<float>(normalPressure);
    }
    if (options.state) {
        reference.T0 = static_cast<float>((*options.state)[0]);
        reference.p0 = static_cast<float>((*options.state)[1]);
    }
    if (options.values) {
        reference.h0 = (*options.values)[0];
        reference.s0 = (*options.values)[1];
    }
    if (options.environment) {
        const double Tenv = (*options.environment)[0];
        reference.Tenv = Tenv == 0 ? missingValue : Tenv;
        reference.penv = (*options.environment)[1];
    }
}

void ApplyDisplay(const DisplayOptions& display, Session& session) {
    Options& options = session.options;
    options.unitBasis = static_cast<std::int16_t>(display.unitBasis);
    options.volumeBasis = static_cast<std::int16_t>(display.volumeBasis);
    options.energyFactor =
        EnergyFactor(options.unitBasis, session.calculation.diagramTemperature, session.model.substance);
    session.calculation.ExtendedLevel = display.extended;
    session.calculation.FunctionList = display.functionList;
    SetDefaultRanges(session.model, options, session.ranges);
}

} // namespace

Workspace::Workspace(const Machine& machine, ProgramRunner& runner)
    : session(machine, dialogs, &runner), lookup(session), start(SessionRecords::Of(session)) {}

std::optional<Failure> Workspace::Open(const std::string& database) {
    dialogs.fileName = FileToOpen(database);
    if (!OpenDatabaseDialog(session)) {
        if (!database.empty())
            NameAsGiven(dialogs.messages, *dialogs.fileName, database);
        return FailureFrom(exitDataError, dialogs.messages, "the database cannot be opened");
    }
    start = SessionRecords::Of(session);
    return std::nullopt;
}

void Workspace::StartFresh() {
    dialogs.messages.clear();
    start.PutInto(session);
    current = nullptr;
    currentContext = nullptr;
}

std::optional<Failure> Workspace::TakeSubstance(const std::string& text) {
    const int index = lookup.Find(text);
    if (index == 0) {
        Failure failure = FailureFrom(exitDataError, dialogs.messages, "");
        failure.text =
            "substance \"" + text + "\" not found" + (failure.text.empty() ? "" : ": " + failure.text);
        return failure;
    }
    if (!AcceptSubstance(session, index))
        return FailureFrom(exitDataError, dialogs.messages, "the substance cannot be used");
    return std::nullopt;
}

std::optional<Failure> Workspace::WalkRoad(const ContextOptions& context) {
    StartFresh();
    if (std::optional<Failure> failure = TakeSubstance(context.substance))
        return failure;
    if (std::optional<Failure> failure = AcceptModelOptions(session, context.models)) {
        failure->messages = dialogs.messages;
        return failure;
    }
    ApplyReference(context.reference, session.model.reference);
    ApplyDisplay(context.display, session);
    return std::nullopt;
}

std::optional<Failure> Workspace::Prepare(const ContextOptions& context) {
    const bool same = currentContext != nullptr && *currentContext == context;
    if (!same) {
        auto known = prepared.find(context);
        if (known == prepared.end()) {
            if (prepared.size() >= largestContextCount)
                prepared.clear();
            Prepared walked;
            walked.failure = WalkRoad(context);
            walked.records = SessionRecords::Of(session);
            walked.messages = dialogs.messages;
            known = prepared.emplace(context, std::move(walked)).first;
        }
        known->second.records.PutInto(session);
        currentContext = &known->first;
        current = &known->second;
    } else {
        current->records.PutCalculationStateInto(session);
    }
    dialogs.messages = current->messages;
    return current->failure;
}

} // namespace orva
