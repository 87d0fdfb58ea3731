// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/substance_choice.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "state/resets.h"
#include "substance/synonym_file.h"
#include "text/columns.h"
#include "text/number_format.h"
#include "text/number_input.h"

namespace orva {

namespace {

constexpr std::size_t largestNumberLength = 4;
constexpr int smallestNumber = 1, largestNumber = 1999;

std::string RowText(int index, const SubstanceListEntry& entry) {
    return FixedField(PadLeft(std::to_string(index), 4), 5) + FixedField(entry.formula, 12) + " "
           + FixedField(entry.name, 40);
}

std::string NumberText(int number) {
    return Format(number, "####");
}

template<class Matches> int FirstIndex(const SubstanceList& list, Matches matches) {
    const auto entry = std::ranges::find_if(list.entries, matches);
    return entry == list.entries.end() ? 0 : static_cast<int>(entry - list.entries.begin()) + 1;
}

} // namespace

int FindByCas(const SubstanceList& list, std::string_view cas) {
    return FirstIndex(list, [wanted = TrimRight(cas)](const SubstanceListEntry& entry) {
        return TrimRight(entry.cas) == wanted;
    });
}

int FindByNumber(const SubstanceList& list, int number) {
    return FirstIndex(list, [number](const SubstanceListEntry& entry) { return entry.number == number; });
}

bool AskDeleteBatchData(SessionState& session, Dialogs& dialogs) {
    if (session.batchRowCount <= 0)
        return false;
    const bool yes = dialogs.Ask({.title = "STAPELDATEN",
                                  .text = "Neuer Stoff wurde gewählt.\n"
                                          "Geladene exper. Daten (Stapeldaten) jetzt löschen?"});
    if (yes) {
        ClearBatchFile(session);
        session.batchRowCount = 0;
    }
    return yes;
}

SubstanceChoice::SubstanceChoice(Database& openDatabase, SessionState& sessionState, Dialogs& userDialogs,
                                 std::filesystem::path programFolder)
    : title(initialTitle), database(openDatabase), session(sessionState), dialogs(userDialogs),
      installationFolder(std::move(programFolder)) {}

void SubstanceChoice::Open() {
    title = "Wählen Sie einen Stoff (aus " + std::to_string(session.substanceCount) + ")";
    StoffListe.clear();
    int index = 0;
    for (const SubstanceListEntry& entry : database.List().entries)
        StoffListe.push_back(RowText(++index, entry));
    ClearSelection();
    SelectRow(0);
}

void SubstanceChoice::SelectRow(int row) {
    if (row < 0 || static_cast<std::size_t>(row) >= database.List().entries.size())
        return;
    const SubstanceListEntry& entry = database.List().At(row + 1);
    selectedRow = row;
    session.substanceIndexPending = static_cast<std::int16_t>(row + 1);
    record = database.ReadRecord(row + 1);
    NameCombo = Trim(entry.name);
    Text1 = NumberText(entry.number);
    Bez4 = " CASRN: " + entry.cas;
}

void SubstanceChoice::ClearSelection() {
    selectedRow = -1;
}

void SubstanceChoice::TypeNumber(std::string_view text) {
    Text1 = text;
    const double value = ParseNumber(text);
    if (text.empty() || text.size() > largestNumberLength || value < smallestNumber || value > largestNumber)
        return;
    const int index = FindByNumber(database.List(), static_cast<int>(std::nearbyint(value)));
    if (index > 0)
        SelectRow(index - 1);
    else if (selectedRow >= 0)
        session.substanceIndexPending = static_cast<std::int16_t>(selectedRow + 1);
}

void SubstanceChoice::EnterName(std::string_view text) {
    if (text.empty())
        return;
    NameCombo = text;
    const std::string typed(text.substr(0, text.find(';')));
    const SearchResult result = FindSubstance(text);
    if (result.found && result.index - 1 != selectedRow) {
        SelectRow(result.index - 1); // list, number and CAS number show what was found
        NameCombo = text;            // of several substances with one name it may be the CAS number
    }
    // Kept on purpose: a vain search leaves the first substance pending, whichever row is selected.
    session.substanceIndexPending = static_cast<std::int16_t>(result.index > 0 ? result.index : 1);
    nameHistory.push_back(typed);
    if (nameHistory.size() > historyLength)
        nameHistory.erase(nameHistory.begin());
}

bool SubstanceChoice::AcceptName() {
    if (NameCombo.empty())
        return false;
    const SearchResult result = FindSubstance(std::string(NameCombo));
    NameCombo = std::string(Trim(NameCombo));
    if (result.found)
        session.substanceIndexPending = static_cast<std::int16_t>(result.index);
    return result.found;
}

SearchResult SubstanceChoice::FindSubstance(std::string_view text) {
    const std::string_view wanted = TrimRight(text);
    const int exact = FirstIndex(database.List(), [wanted](const SubstanceListEntry& entry) {
        return TrimRight(entry.name) == wanted || TrimRight(entry.cas) == wanted;
    });
    if (exact > 0)
        return {exact, true};
    const SynonymResult synonym = LookUpSynonym(wanted, installationFolder, dialogs);
    if (synonym.failed)
        return {};
    if (synonym.cas == "END")
        return ShowNotFound();
    const int index = FindByCas(database.List(), synonym.cas);
    if (index == 0)
        return ShowAbsent(synonym.cas, synonym.secondLine);
    SelectRow(index - 1);
    return {index, true};
}

void SubstanceChoice::RestoreFromSelection() {
    if (selectedRow < 0)
        return;
    const SubstanceListEntry& entry = database.List().At(selectedRow + 1);
    Text1 = NumberText(entry.number);
    NameCombo = Trim(entry.name);
}

SearchResult SubstanceChoice::ShowNotFound() {
    dialogs.Show(
        {"Fehler bei Stoffwahl", "Unter dieser Bezeichnung nichts gefunden.", MessageIcon::Exclamation});
    RestoreFromSelection();
    return {};
}

SearchResult SubstanceChoice::ShowAbsent(std::string_view cas, std::string_view secondLine) {
    const SynonymDescription known = DescribeSynonym(secondLine);
    dialogs.Show(
        {"  dieser Stoff ist in der Datenbank nicht enthalten  ",
         known.name + "\n" + known.middle + "\n\nCAS-Nr. " + std::string(cas) + "\n" + known.lastField,
         MessageIcon::Information});
    RestoreFromSelection();
    return {};
}

} // namespace orva
