// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace orva {

// The program's own pictures. They are drawn as lines in the text colour of the moment, so that they are
// sharp at every size and readable on light and dark ground.
enum class Picture { NewProject, LastSession, OpenProject, SaveProject, Reference, Vessel, Hint };

QIcon DrawnIcon(Picture picture);

// The picture of the program: an isotherm through the two-phase region.
QIcon ProgramIcon();

} // namespace orva
