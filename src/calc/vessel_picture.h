// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "calc/calculation_state.h"
#include "state/substance_data.h"
#include "text/number_format.h"

namespace orva {

// What a part of the drawing is; the window has a colour for each, on light and on dark ground.
enum class VesselColour : std::uint8_t {
    Outline,       // grey
    Body,          // light grey, the wall
    Empty,         // nothing is known of the content
    Vapour,        // an empty or vapour-filled space
    Liquid,        // the lower part
    Supercritical, // one fluid above T(cr)
    Black,         // ground of the pressure label
    LightRed,      // ground of its warning
    Red,           // ground where the drawing itself failed
    White,         // text of a warning
    LightYellow    // text of the pressure label
};

// The section of a horizontal cylindrical vessel with its filling, as `frmKessel` draws it.
struct VesselPicture {
    std::string caption; // of the window
    std::string title = "zylinderförmiger Behälter";
    std::string levelText;    // "Füllstand 42.0 % (Vol.-anteil)", "  überkritisch"
    std::string phaseText;    // "  V-Phase", "  L-Phase", or nothing
    std::string pressureText; // of the label `labP`
    std::string heightText;   // "0.36 d", the height of a level as a share of the diameter
    std::string noteText;     // "s. Hilfe 'Behälter'"
    VesselColour pressureGround = VesselColour::Black;
    VesselColour pressureColour = VesselColour::LightYellow;
    double fillPercent = 0; // of the volume, 0 to 100
    double levelHeight = 0; // above the bottom, in units of which the diameter has 100
    bool mirrored = false;  // the level was computed for the empty share and is drawn from the top
    bool full = false;      // a whole circle of liquid, without a level
    VesselColour upper = VesselColour::Vapour;
    VesselColour lower = VesselColour::Liquid;

    // There is a surface between two parts.
    bool HasLevel() const { return levelHeight > 0 && !full; }
    bool operator==(const VesselPicture&) const = default;
};

// The picture of the last vessel calculation. `kind` tells the method, 9 global and 10 partial. The filling
// is settled here and kept in the record. A calculation that gave no pressure and no note shows an empty
// section with "keine Lösung".
VesselPicture DrawVessel(VesselResult& vessel, int kind, const SubstanceData& substance, NumberStyle style);

} // namespace orva
