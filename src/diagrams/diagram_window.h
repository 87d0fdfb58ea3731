// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "diagrams/chart_document.h"
#include "diagrams/curve_generator.h"
#include "diagrams/diagram_records.h"
#include "state/dialogs.h"

namespace orva {

// The type of the coexistence curve in a diagram of `type`; its own where there is no other.
int CoexistenceTypeOf(int type);

// The rules of the diagram window: which curves it holds, what each command adds, and which words refuse it.
// Every curve, whatever command asks for it, goes through cmdDraw.
class DiagramWindow {
public:
    DiagramWindow(DiagramRecords records, Dialogs& dialogs);

    // A new diagram from the catalogue replaces all contents. False if the type is not built.
    bool Open(const DiagramRow* row);
    bool IsOpen() const { return spec.type != 0; }

    // One curve for the T, p, v of the curve request. True if a curve was added.
    bool cmdDraw();
    // What a diagram without an input shows when it is opened: its curve, or both boundaries of the two-phase
    // region.
    bool DrawAtOnce();
    bool mnuMarkKonnode();     // tie line of the current T or p
    bool mnuMarkSKurve();      // inner part of the loop
    bool mnuMarkKoex();        // both boundaries of the two-phase region
    bool mnuMarkInversion();   // where the Joule-Thomson coefficient is 0
    bool mnuMarkHalbierende(); // mean of both densities, in the diagram of densities over T
    // One line of the two-phase region by its vapour fraction: 0 the liquid, 1 the vapour boundary.
    bool DrawCoexistence(double vapourFraction);

    // Limits of p in kPa (isotherm) or T in K (isobar) of a diagram of two functions.
    void SetLimits(double low, double high);
    double LimitLow() const { return mode.limitLow; }
    double LimitHigh() const { return mode.limitHigh; }

    // Marker lines and points; a second call removes the mark again.
    bool mnuMarkT();             // T(cr), T(trip), T(LV) at p and at normal pressure
    bool mnuMarkP();             // p(cr), p(LV) at T, normal pressure
    bool mnuMarkV();             // v(crit)
    bool mnuMarkB();             // v = b
    bool mnuMarkCritPointCalc(); // of the equation of state
    bool mnuMarkCritPointEx();   // of the database
    bool HasMark(std::string_view command) const;

    void mnuSubDelKurv(int slot);
    void mnuDelTotal(); // all curves and marks

    // New limits of the diagram. Refused, with false, unless each lower limit stays below its upper one.
    bool cmdCoord_OK(const ChartWindow& limits);
    void cmdXLog();
    void cmdYLog();
    void SetView(const ChartWindow& view); // what zooming and panning show
    void cmdZoomReset();
    bool IsZoomed() const { return chart.view != chart.window; }

    const DiagramSpec& Spec() const { return spec; }
    const ChartDocument& Chart() const { return chart; }
    const DiagramRecords& Records() const { return records; }
    const CurveOutcome& LastOutcome() const { return outcome; }
    const CurvePoints& LastCurve() const { return curve; }

    // Called after every change of the chart; `what` tells whether only the view moved.
    enum class Change { Contents, View };
    std::function<void(Change)> changed;

private:
    bool AddCurve();
    bool WordStatus();
    bool AddCurveSlot();
    std::string LegendText() const;
    bool DrawAs(int type, int curveKind);
    bool RefuseNonCubic(const char* text);
    bool IsBelowCriticalT();
    bool IsBelowCriticalP();
    bool Toggle(const char* command, std::vector<ChartMark> marks);
    void Refuse(const std::string& text);
    void Notify(Change change = Change::Contents);

    DiagramRecords records;
    Dialogs& dialogs;
    DiagramSpec spec;
    CurveMode mode;
    CurvePoints curve;
    CurveOutcome outcome;
    ChartDocument chart;
};

} // namespace orva
