// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace orva {

inline constexpr int tieLinePoints = 51;

// The straight line between the two equilibrium phases of the current T or p, in display units. 1 is the
// liquid end.
struct TieLine {
    float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    double stepX = 0, stepY = 0; // from point to point
    bool failed = false;         // no two-phase region here, or no equilibrium found; the ends are 0

    bool operator==(const TieLine&) const = default;
};

} // namespace orva
