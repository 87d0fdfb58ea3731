// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "diagrams/diagram_window.h"

namespace orva {

// The rules of the window that takes the limits of a diagram of two functions: the range of p of an isotherm,
// or of T of an isobar, and the T or p that is constant. In K and kPa, also where the diagram is reduced.
class LimitInput {
public:
    LimitInput(DiagramRecords records, DiagramWindow& window, Dialogs& dialogs);

    std::string Caption() const;
    std::string ValueLabel() const; // "  T/K = " or "p/kPa = "
    std::string LowLabel() const;   // "p1/kPa = " or "T1/K = "
    std::string HighLabel() const;
    std::string Value() const;
    std::string Low() const;
    std::string High() const;

    // Takes the three numbers and draws. False, with a message and nothing changed, for unusable ones.
    bool cmdDraw(std::string_view value, std::string_view low, std::string_view high);

private:
    bool IsIsobar() const;
    std::string Shown(double number) const;

    DiagramRecords records;
    DiagramWindow& window;
    Dialogs& dialogs;
};

} // namespace orva
