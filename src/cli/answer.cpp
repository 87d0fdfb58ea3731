// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/answer.h"

namespace orva {

Answer AnswerFor(const Failure& failure) {
    Answer answer;
    answer.exitStatus = failure.exitStatus;
    answer.error = failure.text;
    answer.messages = failure.messages;
    answer.json = Json{{"error", failure.text}};
    if (!failure.messages.empty())
        answer.json["messages"] = MessagesJson(failure.messages);
    return answer;
}

std::string TakeJsonText(Answer&& answer) {
    if (answer.jsonText.empty() && !answer.json.is_null())
        return JsonText(answer.json);
    return std::move(answer.jsonText);
}

std::string OneLine(std::string_view text) {
    std::string line;
    for (const char c : text) {
        const bool blank = c == '\n' || c == '\r' || c == ' ' || c == '\t';
        if (!blank)
            line += c;
        else if (!line.empty() && line.back() != ' ')
            line += ' ';
    }
    if (!line.empty() && line.back() == ' ')
        line.pop_back();
    return line;
}

Failure FailureFrom(int exitStatus, const std::vector<Message>& messages, std::string_view otherwise) {
    return {exitStatus, messages.empty() ? std::string(otherwise) : OneLine(messages.back().text), messages};
}

} // namespace orva
