// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <optional>

#include "cli/answer.h"
#include "cli/collecting_dialogs.h"
#include "cli/request.h"
#include "cli/session_records.h"
#include "cli/substance_lookup.h"

namespace orva {

// One open database with a session that is as fresh for each request as after a start of the program. The
// road to a context (substance, models, reference, display) is walked once; later requests with the same
// context start from the records at its end.
class Workspace {
public:
    Workspace(const Machine& machine, ProgramRunner& runner);
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    // Opens the database with the words of the window for a failure. Empty: the one of the installation
    // folder.
    std::optional<Failure> Open(const std::string& database);

    // A session as after the start, with the database open and no substance.
    void StartFresh();
    // Loads the record of the substance that `text` names, as the substance window does on acceptance.
    std::optional<Failure> TakeSubstance(const std::string& text);
    // The whole road to the context. Boxes that were shown on it stand in Messages() again.
    std::optional<Failure> Prepare(const ContextOptions& context);

    Session& Records() { return session; }
    SubstanceLookup& Lookup() { return lookup; }
    // The boxes since the start of the request.
    const std::vector<Message>& Messages() const { return dialogs.messages; }

private:
    struct Prepared {
        SessionRecords records;
        std::vector<Message> messages;
        std::optional<Failure> failure;
    };

    std::optional<Failure> WalkRoad(const ContextOptions& context);

    CollectingDialogs dialogs;
    Session session;
    SubstanceLookup lookup;
    SessionRecords start;
    std::map<ContextOptions, Prepared> prepared;
    const Prepared* current = nullptr; // whose name tables stand in the session
    const ContextOptions* currentContext = nullptr;
};

} // namespace orva
