// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "cli/json_writer.h"
#include "cli/point_steps.h"

namespace orva {

namespace {

constexpr std::size_t usualAnswerSize = 2048; // bytes

auto RecordJson(const ResultRecord& record) {
    return [&record](std::string& text) {
        AppendObject(text, "phase", record.phase, "T", record.T, "p", record.p, "v", record.v, "Tcalc",
                     record.Tcalc, "pcalc", record.pcalc, "rhoV", record.rhoV, "rhoL", record.rhoL, "hLV",
                     record.hLV, "deriv", record.deriv, "resid", record.resid, "coeff", record.coeff, "mech",
                     record.mech, "h", record.h, "s", record.s, "g", record.g, "eH", record.eH, "eU",
                     record.eU);
    };
}

auto LabelsJson(const PointResult& result) {
    return [&result](std::string& text) {
        AppendObject(text, "par1", result.par1.text, "par2", result.par2.text, "co1", result.co1.text, "co2",
                     result.co2.text);
    };
}

std::string ResultJson(const PointResult& result, const std::vector<Message>& messages) {
    const auto boxes = [&messages](std::string& text) {
        text += messages.empty() ? "[]" : JsonText(MessagesJson(messages));
    };
    std::string text;
    text.reserve(usualAnswerSize);
    AppendObject(text, "kind", result.kind, "failed", result.failed, "note", result.note, "hasL", result.hasL,
                 "hasV", result.hasV, "rootIndex", result.rootIndex, "phaseVerdict", result.phaseVerdict,
                 "liquidPercent", result.liquidPercent, "p", result.p, "T", result.T, "results",
                 result.results, "record", RecordJson(result.record), "roots", result.roots, "labels",
                 LabelsJson(result), "report", result.report, "messages", boxes);
    return text;
}

} // namespace

Answer PointCommand(Workspace& workspace, const Request& request) {
    if (const std::optional<Failure> failure = workspace.Prepare(request.context))
        return AnswerFor(*failure);
    if (const std::optional<Failure> failure = StartPoint(workspace, request.point))
        return AnswerFor(*failure);
    Session& session = workspace.Records();
    CalculationContext context = session.Calculation();
    const PointResult result =
        CalcBatch(context, session.calculation.CalcKind, session.calculation.CurrentDataSet);
    Answer answer = AnswerOf(workspace, result);
    if (request.textFormat)
        answer.text = ResultText(result);
    else
        answer.jsonText = ResultJson(result, answer.messages);
    return answer;
}

} // namespace orva
