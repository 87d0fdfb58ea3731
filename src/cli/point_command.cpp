// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/report_text.h"
#include "cli/commands.h"
#include "cli/json_writer.h"
#include "shell/road.h"

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

// What the window shows in red, in one line.
std::string FailureText(const PointResult& result) {
    for (const ResultLabel* label : {&result.par1, &result.par2, &result.co1, &result.co2})
        if (label->colour == TextColour::Red)
            return OneLine(label->text);
    return result.report.empty() ? "no result" : OneLine(result.report);
}

// The four labels, a line each, and the report.
std::string ResultText(const PointResult& result) {
    std::string text;
    for (const ResultLabel* label : {&result.par1, &result.par2, &result.co1, &result.co2})
        text += label->text + '\n';
    for (const char c : result.report)
        if (c != '\r')
            text += c;
    return WithVisibleRules(text);
}

void TakeGivenValues(const PointOptions& point, BatchRow& row) {
    row = {};
    row.T = point.T.value_or(0);
    row.p = point.p.value_or(0);
    row.rhoV = static_cast<float>(point.rho.value_or(0));
    row.rhoL = static_cast<float>(point.rhoLiquid.value_or(0));
}

void TakeVesselInput(const PointOptions& point, VesselInput& vessel) {
    vessel.m = static_cast<float>(point.mass.value_or(0));
    vessel.V = static_cast<float>(point.volume.value_or(0));
    vessel.T = static_cast<float>(point.T.value_or(0));
}

// What the window would settle in `frmCalcIn`, with its own choices where nothing is given.
void SettleMethod(const PointOptions& point, Session& session) {
    CalculationState& calculation = session.calculation;
    const int kind = calculation.CalcKind;
    const bool settles = calculation.AssumeEquilibrium || kind == kindVesselPartial
                         || (kind >= kindSaturationPressure && kind <= kindVaporisationAtP);
    if (settles) {
        CalculationInput input = MakeCalculationInput(session);
        if (point.liquidDensity)
            calculation.BensonLiquid = *point.liquidDensity == "benson";
        if (point.referenceDensity) {
            const auto& [T, p, rhoL, rhoV] = *point.referenceDensity;
            calculation.referenceDensity = {static_cast<float>(T), static_cast<float>(p),
                                            static_cast<float>(rhoL), static_cast<float>(rhoV)};
        }
        input.Accept();
    }
    if (point.method)
        calculation.GlobalMethod = *point.method == "global";
}

} // namespace

Answer PointCommand(Workspace& workspace, const Request& request) {
    if (const std::optional<Failure> failure = workspace.Prepare(request.context))
        return AnswerFor(*failure);
    Session& session = workspace.Records();
    if (!SetCalculation(session, request.point.kind, request.point.assumeEquilibrium))
        return AnswerFor(
            FailureFrom(exitCalculationFailed, workspace.Messages(), "the calculation is not possible"));
    SettleMethod(request.point, session);
    TakeGivenValues(request.point, session.batch.rows.front());
    TakeVesselInput(request.point, session.calculation.vessel);
    CalculationContext context = session.Calculation();
    const PointResult result =
        CalcBatch(context, session.calculation.CalcKind, session.calculation.CurrentDataSet);

    Answer answer;
    answer.messages = workspace.Messages();
    answer.messages.insert(answer.messages.end(), result.messages.begin(), result.messages.end());
    if (request.textFormat)
        answer.text = ResultText(result);
    else
        answer.jsonText = ResultJson(result, answer.messages);
    if (result.failed) {
        answer.exitStatus = exitCalculationFailed;
        answer.error = "the calculation failed: " + FailureText(result);
    }
    return answer;
}

} // namespace orva
