// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/program.h"

#include "cli/commands.h"

namespace orva {

std::optional<Failure> Program::OpenDatabase(const std::string& database) {
    if (workspaces.contains(database))
        return std::nullopt;
    auto workspace = std::make_unique<Workspace>(machine, runner);
    if (std::optional<Failure> failure = workspace->Open(database))
        return failure;
    workspaces.emplace(database, std::move(workspace));
    return std::nullopt;
}

Answer Program::Execute(const Request& request) {
    if (const std::optional<Failure> failure = OpenDatabase(request.database))
        return AnswerFor(*failure);
    Workspace& workspace = *workspaces.at(request.database);
    switch (request.command) {
    case Command::List:
        return ListCommand(workspace);
    case Command::Find:
        return FindCommand(workspace, request.text);
    case Command::Show:
        return ShowCommand(workspace, request.context.substance);
    case Command::Models:
        return ModelsCommand(workspace, request.context.substance);
    case Command::Point:
        return PointCommand(workspace, request);
    case Command::Vessel:
        return VesselCommand(workspace, request);
    case Command::Inverse:
        return InverseCommand(workspace, request);
    case Command::Curve:
        return CurveCommand(workspace, request, drawing);
    case Command::Atlas:
        return AtlasCommand(workspace, request, drawing);
    case Command::Run:
        break;
    }
    return AnswerFor({exitWrongUsage, "requests cannot be nested", {}});
}

} // namespace orva
