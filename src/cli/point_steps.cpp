// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/point_steps.h"

#include "calc/report_text.h"
#include "shell/road.h"

namespace orva {

namespace {

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

std::optional<Failure> StartPoint(Workspace& workspace, const PointOptions& point) {
    Session& session = workspace.Records();
    if (!SetCalculation(session, point.kind, point.assumeEquilibrium))
        return FailureFrom(exitCalculationFailed, workspace.Messages(), "the calculation is not possible");
    SettleMethod(point, session);
    TakeGivenValues(point, session.batch.rows.front());
    TakeVesselInput(point, session.calculation.vessel);
    return std::nullopt;
}

std::string FailureText(const PointResult& result) {
    for (const ResultLabel* label : {&result.par1, &result.par2, &result.co1, &result.co2})
        if (label->colour == TextColour::Red)
            return OneLine(label->text);
    if (!result.report.empty())
        return OneLine(result.report);
    if (!result.messages.empty())
        return OneLine(result.messages.back().text);
    return result.co2.text.empty() ? "no result" : OneLine(result.co2.text);
}

std::string ResultText(const PointResult& result) {
    std::string text;
    for (const ResultLabel* label : {&result.par1, &result.par2, &result.co1, &result.co2})
        text += label->text + '\n';
    for (const char c : result.report)
        if (c != '\r')
            text += c;
    return WithVisibleRules(text);
}

Answer AnswerOf(const Workspace& workspace, const PointResult& result) {
    Answer answer;
    answer.messages = workspace.Messages();
    answer.messages.insert(answer.messages.end(), result.messages.begin(), result.messages.end());
    if (result.failed) {
        answer.exitStatus = exitCalculationFailed;
        answer.error = "the calculation failed: " + FailureText(result);
    }
    return answer;
}

} // namespace orva
