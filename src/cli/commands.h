// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/answer.h"
#include "cli/request.h"
#include "cli/workspace.h"

namespace orva {

// Writes a finished diagram; the images need a drawing program around them that is only made when it is used.
class Drawing;

// One function a command. Each starts from a fresh session.
Answer ListCommand(Workspace& workspace);
Answer FindCommand(Workspace& workspace, const std::string& text);
Answer ShowCommand(Workspace& workspace, const std::string& substance);
Answer ModelsCommand(Workspace& workspace, const std::string& substance);
Answer PointCommand(Workspace& workspace, const Request& request);
Answer VesselCommand(Workspace& workspace, const Request& request);
Answer InverseCommand(Workspace& workspace, const Request& request);
Answer CurveCommand(Workspace& workspace, const Request& request, Drawing& drawing);
Answer AtlasCommand(Workspace& workspace, const Request& request, Drawing& drawing);

} // namespace orva
