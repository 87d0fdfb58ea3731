// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/session.h"

namespace orva {

// What is loaded: database, substance, data series.
Message StatusMessage(const Session& session);

// The constants of the equation of state in force, and the critical volume that it implies.
Message EosParametersMessage(const Session& session);

} // namespace orva
