// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "state/dialogs.h"

namespace orva::test {

// A user who answers from a script and remembers every box.
class ScriptedDialogs : public Dialogs {
public:
    std::vector<Message> shown;
    std::vector<Question> asked;
    std::vector<FileRequest> fileRequests;
    std::vector<TextRequest> textRequests;
    std::deque<bool> answers;                            // No when the script runs out
    std::deque<std::optional<std::string>> files, texts; // a cancel when the script runs out

    void Show(const Message& message) override { shown.push_back(message); }

    bool Ask(const Question& question) override {
        asked.push_back(question);
        return Next(answers, false);
    }

    std::optional<std::string> ChooseFile(const FileRequest& request) override {
        fileRequests.push_back(request);
        return Next(files, std::optional<std::string>());
    }

    std::optional<std::string> InputText(const TextRequest& request) override {
        textRequests.push_back(request);
        return Next(texts, std::optional<std::string>());
    }

private:
    template<typename T> static T Next(std::deque<T>& script, T otherwise) {
        if (script.empty())
            return otherwise;
        T answer = script.front();
        script.pop_front();
        return answer;
    }
};

} // namespace orva::test
