// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "state/dialogs.h"

namespace orva {

// A user who reads every box and changes nothing: questions get the answer of their default button, a file
// dialog the file that the command line named.
class CollectingDialogs : public Dialogs {
public:
    std::vector<Message> messages;
    std::optional<std::string> fileName;

    void Show(const Message& message) override { messages.push_back(message); }
    bool Ask(const Question& question) override { return question.yesIsDefault; }
    std::optional<std::string> ChooseFile(const FileRequest&) override { return fileName; }
    std::optional<std::string> InputText(const TextRequest&) override { return std::nullopt; }
};

} // namespace orva
