// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "shell/help_search.h"
#include "shell/help_topics.h"

namespace orva {

// The help pages of the installation folder: "help/de", "help/en", the stylesheet "help/help.css" and the
// pictures "help/pictures". Files are read when they are asked for.
class HelpLibrary {
public:
    // `folder` is the folder "help".
    explicit HelpLibrary(std::filesystem::path folder);

    std::filesystem::path PagePath(HelpLanguage language, std::string_view page) const;

    // The page; where the file is missing, one that says so in German (in English among the English pages),
    // names the file and what to do.
    std::string Page(HelpLanguage language, std::string_view page) const;

    // Without variables, for a browser that knows none; empty if the file is missing.
    std::string StyleSheet(bool dark) const;

    // Searches all pages of the table of topics; those that are missing are passed over.
    std::vector<HelpHit> Search(HelpLanguage language, std::string_view query);

private:
    std::filesystem::path folder;
    std::array<std::optional<HelpIndex>, 2> indexes; // built with the first search
};

} // namespace orva
