// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "cli/diagram_options.h"
#include "cli/drawing.h"
#include "diagrams/diagram_conditions.h"
#include "diagrams/diagram_window.h"

namespace orva {

DiagramRecords DiagramRecordsOf(Session& session) {
    return {session.model, session.options, session.ranges,
            session.curve, session.state,   session.calculation.diagramTemperature,
            session.names, session.style};
}

void ApplyDiagramOptions(const CurveOptions& curve, Options& options) {
    if (curve.points)
        options.curvePoints = static_cast<std::int16_t>(*curve.points);
    options.curveTpRestricted = curve.tpRestricted.value_or(options.curveTpRestricted);
    options.sCurveWithoutTieLine = curve.sCurveWithoutTieLine.value_or(options.sCurveWithoutTieLine);
    options.partialCurveGasOnly = curve.partialGasOnly.value_or(options.partialCurveGasOnly);
}

namespace {

struct DrawnCurve {
    double T = 0;                         // K
    std::optional<double> vapourFraction; // of a line of the coexistence mode
    bool drawn = false;
    CurveOutcome outcome;
    CurvePoints points;
};

bool FireCommand(DiagramWindow& window, const std::string& mode, double vapourFraction) {
    if (mode == "tie-line")
        return window.mnuMarkKonnode();
    if (mode == "s-curve")
        return window.mnuMarkSKurve();
    if (mode == "coexistence")
        return window.DrawCoexistence(vapourFraction);
    if (mode == "inversion")
        return window.mnuMarkInversion();
    return window.cmdDraw();
}

// The window adds the curve and words what stands against it.
DrawnCurve DrawCurve(const Session& session, DiagramWindow& window, const std::string& mode,
                     double vapourFraction) {
    DrawnCurve curve;
    curve.T = session.curve.curveT;
    curve.drawn = FireCommand(window, mode, vapourFraction);
    curve.outcome = window.LastOutcome();
    curve.points = window.LastCurve();
    if (!curve.drawn) {
        curve.points.Clear();
        // The window refuses a part inside of the two-phase region where there is none.
        if ((mode == "tie-line" || mode == "s-curve") && curve.outcome.status == curveGood)
            curve.outcome.status = curveTieLineImpossible;
    }
    return curve;
}

// The vapour fractions that a request asks for; one run each.
std::vector<double> FractionsOf(const CurveOptions& options) {
    if (options.mode != "coexistence")
        return {0};
    if (options.vapourFraction)
        return {*options.vapourFraction};
    return {0, 1};
}

Json TitlesJson(const DiagramSpec& spec) {
    return Json{{"xTitle", spec.xTitle},       {"yTitle", spec.yTitle},     {"headingText", spec.headingText},
                {"typeTitle", spec.typeTitle}, {"subTitle", spec.subTitle}, {"heading", spec.heading}};
}

Json WindowJson(const DiagramSpec& spec) {
    return NumbersJson(std::array<float, 4>{spec.xMin, spec.xMax, spec.yMin, spec.yMax});
}

Json PointsJson(const CurvePoints& points) {
    Json::array_t array;
    array.reserve(static_cast<std::size_t>(points.Count()));
    for (int i = 1; i <= points.Count(); ++i)
        array.push_back(NumbersJson(std::array<float, 3>{points[i].x, points[i].y, points[i].z}));
    return Json(std::move(array));
}

void AddOutcome(Json& json, const DrawnCurve& curve) {
    const TieLine& tie = curve.outcome.tie;
    json["status"] = curve.outcome.status;
    json["resultText"] = curve.outcome.resultText;
    json["zKind"] = curve.points.ZKind();
    json["tieLine"] = NumbersJson(std::array<float, 4>{tie.x1, tie.y1, tie.x2, tie.y2});
}

Json OneCurveJson(int type, const DrawnCurve& curve, const DiagramSpec& spec) {
    Json json{{"type", type}};
    AddOutcome(json, curve);
    json["window"] = WindowJson(spec);
    json["titles"] = TitlesJson(spec);
    json["points"] = PointsJson(curve.points);
    return json;
}

Json SeveralCurvesJson(int type, const std::vector<DrawnCurve>& curves, const DiagramSpec& spec) {
    Json json{{"type", type}, {"window", WindowJson(spec)}, {"titles", TitlesJson(spec)}};
    Json::array_t array;
    for (const DrawnCurve& curve : curves) {
        Json one{{"T", curve.T}};
        if (curve.vapourFraction)
            one["vapourFraction"] = *curve.vapourFraction;
        AddOutcome(one, curve);
        one["points"] = PointsJson(curve.points);
        array.push_back(std::move(one));
    }
    json["curves"] = std::move(array);
    return json;
}

void ApplyStartValues(const CurveOptions& curve, CurveRequest& request) {
    request.curveP = curve.p.value_or(request.curveP);
    request.curveV = curve.v.value_or(request.curveV);
}

} // namespace

Answer CurveCommand(Workspace& workspace, const Request& request, Drawing& drawing) {
    const CurveOptions& options = request.curve;
    if (const std::optional<Failure> failure = workspace.Prepare(request.context))
        return AnswerFor(*failure);
    Session& session = workspace.Records();
    ApplyDiagramOptions(options, session.options);
    const DiagramRow* row = FindDiagram(options.type);
    if (row != nullptr && !MayDraw(*row, session.model, session.dialogs))
        return AnswerFor(FailureFrom(exitCalculationFailed, workspace.Messages(), "no such diagram"));
    DiagramWindow window(DiagramRecordsOf(session), session.dialogs);
    window.Open(row);
    if (options.window) {
        const auto& [xMin, xMax, yMin, yMax] = *options.window;
        if (!window.cmdCoord_OK({xMin, xMax, yMin, yMax}))
            return AnswerFor(FailureFrom(exitWrongUsage, workspace.Messages(), "option window: not usable"));
    }
    ApplyStartValues(options, session.curve);
    if (options.limits)
        window.SetLimits((*options.limits)[0], (*options.limits)[1]);
    if (options.mode == "coexistence" && session.model.selection.nonCubic) {
        window.mnuMarkKoex(); // it words the refusal
        return AnswerFor(FailureFrom(exitCalculationFailed, workspace.Messages(), "no coexistence curve"));
    }
    const std::vector<double> temperatures =
        options.T.empty() ? std::vector<double>{session.curve.curveT} : options.T;

    Answer answer;
    std::vector<DrawnCurve> curves;
    for (const double T : temperatures) {
        session.curve.curveT = T;
        for (const double fraction : FractionsOf(options)) {
            curves.push_back(DrawCurve(session, window, options.mode, fraction));
            if (options.mode == "coexistence")
                curves.back().vapourFraction = fraction;
            if (curves.back().drawn || answer.exitStatus != exitGood)
                continue;
            answer.exitStatus = exitCalculationFailed;
            answer.error = "no curve: "
                           + FailureFrom(0, workspace.Messages(), "no point of it could be calculated").text;
        }
    }
    answer.json = curves.size() == 1 ? OneCurveJson(options.type, curves.front(), window.Spec())
                                     : SeveralCurvesJson(options.type, curves, window.Spec());
    answer.messages = workspace.Messages();
    answer.json["messages"] = MessagesJson(answer.messages);
    const bool anyDrawn = std::ranges::any_of(curves, &DrawnCurve::drawn);
    const std::optional<Failure> failure =
        anyDrawn ? drawing.Write(window.Chart(), options, session.style) : std::nullopt;
    if (failure) {
        answer.exitStatus = failure->exitStatus;
        answer.error = failure->text;
    }
    return answer;
}

} // namespace orva
