// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/session.h"

namespace orva {

// The records of a session at one moment, so that each request can start from the same state without walking
// the road to it again. The open database and the menus are no part of them.
struct SessionRecords {
    NameTables names;
    SubstanceModel model;
    Options options;
    SessionState state;
    DiagramRanges ranges;
    CurveRequest curve;
    BatchDataSet batch;
    CalculationState calculation;

    static SessionRecords Of(const Session& session);
    void PutInto(Session& session) const;
    // The same but for the name tables, which calculations and diagrams do not write.
    void PutCalculationStateInto(Session& session) const;
};

} // namespace orva
