// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/json.h"

namespace orva {

std::string JsonText(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

Json MessagesJson(const std::vector<Message>& messages) {
    Json array = Json::array();
    for (const Message& message : messages)
        array.push_back(Json{{"title", message.title}, {"text", message.text}});
    return array;
}

} // namespace orva
