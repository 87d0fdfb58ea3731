// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/function_inversion.h"
#include "cli/commands.h"
#include "cli/point_steps.h"

namespace orva {

namespace {

constexpr const char* noSolution = "keine Lösung";

// The words of the window.
std::string SolutionText(const IsoSolution& solution, bool solveForT, NumberStyle style) {
    if (solution.failed)
        return noSolution;
    return (solveForT ? "T/K =" : "p/kPa =") + Str(static_cast<float>(solution.x), style);
}

Json InverseJson(const InverseOptions& wanted, const IsoSolution& solution, const std::string& text,
                 const std::vector<Message>& messages) {
    const PointResult& point = solution.point;
    return Json{{"function", wanted.functionName},
                {"phase", wanted.phase == 0 ? "V" : "L"},
                {"value", wanted.value},
                {"solveFor", wanted.solveForT ? "T" : "p"},
                {"failed", solution.failed},
                {"x", solution.x},
                {"text", text},
                {"T", point.T},
                {"p", point.p},
                {"hasL", point.hasL},
                {"hasV", point.hasV},
                {"results", NumbersJson(point.results)},
                {"report", point.report},
                {"messages", MessagesJson(messages)}};
}

} // namespace

Answer InverseCommand(Workspace& workspace, const Request& request) {
    if (const std::optional<Failure> failure = workspace.Prepare(request.context))
        return AnswerFor(*failure);
    Session& session = workspace.Records();
    PointOptions point = request.point;
    point.kind = kindFunctions;
    if (const std::optional<Failure> failure = StartPoint(workspace, point))
        return AnswerFor(*failure);
    const InverseOptions& wanted = request.inverse;
    CalculationContext context = session.Calculation();
    const IsoSolution solution = SolveIso(context, session.batch.rows.front(), wanted.solveForT,
                                          wanted.function, wanted.value, wanted.phase);
    const std::string text = SolutionText(solution, wanted.solveForT, session.style);
    Answer answer = AnswerOf(workspace, solution.point);
    if (solution.failed) {
        answer.exitStatus = exitCalculationFailed;
        answer.error = noSolution;
    }
    if (request.textFormat)
        answer.text = text + '\n' + (solution.failed ? std::string() : ResultText(solution.point));
    else
        answer.json = InverseJson(wanted, solution, text, answer.messages);
    return answer;
}

} // namespace orva
