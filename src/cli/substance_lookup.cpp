// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/substance_lookup.h"

#include <charconv>

#include "substance/substance_choice.h"
#include "text/columns.h"

namespace orva {

namespace {

// The whole text as a number of digits; 0 for anything else.
int WholeNumber(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? number : 0;
}

} // namespace

void SubstanceLookup::BuildNames() {
    std::vector<std::string> german, english;
    int index = 0;
    for (const SubstanceListEntry& entry : session.List().entries) {
        ++index;
        const std::optional<DatabaseRecord> record = session.database.ReadRecord(index);
        german.emplace_back(TrimRight(entry.name));
        english.emplace_back(record ? TrimRight(record->nameEnglish) : std::string_view());
        names.emplace(german.back(), index);
        names.emplace(TrimRight(entry.cas), index);
    }
    for (const auto* whole : {&german, &english}) {
        for (std::size_t i = 0; i < whole->size(); ++i)
            names.emplace((*whole)[i], static_cast<int>(i) + 1);
        for (std::size_t i = 0; i < whole->size(); ++i)
            names.emplace(TrimRight(std::string_view((*whole)[i]).substr(0, (*whole)[i].find(';'))),
                          static_cast<int>(i) + 1);
    }
    names.erase("");
}

int SubstanceLookup::Find(std::string_view text) {
    text = Trim(text);
    if (text.empty())
        return 0;
    if (text.front() == '#') {
        const int index = WholeNumber(text.substr(1));
        return index >= 1 && index <= session.state.substanceCount ? index : 0;
    }
    if (names.empty())
        BuildNames();
    if (const auto known = names.find(text); known != names.end())
        return known->second;
    SubstanceChoice window(session.database, session.state, session.dialogs,
                           session.machine.InstallationFolder());
    const SearchResult result = window.FindSubstance(text);
    return result.found ? result.index : 0;
}

int SubstanceLookup::FindNameOrNumber(std::string_view text) {
    const int number = WholeNumber(Trim(text));
    const int index = number > 0 ? FindByNumber(session.List(), number) : 0;
    return index > 0 ? index : Find(text);
}

} // namespace orva
