// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "shell/session.h"

namespace orva {

// The end of a session, in this order: the protocol is written and removed where it is empty, the session is
// saved if a database is loaded, files close, the help window closes, the comment of the project is
// forgotten.
void EndSession(Session& session, const std::function<void()>& closeHelpWindow);

} // namespace orva
