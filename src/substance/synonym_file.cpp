// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/synonym_file.h"

#include <system_error>

#include "substance/name_search.h"
#include "text/code_page.h"
#include "text/columns.h"
#include "text/lines.h"
#include "text/text_file.h"

namespace orva {

namespace {

constexpr int blanksInMiddle = 3;

// Square brackets stay here, while the search key is without them: a synonym with one is never found; kept.
std::string WithoutSigns(std::string_view line) {
    std::string letters;
    for (const char c : line) {
        if (std::string_view("-().").find(c) == std::string_view::npos)
            letters += c;
    }
    return letters;
}

SynonymResult Search(LineReader lines, const std::string& normalised) {
    const std::string key = SearchKey(normalised);
    while (const auto first = lines.Next()) {
        const auto second = lines.Next();
        if (!second)
            break;
        const std::string cas(TrimRight(*first));
        SynonymResult found{cas, Utf8FromOem(*second), false};
        if (cas == normalised)
            return found;
        for (auto line = lines.Next(); line && !line->empty(); line = lines.Next()) {
            if (WithoutSigns(Utf8FromOem(*line)) == key)
                return found;
        }
    }
    return {};
}

SynonymResult Failure(Dialogs& dialogs, const std::string& text) {
    dialogs.Show({"FEHLER", text, MessageIcon::Exclamation});
    SynonymResult result;
    result.failed = true;
    return result;
}

} // namespace

SynonymResult LookUpSynonym(std::string_view text, const std::filesystem::path& installationFolder,
                            Dialogs& dialogs) {
    const std::filesystem::path path = installationFolder / "SYNOM.TXT";
    std::error_code error;
    if (!std::filesystem::exists(path, error))
        return Failure(dialogs, "Datei 'SYNOM.TXT' im ORVA-Verzeichnis nicht gefunden.\n"
                                "Wählen Sie den Stoff über die Liste.");
    const std::optional<std::string> bytes = ReadFile(path);
    if (!bytes)
        return Failure(dialogs, "Datei 'SYNOM.TXT' kann nicht gelesen werden.");
    return Search(LineReader(*bytes), NormaliseName(text));
}

SynonymDescription DescribeSynonym(std::string_view secondLine) {
    if (secondLine.empty())
        return {};
    secondLine.remove_prefix(FixedField(secondLine, 1).size());
    const std::size_t first = secondLine.find('_');
    if (first == secondLine.npos)
        return {.name = std::string(secondLine), .middle = {}, .lastField = {}};
    const std::size_t last = secondLine.rfind('_');
    SynonymDescription parts;
    parts.name = secondLine.substr(0, first);
    parts.lastField = secondLine.substr(last + 1);
    if (last > first)
        parts.middle = secondLine.substr(first + 1, last - first - 1);
    for (int i = 0; i < blanksInMiddle; ++i) {
        if (const std::size_t at = parts.middle.find('_'); at != parts.middle.npos)
            parts.middle[at] = ' ';
    }
    return parts;
}

} // namespace orva
