// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

namespace orva {

enum class MessageIcon { None, Information, Exclamation, Stop, Question };

// A box with one button. The text holds "\n" as line break.
struct Message {
    std::string title;
    std::string text;
    MessageIcon icon = MessageIcon::Exclamation;

    bool operator==(const Message&) const = default;
};

// A box with Yes and No.
struct Question {
    std::string title;
    std::string text;
    MessageIcon icon = MessageIcon::Question;
    bool yesIsDefault = true;
};

// A system dialog that picks one file.
struct FileRequest {
    std::string title;
    std::string filter; // "Datenbank (*.Q05)|*.Q05"
    std::string folder;
    std::string fileName;
    std::string defaultExtension;
    bool saving = false; // asks before it overwrites
};

// A system dialog that takes one line of text.
struct TextRequest {
    std::string title;
    std::string prompt;
    std::string text;
};

// How rooms without windows talk to the user. The windows answer with boxes, the command line collects the
// messages, tests script the answers.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual void Show(const Message& message) = 0;
    virtual bool Ask(const Question& question) = 0;                                // true for Yes
    virtual std::optional<std::string> ChooseFile(const FileRequest& request) = 0; // empty on cancel
    virtual std::optional<std::string> InputText(const TextRequest& request) = 0;  // empty on cancel
};

} // namespace orva
