// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/resets.h"

namespace orva {

namespace {

void ZeroAll(DiagramRanges& ranges) {
    ranges = {};
    ranges.pMin = 0.001F;
}

} // namespace

void ResetEosParameters(EosParameters& eos) {
    const EosParameters kept = eos;
    eos = {};
    eos.AlphaForm = kept.AlphaForm;
    eos.vCritCalc = kept.vCritCalc;
    eos.rhoCritCalc = kept.rhoCritCalc;
}

void ResetModelState(SubstanceModel& model, Options& options, SessionState& session, DiagramRanges& ranges) {
    options.batchMode = false;
    session.batchFileFlag = false;
    session.substanceIndex = 0;
    model.selection.vaporization = 0;

    ReferencePoint& reference = model.reference;
    reference.h0 = 0;
    reference.s0 = 0;
    reference.T0 = 298.15F;
    reference.Tenv = 298.15;
    reference.penv = 101.325;
    reference.p0 = 0; // kept on purpose: 0 until the reference window sets 101.325 itself

    ZeroAll(ranges);
    model.selection.eosPriority = true;
    session.vesselGlobal = true;
    ResetEosParameters(model.eos);
}

void ClearBatchFile(SessionState& session) {
    session.batchFile.clear();
    session.batchFileFlag = false;
}

} // namespace orva
