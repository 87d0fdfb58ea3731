// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/help_library.h"

#include "text/text_file.h"

namespace orva {

namespace {

std::string Utf8Of(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char c : text)
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        default:
            escaped += c;
        }
    return escaped;
}

std::string MissingPage(HelpLanguage language, std::string_view page, const std::filesystem::path& path) {
    const bool german = language == HelpLanguage::German;
    const HelpTopic* topic = FindHelpTopic(page, "");
    const std::string title(german ? "Hilfeseite nicht gefunden" : "Help page not found");
    std::string html = "<html><head><title>" + title + "</title></head><body><h1>" + title + "</h1><p>";
    if (topic != nullptr) {
        html += german ? "Die Seite „" : "The page “";
        html += Escaped(TitleOf(*topic, language));
        html += german ? "“ fehlt. " : "” is missing. ";
    }
    html += german ? "Erwartet wird die Datei" : "This file is expected";
    html += ":</p><p><b>" + Escaped(Utf8Of(path)) + "</b></p><p>";
    html += german
                ? "Alle anderen Teile des Programms arbeiten weiter. Die Hilfeseiten gehören in den Ordner "
                  "<b>help</b> des ORVA-Verzeichnisses; kopieren Sie ihn aus der Installation dorthin."
                : "All other parts of the program go on working. The help pages belong into the folder "
                  "<b>help</b> of the installation folder; copy it there from the installation.";
    return html + "</p></body></html>";
}

} // namespace

HelpLibrary::HelpLibrary(std::filesystem::path helpFolder) : folder(std::move(helpFolder)) {}

std::filesystem::path HelpLibrary::PagePath(HelpLanguage language, std::string_view page) const {
    return folder / HelpFolderOf(language) / std::u8string(page.begin(), page.end());
}

std::string HelpLibrary::Page(HelpLanguage language, std::string_view page) const {
    const std::filesystem::path path = PagePath(language, page);
    if (const auto html = ReadFile(path))
        return *html;
    return MissingPage(language, page, path);
}

std::string HelpLibrary::StyleSheet(bool dark) const {
    return ResolveStyleSheet(ReadFile(folder / "help.css").value_or(""), dark);
}

std::vector<HelpHit> HelpLibrary::Search(HelpLanguage language, std::string_view query) {
    std::optional<HelpIndex>& index = indexes.at(static_cast<std::size_t>(language));
    if (!index) {
        index.emplace();
        for (const HelpTopic& topic : HelpTopics())
            if (topic.anchor.empty())
                if (const auto html = ReadFile(PagePath(language, topic.page)))
                    index->Add(topic.page, ReadHelpPage(*html));
    }
    return index->Search(query);
}

} // namespace orva
