// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/request.h"
#include "diagrams/diagram_records.h"
#include "shell/session.h"

namespace orva {

// The records of a session that diagrams read and write.
DiagramRecords DiagramRecordsOf(Session& session);

// Brings the diagram options of a request into the records.
void ApplyDiagramOptions(const CurveOptions& curve, Options& options);

} // namespace orva
