// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/exit.h"

namespace orva {

void EndSession(Session& session, const std::function<void()>& closeHelpWindow) {
    session.protocol.Close(session.Calculation());
    session.database.Close();
    closeHelpWindow();
    session.state.projectComment.clear();
}

} // namespace orva
