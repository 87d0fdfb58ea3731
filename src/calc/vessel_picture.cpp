// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/vessel_picture.h"

#include <algorithm>

#include "calc/point_result.h"
#include "calc/vessel.h"

namespace orva {

namespace {

constexpr double wholePercent = 100;
constexpr double warningPercent = 99.999;   // a vessel without room for the liquid to expand
constexpr double fullCirclePercent = 99.85; // the rest would be no thicker than the outline
constexpr double mirrorPercent = 50;
constexpr double largestFinePressure = 1000; // kPa; above, a digit less is shown
constexpr const char* noteDrawing = "ERROR3";

// The level search ends within 0.1 of its own unit, so a large circle gives a fine level.
constexpr double searchRadius = 500;

double LevelOf(double percent) {
    const FillHeightResult level = FillHeight(percent, searchRadius);
    return level.failed ? 0 : std::clamp(level.height, 0.0, wholePercent);
}

bool IsFullByNote(const std::string& note) {
    return note == noteBelowCoVolume || note == noteVesselFull;
}

bool HasContent(const VesselResult& vessel) {
    return vessel.p > 0 || IsFullByNote(vessel.note);
}

void ColourPressure(const VesselResult& vessel, VesselPicture& picture) {
    if (IsFullByNote(vessel.note) || vessel.fillPercent > warningPercent || !HasContent(vessel)) {
        picture.pressureGround = VesselColour::LightRed;
        picture.pressureColour = VesselColour::White;
    }
    if (vessel.note == noteDrawing)
        picture.pressureGround = VesselColour::Red;
}

void WritePressure(const VesselResult& vessel, NumberStyle style, VesselPicture& picture) {
    if (vessel.note == noteBelowCoVolume) {
        picture.pressureText = " Error: v < b";
    } else if (vessel.note == noteVesselFull) {
        picture.pressureText = "Error";
        picture.noteText = "s. Hilfe 'Behälter'";
    } else if (!HasContent(vessel)) {
        picture.pressureText = "Error";
    } else {
        const char* mask = vessel.p > largestFinePressure ? "######0.0# kPa" : "###0.0## kPa";
        picture.pressureText = Format(vessel.p, mask, style);
    }
}

void FillSection(VesselPicture& picture) {
    const double percent = picture.fillPercent;
    picture.full = percent > fullCirclePercent;
    picture.mirrored = percent > mirrorPercent && !picture.full;
    if (picture.full)
        picture.levelHeight = wholePercent;
    else if (picture.mirrored)
        picture.levelHeight = wholePercent - LevelOf(wholePercent - percent);
    else
        picture.levelHeight = LevelOf(percent);
}

void WriteLevel(const VesselResult& vessel, NumberStyle style, VesselPicture& picture) {
    picture.levelText = "Füllstand " + Format(vessel.fillPercent, "##0.0#", style) + " % (Vol.-anteil)";
    if (picture.HasLevel())
        picture.heightText = Format(picture.levelHeight / wholePercent, "0.00 d", style);
    if (picture.full)
        picture.phaseText = "  L-Phase";
    else if (vessel.fillPercent == 0)
        picture.phaseText = "  V-Phase";
}

} // namespace

VesselPicture DrawVessel(VesselResult& vessel, int kind, const SubstanceData& substance, NumberStyle style) {
    VesselPicture picture;
    picture.caption = kind == kindVesselPartial ? "Behälter-Berechnung (Partial-Methode)"
                                                : "Behälter-Berechnung (Global-Methode)";
    vessel.fillPercent = IsFullByNote(vessel.note) ? wholePercent : vessel.liquidPercent;
    ColourPressure(vessel, picture);
    WritePressure(vessel, style, picture);
    const bool supercritical = static_cast<float>(vessel.T) > static_cast<float>(substance.Tc);
    if (!HasContent(vessel)) {
        vessel.fillPercent = 0;
        picture.levelText = "keine Lösung";
        picture.upper = picture.lower = VesselColour::Empty;
        return picture;
    }
    if (!supercritical)
        vessel.fillPercent = std::clamp(vessel.fillPercent, 0.0, wholePercent);
    picture.fillPercent = vessel.fillPercent;
    if (supercritical) {
        picture.levelText = "  überkritisch";
        picture.upper = picture.lower = VesselColour::Supercritical;
        return picture;
    }
    FillSection(picture);
    WriteLevel(vessel, style, picture);
    return picture;
}

} // namespace orva
