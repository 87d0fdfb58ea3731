// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orva {

// A stretch of a page from a heading with an id to the next one, as plain text.
struct HelpSection {
    std::string anchor; // empty for the beginning of the page
    std::string heading;
    std::string text; // without the heading
};

struct HelpPage {
    std::string title; // of the head of the page
    std::vector<HelpSection> sections;
    std::vector<std::string> anchors; // every id of the page
    std::vector<std::string> links;   // every href of a link, as written
    std::vector<std::string> images;  // every src of an image, as written
};

// Reads what the search and the checks need from a help page in UTF-8. It survives any bytes: what is no
// markup is text.
HelpPage ReadHelpPage(std::string_view html);

// The stylesheet with its variables replaced, for a browser that knows none. Variables are declared as
// "--name: value;" in the first block ":root" for light ground and in a later one for dark ground, and used
// as "var(--name)". The declarations and the query around the dark ones are left out.
std::string ResolveStyleSheet(std::string_view css, bool dark);

} // namespace orva
