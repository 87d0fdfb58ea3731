// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "state/dialogs.h"
#include "state/session_state.h"
#include "state/substance_list.h"
#include "substance/database.h"

namespace orva {

// List index of the first substance with this CAS number (blanks behind do not count) or number, 0 for none.
int FindByCas(const SubstanceList& list, std::string_view cas);
int FindByNumber(const SubstanceList& list, int number);

struct SearchResult {
    int index = 0; // list index, 0 for none
    bool found = false;
};

// Asks whether a loaded data series is dropped with the old substance; nothing is asked without one. True if
// the series is to be dropped: its file is then forgotten and its row count is 0.
bool AskDeleteBatchData(SessionState& session, Dialogs& dialogs);

// The window frmStoffWahl: state of its controls and their rules. What happens on acceptance belongs to the
// shell, which asks AcceptName first and takes substanceIndexPending of the session.
class SubstanceChoice {
public:
    SubstanceChoice(Database& openDatabase, SessionState& sessionState, Dialogs& userDialogs,
                    std::filesystem::path programFolder);

    static constexpr std::string_view initialTitle = "   Stoffwahl";
    static constexpr std::string_view listHeading = " lfd. #     Stoffname";
    static constexpr std::string_view acceptText = "Stoff &OK\nWeiter >";
    static constexpr std::size_t historyLength = 7;

    std::string title;
    std::vector<std::string> StoffListe;
    int selectedRow = -1; // -1 none
    std::string NameCombo;
    std::vector<std::string> nameHistory; // list of NameCombo, oldest first
    std::string Text1;
    std::string Bez4;
    std::optional<DatabaseRecord> record; // of the selected row; empty if it cannot be read

    void Open();
    void SelectRow(int row);
    void ClearSelection();
    void TypeNumber(std::string_view text);
    // Enter in NameCombo. The focus goes to StoffOK afterwards.
    void EnterName(std::string_view text);
    // The first steps of StoffOK: the search for the text in NameCombo. True if it names a substance, whose
    // list index is then pending; otherwise the window stays open.
    bool AcceptName();

    // The whole search: exact name or CAS number, then the synonyms. Failures are told to the user.
    SearchResult FindSubstance(std::string_view text);

private:
    void RestoreFromSelection();
    SearchResult ShowNotFound();
    SearchResult ShowAbsent(std::string_view cas, std::string_view secondLine);

    Database& database;
    SessionState& session;
    Dialogs& dialogs;
    std::filesystem::path installationFolder;
};

} // namespace orva
