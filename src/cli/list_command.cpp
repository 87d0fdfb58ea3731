// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/commands.h"
#include "text/columns.h"

namespace orva {

Answer ListCommand(Workspace& workspace) {
    workspace.StartFresh();
    Answer answer;
    answer.json = Json::array();
    int index = 0;
    for (const SubstanceListEntry& entry : workspace.Records().List().entries)
        answer.json.push_back(Json{{"index", ++index},
                                   {"number", entry.number},
                                   {"formula", TrimRight(entry.formula)},
                                   {"name", TrimRight(entry.name)},
                                   {"cas", TrimRight(entry.cas)}});
    return answer;
}

} // namespace orva
