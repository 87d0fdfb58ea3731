// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "state/dialogs.h"
#include "state/name_tables.h"
#include "state/substance_model.h"
#include "substance/vo_halme_exchange.h"

namespace orva {

struct ChoiceRow {
    std::string text;
    int number = 0; // row number of the model, see ModelSelection
};

struct ChoiceList {
    std::vector<ChoiceRow> rows;
    int selected = -1; // -1 none

    // Row of a model number, -1 if it is not listed.
    int RowOf(int number) const;
    bool Has(int row) const { return row >= 0 && static_cast<std::size_t>(row) < rows.size(); }
};

// Texts of the first three status panels.
struct StatusPanels {
    std::string substance, eos, vaporPressure;
};

// The window frmQModell: which models the data of the substance allow, and the choice among them. Each choice
// is written into the model selection at once; cmdEsc brings the old one back.
class ModelChoice {
public:
    // Determines the constants of a row, with the helper program where the row needs it.
    using Determine = std::function<EosDetermination(SubstanceModel&, int eos)>;

    // Without `determineConstants` the closed formulas are used, and the two Vo / Halme rows are not listed.
    ModelChoice(SubstanceModel& substanceModel, NameTables& nameTables, Determine determineConstants = {});

    std::string title;
    std::string Rx1, Rx2; // liquid density
    ChoiceList EOSKombi, pKombi, HLVKombi, WatsonKombi, cpKombi;
    std::string watsonText;     // text in WatsonKombi
    bool watsonVisible = false; // WatsonKombi with its label Bz1
    int PriorOpt = 0;           // 0 equation of state, 1 vapour-pressure equation
    bool priorityEnabled = true;
    bool loading = false;

    void Open();

    // Row choices; a row that is not there changes nothing. SelectEos returns true when the hand input of
    // virial constants is to be opened.
    bool SelectEos(int row);
    void SelectVaporPressure(int row);
    void SelectVaporization(int row);
    void SelectWatsonExponent(int row);
    void TypeWatsonExponent(std::string_view text);
    void SelectCpModel(int row);
    void ChoosePriority(int button);
    // Hand input of the virial equation B/m^3/kmol = b0 - b1/T^b2: the constants to show, and those entered.
    // They come into force with the acceptance of the window.
    std::array<double, 3> VirialConstants() const;
    void EnterVirialConstants(const std::array<double, 3>& constants);

    // The box that comes first on acceptance when a chosen model needs an acentric factor that is not there.
    std::optional<Message> OmegaWarning() const;
    // Correlates the vapour-pressure equation if it is a correlated one, and determines the constants of the
    // equation of state. If that failed the window stays open.
    EosDetermination DetermineParameters();
    // Both of them in their order, with their boxes. False if the window stays open.
    bool OKModell(Dialogs& dialogs);
    void cmdEsc();

    StatusPanels Panels() const;

private:
    void ShowLiquidDensity();
    void FillVaporPressure();
    void ListVaporPressure(int index);
    void PresetVaporPressure();
    void FillEos();
    void FillVaporization();
    void FillWatson();
    void FillCpModel();
    void CorrectCpModel();
    void SetPriority(bool eosFirst);
    void TakeVirialConstants();
    void TakeNonCubic();
    void TakeCubic();

    SubstanceModel& model;
    NameTables& names;
    Determine determine; // empty: closed formulas alone
    // As they were on opening: cmdEsc brings them back, also after constants that could not be determined.
    ModelSelection before;
    EosParameters eosBefore;
    VoHalmeParameters voHalmeBefore;
    std::optional<std::array<double, 3>> virialConstants; // entered, not yet in force
};

} // namespace orva
