// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/exit.h"

#include "shell/project.h"

namespace orva {

void EndSession(Session& session, const std::function<void()>& closeHelpWindow) {
    session.protocol.Close(session.Calculation());
    if (session.state.databaseLoaded && session.database.IsOpen())
        SaveProject(session, session.state.lastSessionFile);
    session.database.Close();
    closeHelpWindow();
    session.state.projectComment.clear();
}

} // namespace orva
