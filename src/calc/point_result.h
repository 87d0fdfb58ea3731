// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <vector>

#include "state/dialogs.h"

namespace orva {

inline constexpr std::size_t resultCount = 42;

// Slots of the results, the columns of the protocol.
enum ResultSlot : std::size_t {
    slotT = 0,
    slotP = 1,
    slotRhoGlobal = 2,
    slotVGlobal = 3,
    slotRhoL = 4,
    slotCpS = 5,
    slotCpIdeal = 7,
    slotVolumeV = 9,  // then h, s, g, u, a, eH, eU, cp, cV of the vapour
    slotVolumeL = 19, // then the same of the liquid
    slotCpL = 27,
    slotVaporisationH = 29,
    slotVaporisationS = 30,
    slotAlphaV = 31, // then chi and beta
    slotDeltaV = 34,
    slotAlphaL = 35, // then chi and beta
    slotDeltaL = 38,
    slotSoundSpeedL = 39,
    slotSoundSpeedV = 40,
    slotB = 41
};

// What `note` says.
inline constexpr const char* noteExit = "EXIT";            // the caller gives up
inline constexpr const char* noteBelowCoVolume = "ERROR1"; // liquid volume at or below the co-volume
inline constexpr const char* noteVesselFull = "ERROR2";    // mean density at or above that of the liquid

// The result of one data set, kept for the result list. Phase blocks are indexed 0 liquid, 1 vapour.
struct ResultRecord {
    std::string phase = "   "; // "   ", " V ", " L ", "V+L"
    float T = 0, p = 0, v = 0; // the point of the extended blocks
    float Tcalc = 0, pcalc = 0, rhoV = 0, rhoL = 0, hLV = 0;
    std::array<std::array<float, 6>, 2> deriv{};
    std::array<std::array<float, 5>, 2> resid{};
    std::array<std::array<float, 10>, 2> coeff{};
    std::array<std::array<float, 3>, 2> mech{};
    float h = 0, s = 0, g = 0, eH = 0, eU = 0;
};

enum class TextColour { Black, Red, Blue };

// A label of the result window.
struct ResultLabel {
    std::string text;
    TextColour colour = TextColour::Black;
    bool bold = false;
    int size = 8;                  // points
    bool reportBackground = false; // stands on the colour of the report
};

// All that one calculation hands to the result window. Lines of the report end with "\r\n".
struct PointResult {
    int kind = 0;
    bool failed = false;
    std::string note;
    bool hasL = false, hasV = false;
    int rootIndex = 0;
    int phaseVerdict =
        0; // 0 subcritical, 1 liquid above p(cr), 2 above both, 3 above T(cr), 4 critical point
    float liquidPercent = 0;
    double p = 0, T = 0;
    std::array<double, resultCount> results{};
    ResultRecord record;
    std::array<double, 3> roots{};
    ResultLabel par1, par2, co1, co2;
    std::string lblLphase = "L-Phase", lblVphase = "V-Phase";
    bool lblLphaseVisible = false, lblVphaseVisible = false, lblGleichVisible = false;
    std::string report;
    TextColour reportColour = TextColour::Black;
    bool diagnoseEnabled = false;
    std::vector<Message> messages;
};

} // namespace orva
