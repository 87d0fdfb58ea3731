// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "text/columns.h"

namespace orva {

Answer FindCommand(Workspace& workspace, const std::string& text) {
    workspace.StartFresh();
    const int index = workspace.Lookup().FindNameOrNumber(text);
    Answer answer;
    answer.messages = workspace.Messages();
    answer.json = Json{{"found", index > 0}, {"index", index}, {"cas", ""}, {"name", ""}};
    if (index > 0) {
        const SubstanceListEntry& entry = workspace.Records().List().At(index);
        answer.json["cas"] = TrimRight(entry.cas);
        answer.json["name"] = TrimRight(entry.name);
    } else {
        answer.exitStatus = exitCalculationFailed;
        answer.error = FailureFrom(0, answer.messages, "nothing found for \"" + text + "\"").text;
    }
    answer.json["messages"] = MessagesJson(answer.messages);
    return answer;
}

} // namespace orva
