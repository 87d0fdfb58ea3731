// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "diagrams/diagram_window.h"

namespace orva {

// The rules of the window that takes one T, p or v for the curves of a diagram. It stays open, so that
// several curves can be drawn one after another.
class ValueInput {
public:
    ValueInput(DiagramRecords records, DiagramWindow& window, Dialogs& dialogs);

    std::string Caption() const;
    std::string Label() const; // " T = ", " T(red) = ", "p = ", ...
    std::string Unit() const;  // " K", empty for reduced quantities
    std::string Value() const; // the value in force, in display units

    // Both return true if the value was taken; an unusable one changes nothing.
    bool cmdOK(std::string_view text);        // keeps the value
    bool cmdOKAndDraw(std::string_view text); // keeps the value and draws; the box on v near b comes first

private:
    bool Take(std::string_view text);
    bool CheckVolume(double v);
    bool IsReduced() const;

    DiagramRecords records;
    DiagramWindow& window;
    Dialogs& dialogs;
};

} // namespace orva
