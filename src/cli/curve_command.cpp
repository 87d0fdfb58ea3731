// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "cli/drawing.h"
#include "diagrams/diagram_window.h"

namespace orva {

namespace {

struct DrawnCurve {
    double T = 0; // K
    bool drawn = false;
    CurveOutcome outcome;
    CurvePoints points;
};

DiagramRecords RecordsOf(Session& session) {
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

bool FireCommand(DiagramWindow& window, const std::string& mode) {
    if (mode == "tie-line")
        return window.mnuMarkKonnode();
    if (mode == "s-curve")
        return window.mnuMarkSKurve();
    return window.cmdDraw();
}

// The window adds the curve and words what stands against it; the numbers come from the generator itself on a
// copy of the records, because the chart keeps z for its first points only.
DrawnCurve DrawCurve(Session& session, DiagramWindow& window, const std::string& mode) {
    SubstanceModel model = session.model;
    Options options = session.options;
    DiagramSpec spec = window.Spec();
    CurveMode flags;
    flags.tieLineMode = mode == "tie-line";
    flags.sCurveMode = mode == "s-curve";

    DrawnCurve curve;
    curve.T = session.curve.curveT;
    curve.drawn = FireCommand(window, mode);
    GenerateCurve(model, options, flags, spec, curve.points, session.curve.curveT, session.curve.curveP,
                  session.curve.curveV, curve.outcome);
    if (!curve.drawn) {
        curve.points.Clear();
        // The window refuses a part inside of the two-phase region where there is none.
        if (mode != "curve" && curve.outcome.status == curveGood)
            curve.outcome.status = curveTieLineImpossible;
    }
    return curve;
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
    DiagramWindow window(RecordsOf(session), session.dialogs);
    window.Open(FindDiagram(options.type));
    if (options.window) {
        const auto& [xMin, xMax, yMin, yMax] = *options.window;
        if (!window.cmdCoord_OK({xMin, xMax, yMin, yMax}))
            return AnswerFor(FailureFrom(exitWrongUsage, workspace.Messages(), "option window: not usable"));
    }
    ApplyStartValues(options, session.curve);
    const std::vector<double> temperatures =
        options.T.empty() ? std::vector<double>{session.curve.curveT} : options.T;

    Answer answer;
    std::vector<DrawnCurve> curves;
    for (const double T : temperatures) {
        session.curve.curveT = T;
        curves.push_back(DrawCurve(session, window, options.mode));
        if (!curves.back().drawn && answer.exitStatus == exitGood) {
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
