// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/json.h"

namespace orva {

enum ExitStatus { exitGood = 0, exitCalculationFailed = 1, exitWrongUsage = 2, exitDataError = 3 };

// Why a request got no result: the exit status and one line of text, with the boxes that the window shows for
// it.
struct Failure {
    int exitStatus = exitWrongUsage;
    std::string text;
    std::vector<Message> messages;
};

// What a command hands back.
struct Answer {
    Json json;            // null if there is nothing to print
    std::string jsonText; // instead of `json`, if the command wrote it straight
    std::string text;     // for the text format
    int exitStatus = exitGood;
    std::string error; // the line for standard error when the exit status is not 0
    std::vector<Message> messages;
};

// The line of JSON of an answer; empty if there is none.
std::string TakeJsonText(Answer&& answer);

// An answer that only says why there is none. {"error"}, with the boxes in {"messages"} if there are any.
Answer AnswerFor(const Failure& failure);

// The text with its line breaks as single blanks.
std::string OneLine(std::string_view text);

// A failure worded by the box that the window shows.
Failure FailureFrom(int exitStatus, const std::vector<Message>& messages, std::string_view otherwise);

} // namespace orva
