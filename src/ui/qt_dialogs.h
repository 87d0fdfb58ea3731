// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "state/dialogs.h"

namespace orva {

// Boxes of the desktop, over the active window.
class QtDialogs : public Dialogs {
public:
    void Show(const Message& message) override;
    bool Ask(const Question& question) override;
    std::optional<std::string> ChooseFile(const FileRequest& request) override;
    std::optional<std::string> InputText(const TextRequest& request) override;
};

// "Datenbank (*.Q05)|*.Q05" in the form of the desktop's file dialog; patterns are found in capitals and in
// small letters.
QString FileDialogFilter(const std::string& filter);

// ".LST" or "*.Q05" as the suffix of a file dialog: "LST", "Q05".
QString FileDialogSuffix(const std::string& extension);

} // namespace orva
