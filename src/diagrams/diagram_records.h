// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/diagram_ranges.h"
#include "state/name_tables.h"
#include "state/options.h"
#include "state/session_state.h"
#include "state/substance_model.h"
#include "text/number_format.h"

namespace orva {

// The records of the session that diagrams read and write.
struct DiagramRecords {
    SubstanceModel& model;
    Options& options;
    DiagramRanges& ranges;
    CurveRequest& request;
    SessionState& session;
    double& diagramTemperature; // K, of energies divided by R T in the point calculations
    const NameTables& names;
    NumberStyle style;
};

} // namespace orva
