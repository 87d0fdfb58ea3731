// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/session_records.h"

namespace orva {

SessionRecords SessionRecords::Of(const Session& session) {
    return {session.names,  session.model, session.options, session.state,
            session.ranges, session.curve, session.batch,   session.calculation};
}

void SessionRecords::PutInto(Session& session) const {
    session.names = names;
    PutCalculationStateInto(session);
}

void SessionRecords::PutCalculationStateInto(Session& session) const {
    session.model = model;
    session.options = options;
    session.state = state;
    session.ranges = ranges;
    session.curve = curve;
    session.batch = batch;
    session.calculation = calculation;
}

} // namespace orva
