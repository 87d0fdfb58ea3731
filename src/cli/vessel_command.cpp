// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/vessel_picture.h"
#include "cli/commands.h"
#include "cli/point_steps.h"

namespace orva {

namespace {

// The method that the vessel button of the toolbar would take.
bool IsGlobal(const PointOptions& point, const ModelSelection& selection) {
    if (point.method)
        return *point.method == "global";
    return selection.eosPriority && !selection.nonCubic;
}

Json LabelsJson(const VesselPicture& picture) {
    return Json{{"caption", picture.caption},       {"title", picture.title},
                {"pressure", picture.pressureText}, {"level", picture.levelText},
                {"phase", picture.phaseText},       {"note", picture.noteText}};
}

Json VesselJson(const PointResult& result, const VesselPicture& picture,
                const std::vector<Message>& messages) {
    return Json{{"kind", result.kind},
                {"failed", result.failed},
                {"note", result.note},
                {"hasL", result.hasL},
                {"hasV", result.hasV},
                {"T", result.T},
                {"p", result.p},
                {"liquidPercent", result.liquidPercent},
                {"fillPercent", picture.fillPercent},
                {"levelHeight", picture.levelHeight},
                {"labels", LabelsJson(picture)},
                {"results", NumbersJson(result.results)},
                {"report", result.report},
                {"messages", MessagesJson(messages)}};
}

// The labels of the picture, those that say something, below the text of the result window.
std::string VesselText(const PointResult& result, const VesselPicture& picture) {
    std::string text = ResultText(result) + '\n' + picture.caption + '\n';
    for (const std::string* label :
         {&picture.pressureText, &picture.levelText, &picture.phaseText, &picture.noteText})
        if (!label->empty())
            text += *label + '\n';
    return text;
}

} // namespace

Answer VesselCommand(Workspace& workspace, const Request& request) {
    if (const std::optional<Failure> failure = workspace.Prepare(request.context))
        return AnswerFor(*failure);
    Session& session = workspace.Records();
    PointOptions point = request.point;
    point.kind = IsGlobal(point, session.model.selection) ? kindVesselGlobal : kindVesselPartial;
    if (const std::optional<Failure> failure = StartPoint(workspace, point))
        return AnswerFor(*failure);
    CalculationContext context = session.Calculation();
    const PointResult result = CalcBatch(context, point.kind, session.calculation.CurrentDataSet);
    const VesselPicture picture =
        DrawVessel(session.calculation.vesselResult, point.kind, session.model.substance, session.style);
    Answer answer = AnswerOf(workspace, result);
    const bool refused = result.note == noteExit; // by a box; the windows do not open
    if (refused && !answer.messages.empty())
        answer.error = OneLine(answer.messages.back().text);
    if (request.textFormat)
        answer.text = refused ? std::string() : VesselText(result, picture);
    else
        answer.json = VesselJson(result, picture, answer.messages);
    return answer;
}

} // namespace orva
