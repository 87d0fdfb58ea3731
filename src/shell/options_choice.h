// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/session.h"

namespace orva {

inline constexpr int fewestCurvePoints = 50;
inline constexpr int mostCurvePoints = 800;
inline constexpr int smallCurvePointStep = 10;
inline constexpr int largeCurvePointStep = 50; // and the distance of the ticks

// State and rules of `frmOptions`. The controls start from the options in force; these change with cmdOK.
class OptionsChoice {
public:
    // Without critical data there is nothing to reduce by: a reduced volume basis goes at once.
    explicit OptionsChoice(Session& session);

    int OptCalcMode = 0;  // 0 single points, 1 data series
    int optMolarSpez = 0; // 0 molar, 1 specific
    bool chkReduziert = false, chkReduziertEnabled = true;
    bool chkCurveTpRestricted = false;
    bool chkSKurveOhneKonnode = false, chkSKurveOhneKonnodeEnabled = true;
    bool chkPartialKurve = false;
    int Slider1_punktdichte = 0; // within its limits whatever the options hold

    // What an acceptance changed for the windows that are open.
    struct Outcome {
        bool unitsChanged = false; // curves drawn so far are in the old units
        bool batchModeChanged = false;
    };
    // Takes the controls: units and their factors, diagram options, default windows of the diagrams, points
    // per curve, and the calculation menu that follows the mode.
    Outcome cmdOK();

private:
    void TakeUnits();
    void TakeDiagramOptions();

    Session& session;
};

} // namespace orva
