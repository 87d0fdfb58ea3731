// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "shell/road.h"
#include "substance/model_choice.h"
#include "text/columns.h"

namespace orva {

namespace {

Json RowsJson(const ChoiceList& list) {
    Json rows = Json::array();
    for (const ChoiceRow& row : list.rows)
        rows.push_back(Json{{"number", row.number}, {"text", Trim(row.text)}});
    return rows;
}

Json VaporPressureJson(const ChoiceList& list) {
    Json rows = Json::array();
    for (const ChoiceRow& row : list.rows)
        rows.push_back(Json{
            {"number", row.number}, {"code", VaporPressureCodeOf(row.number)}, {"text", Trim(row.text)}});
    return rows;
}

Json ExponentsJson(const ChoiceList& list) {
    Json rows = Json::array();
    for (const ChoiceRow& row : list.rows)
        rows.push_back(row.text);
    return rows;
}

Json SelectionJson(const ModelSelection& selection) {
    return Json{{"eos", selection.eos},
                {"vaporPressure", selection.vaporPressure},
                {"vaporPressureCode", selection.vaporPressureCode},
                {"vaporization", selection.vaporization},
                {"cpModel", selection.cpModel},
                {"watsonExponent", static_cast<double>(selection.watsonExponent)},
                {"eosPriority", selection.eosPriority},
                {"nonCubic", selection.nonCubic}};
}

} // namespace

Answer ModelsCommand(Workspace& workspace, const std::string& substance) {
    workspace.StartFresh();
    if (const std::optional<Failure> failure = workspace.TakeSubstance(substance))
        return AnswerFor(*failure);
    Session& session = workspace.Records();
    ModelChoice window = MakeModelChoice(session);
    window.Open();
    Answer answer;
    answer.messages = workspace.Messages();
    answer.json = Json{{"title", window.title},
                       {"liquidDensity", {window.Rx1, window.Rx2}},
                       {"eos", RowsJson(window.EOSKombi)},
                       {"vaporPressure", VaporPressureJson(window.pKombi)},
                       {"vaporization", RowsJson(window.HLVKombi)},
                       {"watsonExponent", ExponentsJson(window.WatsonKombi)},
                       {"cpModel", RowsJson(window.cpKombi)},
                       {"preset", SelectionJson(session.model.selection)},
                       {"messages", MessagesJson(answer.messages)}};
    return answer;
}

} // namespace orva
