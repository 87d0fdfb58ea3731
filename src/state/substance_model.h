// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "state/eos_parameters.h"
#include "state/model_selection.h"
#include "state/reference_point.h"
#include "state/substance_data.h"

namespace orva {

// The current substance with its models: all that a property model reads and writes. The values A, B, C, D in
// `eos` and the working set are overwritten by each evaluation at another temperature, and some results
// depend on the order of evaluations; an operation that must not disturb its caller works on a copy of `eos`
// and `work`.
struct SubstanceModel {
    SubstanceData substance;
    ModelSelection selection;
    ReferencePoint reference;
    EosParameters eos;
    VoHalmeParameters voHalme;
    EosWorkingSet work;
};

} // namespace orva
