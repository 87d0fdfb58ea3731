// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "diagrams/diagram_window.h"

namespace orva {

class frmGraph2D;

// One command of the diagram window.
struct DiagramAction {
    const char* name; // of the command; an empty one is a separator
    const char* menu; // object name of the menu that holds it
    const char* text;
    const char* shortcut; // "" for none
    const char* tip;
    const char* toolText; // short text on the tool bar, "" for no button there
    void (frmGraph2D::*run)();
    bool (*enabled)(const DiagramWindow&); // null: always
    bool (*checked)(const DiagramWindow&); // null: no check mark
};

struct DiagramMenu {
    const char* name;
    const char* text;
};

// A projection and a function of T draw their whole curve without an input.
bool TakesValue(const DiagramWindow& window);

std::span<const DiagramMenu> DiagramMenus();
std::span<const DiagramAction> DiagramActions();

} // namespace orva
