// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "shell/open_with_preview.h"
#include "shell/session.h"

namespace orva {

// Projects: what the session writes down of itself, and how it takes it up again. Paths are UTF-8; both "\"
// and "/" separate folders.

// The text behind the last separator.
std::string FileNameOnly(std::string_view path);

// Writes the session to a file; a path without a folder is taken relative to `dirProject`. For any file but
// the one of the last session the comment is asked for first, and a cancel leaves none. The file is whole or
// untouched; a failure is told. True if it was written.
bool SaveProject(Session& session, const std::string& path);

// Asks for the file, then saves. False on a cancel or failure.
bool SaveProjectDialog(Session& session);

// `mnuData_SaveProject`: the dialog, with a hint before it the first time.
bool StartSavingProject(Session& session);

// Takes up a project: its database, looked for in the installation folder, its substance, its models, options
// and reference point. A path without a folder is taken relative to the installation folder. False, without a
// message, where the file cannot be read (what was read up to there is in force) and where the database lacks
// the substance; false with a message without any database. The constants of the equation of state wait for
// the acceptance of the model window.
bool LoadProject(Session& session, std::string_view path);

// `mnuData_LoadProject`: the window that chooses the file; what follows when it is left with OK. True if a
// project is loaded and the choice of models comes next. A cancel changes nothing but what browsing changed.
OpenWithPreview LoadProjectDialog(Session& session);
bool LoadChosenProject(Session& session, const OpenWithPreview& choice);

// `mnuData_LoadLastSession`: the same with the file of the last session, without a window.
bool LoadLastSession(Session& session);

} // namespace orva
