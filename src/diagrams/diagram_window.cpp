// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/diagram_window.h"

#include <cmath>

#include "diagrams/chart_text.h"
#include "diagrams/diagram_setup.h"

namespace orva {

namespace {

constexpr const char* titleRefused = "Ausführung nicht möglich";
constexpr const char* titleWarning = "WARNUNG";

constexpr std::int16_t densityProjection = 8; // both densities over T

struct StatusWords {
    std::int16_t status;
    Message message;
    bool ends; // no curve is stored
};

// The words for each way a curve can end. The text of the run goes in front where it tells the reason.
std::optional<StatusWords> WordsFor(const CurveOutcome& outcome, bool nonCubic) {
    switch (outcome.status) {
    case curveFault:
        return StatusWords{curveFault,
                           {"ABBRUCH", outcome.resultText + "\nEs ist ein kritischer Fehler aufgetreten:",
                            MessageIcon::Stop},
                           true};
    case curveNoProcessLine:
        return StatusWords{curveNoProcessLine, {"ABBRUCH", outcome.resultText, MessageIcon::Stop}, true};
    case curveBelowTriplePoint:
        if (nonCubic)
            return std::nullopt;
        return StatusWords{curveBelowTriplePoint,
                           {titleWarning, "Es wurde teilweise bei T < T(Trip.P.) gerechnet! (Tripelpunkt)"},
                           false};
    case curveNoCriticalDensity:
        return StatusWords{curveNoCriticalDensity, {titleRefused, "keine kritische Dichte verfügbar"}, true};
    case curveTieLineImpossible:
        return StatusWords{
            curveTieLineImpossible, {titleRefused, "Konnoden nur für T < T(cr) und p < p(cr) möglich"}, true};
    case curveEndedEarly:
        return StatusWords{curveEndedEarly,
                           {"Hinweis", "Die Kurvenberechnung wurde abgebrochen.\n"
                                       "Möglicherweise wurde die VL-Koexistenzkurve erreicht.\n"
                                       "Kontrollieren Sie durch Einfügen der Koexistenzkurve."},
                           false};
    case curveOutsideWindow:
        return StatusWords{curveOutsideWindow,
                           {titleWarning, "Kurve befindet sich nicht im eingestellten Koordinatenfenster\n"
                                          "Vergrößern Sie das Koordinatenfenster."},
                           false};
    default:
        return std::nullopt;
    }
}

bool IsOrdered(const ChartWindow& w) {
    return w.xMin < w.xMax && w.yMin < w.yMax && std::isfinite(w.xMax - w.xMin)
           && std::isfinite(w.yMax - w.yMin);
}

} // namespace

DiagramWindow::DiagramWindow(DiagramRecords theRecords, Dialogs& theDialogs)
    : records(theRecords), dialogs(theDialogs) {}

bool DiagramWindow::Open(const DiagramRow* row) {
    if (row == nullptr)
        return false;
    spec = {};
    SelectDiagram(records, *row, spec);
    mode = {};
    const bool isobar = row->curveKind == curveIsobar;
    SetLimits(isobar ? records.ranges.TMin / records.options.TFactor
                     : records.ranges.pMin / records.options.pFactor,
              isobar ? records.ranges.TMax / records.options.TFactor
                     : records.ranges.pMax / records.options.pFactor);
    chart = {};
    chart.headingLines = {spec.headingText, " Diagrammtyp:  " + spec.typeTitle, spec.subTitle};
    chart.xTitle = spec.xTitle;
    chart.yTitle = spec.yTitle;
    chart.xQuantity = row->x.quantity;
    chart.yQuantity = row->y.quantity;
    chart.window = {spec.xMin, spec.xMax, spec.yMin, spec.yMax};
    chart.view = chart.window;
    Notify();
    return true;
}

bool DiagramWindow::cmdDraw() {
    const bool drawn = AddCurve();
    if (drawn)
        Notify();
    return drawn;
}

// Without telling anybody, so that a command may set things back before.
bool DiagramWindow::AddCurve() {
    curve.Clear();
    outcome = {};
    const CurveRequest& request = records.request;
    mode.pMin = records.ranges.pMin;
    mode.pMax = records.ranges.pMax;
    mode.style = records.style;
    GenerateCurve(records.model, records.options, mode, spec, curve, request.curveT, request.curveP,
                  request.curveV, outcome);
    if (!WordStatus() || curve.Count() == 0 || !AddCurveSlot())
        return false;
    ChartSeries& series = chart.Series(chart.currentSlot);
    StorePoints(curve, series);
    if (mode.sCurveMode)
        series.style = LineStyle::Dashed;
    if (spec.type == densityProjection) // its points change from phase to phase, no line joins them
        series.style = LineStyle::PointsOnly;
    if (spec.curveKind == curveInversion)
        InterruptAtJumps(series);
    series.legend = LegendText();
    series.label = series.legend;
    series.labelPoint = LabelPoint(curve, spec.xMax, chart.currentSlot);
    if (!outcome.resultText.empty())
        chart.headingLines[1] = " Diagrammtyp:  " + spec.typeTitle + outcome.resultText;
    return true;
}

// Shows the message of the last run; false if the command ends with it.
bool DiagramWindow::WordStatus() {
    const std::optional<StatusWords> words = WordsFor(outcome, records.model.selection.nonCubic);
    if (!words)
        return true;
    dialogs.Show(words->message);
    return !words->ends;
}

bool DiagramWindow::AddCurveSlot() {
    if (chart.TakeSlot() > 0)
        return true;
    dialogs.Show({titleWarning, "Maximal " + std::to_string(largestCurveCount)
                                    + " Kurven möglich\nLöschen Sie vorhandene Kurven"});
    return false;
}

std::string DiagramWindow::LegendText() const {
    const CurveDescription description{
        spec, mode, records.request, records.options, records.model.eos.vCritCalc, records.style};
    return std::string("(").append(std::to_string(chart.currentSlot)) + ") " + DescribeCurve(description);
}

void DiagramWindow::SetLimits(double low, double high) {
    mode.limitLow = low;
    mode.limitHigh = high;
}

void DiagramWindow::mnuSubDelKurv(int slot) {
    chart.FreeSlot(slot);
    Notify();
}

void DiagramWindow::mnuDelTotal() {
    chart.FreeAllSlots();
    chart.marks.clear();
    Notify();
}

bool DiagramWindow::cmdCoord_OK(const ChartWindow& limits) {
    if (!IsOrdered(limits)) {
        dialogs.Show({"EINGABE-FEHLER", "Untere Grenze muss kleiner als obere Grenze sein"});
        return false;
    }
    spec.xMin = static_cast<float>(limits.xMin);
    spec.xMax = static_cast<float>(limits.xMax);
    spec.yMin = static_cast<float>(limits.yMin);
    spec.yMax = static_cast<float>(limits.yMax);
    chart.window = {spec.xMin, spec.xMax, spec.yMin, spec.yMax};
    chart.view = chart.window;
    Notify();
    return true;
}

void DiagramWindow::cmdXLog() {
    chart.logX = !chart.logX;
    Notify();
}

void DiagramWindow::cmdYLog() {
    chart.logY = !chart.logY;
    Notify();
}

void DiagramWindow::SetView(const ChartWindow& view) {
    if (!IsOrdered(view) || view == chart.view)
        return;
    chart.view = view;
    Notify(Change::View);
}

void DiagramWindow::cmdZoomReset() {
    chart.view = chart.window;
    Notify(Change::View);
}

void DiagramWindow::Refuse(const std::string& text) {
    outcome = {}; // that of the curve before tells nothing of this one
    curve.Clear();
    dialogs.Show({titleRefused, text});
}

void DiagramWindow::Notify(Change change) {
    if (changed)
        changed(change);
}

} // namespace orva
