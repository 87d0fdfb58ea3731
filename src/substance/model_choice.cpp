// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/model_choice.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "state/constants.h"
#include "text/columns.h"
#include "text/number_format.h"
#include "text/number_input.h"
#include "thermo/eos_constants.h"
#include "thermo/vapour_pressure.h"

namespace orva {

namespace {

constexpr std::size_t nameWidth = 35;
constexpr std::string_view priorityMark = " (Priorität!)";
constexpr double smallestReducedBoiling = 0.57; // up to here the low exponent is offered

enum VaporizationRow {
    hVapDatabase = 1,
    hVapChen,
    hVapCarruth,
    hVapWatson,
    hVapDensity,
    hVapBenson,
    hVapEos
};

bool IsCubic(int eos) {
    return eos >= 1 && eos <= 9;
}

bool NeedsOmega(int eos) {
    return (eos >= eosSoaveRedlichKwong && eos <= eosVoHalme2) || eos > virialRedlichKwong;
}

} // namespace

int ChoiceList::RowOf(int number) const {
    const auto row = std::ranges::find(rows, number, &ChoiceRow::number);
    return row == rows.end() ? -1 : static_cast<int>(row - rows.begin());
}

ModelChoice::ModelChoice(SubstanceModel& substanceModel, NameTables& nameTables, Determine determineConstants)
    : model(substanceModel), names(nameTables), determine(std::move(determineConstants)) {}

void ModelChoice::Open() {
    ModelSelection& selection = model.selection;
    before = selection;
    eosBefore = model.eos;
    voHalmeBefore = model.voHalme;
    virialConstants.reset();
    loading = true;
    EOSKombi = pKombi = HLVKombi = WatsonKombi = cpKombi = {};
    watsonText.clear();
    title = " Berechnungsmodelle für " + model.substance.name;
    ShowLiquidDensity();
    priorityEnabled = !selection.nonCubic;
    PriorOpt = selection.eosPriority ? 0 : 1;
    FillVaporPressure();
    PresetVaporPressure();
    if (selection.eos == eosNotChosen)
        selection.eos = model.substance.omega == 0 ? eosRedlichKwong : eosPengRobinson;
    FillEos();
    SelectEos(EOSKombi.RowOf(selection.eos));
    FillVaporization();
    SelectVaporization(selection.vaporization == 0 ? 0 : HLVKombi.RowOf(selection.vaporization));
    watsonVisible = selection.vaporization == hVapWatson;
    FillWatson();
    FillCpModel();
    CorrectCpModel();
    SelectCpModel(cpKombi.RowOf(selection.cpModel));
    loading = false;
}

void ModelChoice::ShowLiquidDensity() {
    const LiquidDensityBlock& rho = model.substance.rhoLiquid;
    const bool given = rho.Tlo > missingValue;
    Rx1 = given ? "Parameter aus Datenbank verfügbar" : "Parameter nicht verfügbar";
    Rx2 = given ? "Gültigkeit: T =" + std::to_string(rho.Tlo) + " ... " + std::to_string(rho.Thi) + " K" : "";
}

void ModelChoice::FillVaporPressure() {
    const SubstanceData& substance = model.substance;
    const bool wagner = substance.wagner.Tlo > missingValue;
    const bool frostKalkwarf = std::abs(substance.frostKalkwarf.Tlo) > missingValue;
    const bool antoineLow = substance.antoineLow.A > missingValue;
    const bool antoineHigh = substance.antoineHigh.A > missingValue;
    if (wagner)
        ListVaporPressure(vpWagner);
    if (frostKalkwarf)
        ListVaporPressure(vpFrostKalkwarf);
    if (antoineLow)
        ListVaporPressure(vpAntoineLow);
    if (antoineHigh)
        ListVaporPressure(vpAntoineHigh);
    if (std::abs(static_cast<double>(substance.august.A) * substance.august.B) > 0)
        ListVaporPressure(vpAugust);
    if (substance.Tb > missingValue) {
        for (const int index : {vpFrostKalkwarfVdW, vpFrostKalkwarfRK, vpThompson})
            ListVaporPressure(index);
    }
    if (!wagner && !frostKalkwarf && !antoineLow && !antoineHigh)
        ListVaporPressure(vpNone);
}

// Listing changes the name table itself: the blanks in front of a name are gone from then on.
void ModelChoice::ListVaporPressure(int index) {
    std::string& name = names.VaporPressureNames[static_cast<std::size_t>(index)];
    name = FixedField(TrimLeft(name), nameWidth);
    pKombi.rows.push_back({name, index});
}

void ModelChoice::PresetVaporPressure() {
    const int wanted = model.selection.vaporPressure;
    SelectVaporPressure(wanted == vpNone ? 0 : std::max(pKombi.RowOf(wanted), 0));
}

void ModelChoice::FillEos() {
    const auto list = [this](std::initializer_list<int> rows) {
        for (const int eos : rows)
            EOSKombi.rows.push_back({names.EosNames[static_cast<std::size_t>(eos)], eos});
    };
    const bool omega = model.substance.omega != 0;
    list({eosIdealGas, eosVanDerWaals, eosBerthelot, eosRedlichKwong});
    if (omega)
        list({eosSoaveRedlichKwong, eosPengRobinson});
    if (omega && determine)
        list({eosVoHalme1, eosVoHalme2});
    list({virialByHand});
    if (omega)
        list({virialPitzerCurl});
    list({virialVanDerWaals, virialBerthelot, virialRedlichKwong});
    if (omega)
        list({virialSoaveRedlichKwong, virialPengRobinson});
}

void ModelChoice::FillVaporization() {
    const SubstanceData& substance = model.substance;
    const auto list = [this](int row) {
        HLVKombi.rows.push_back({names.VaporizationModelNames[static_cast<std::size_t>(row) - 1], row});
    };
    if (substance.hVapFunction.Tlo > missingValue)
        list(hVapDatabase);
    list(hVapChen);
    list(hVapCarruth);
    if (static_cast<double>(substance.hVapRef) * substance.TVapRef > missingValue)
        list(hVapWatson);
    if (substance.rhoLiquid.Tlo > missingValue)
        list(hVapDensity);
    list(hVapBenson);
    if (!model.selection.nonCubic)
        list(hVapEos);
}

void ModelChoice::FillWatson() {
    const SubstanceData& substance = model.substance;
    WatsonKombi.rows.push_back({"0.38", 0});
    // Between 0.57 and 0.71 the exponent 0.74 Tbr - 0.116 would belong here; "0.41" is offered there as well,
    // kept on purpose.
    if (substance.Tc > missingValue)
        WatsonKombi.rows.push_back(
            {substance.Tb / substance.Tc <= smallestReducedBoiling ? "0.30" : "0.41", 1});
    if (model.selection.watsonExponent < missingValue)
        SelectWatsonExponent(0);
    else
        watsonText = General(model.selection.watsonExponent);
}

void ModelChoice::FillCpModel() {
    const auto list = [this](int row) {
        cpKombi.rows.push_back({names.CpModelNames[static_cast<std::size_t>(row)], row});
    };
    const SubstanceData& substance = model.substance;
    if (!substance.cpPolynomialValid && !substance.cpSinhCoshValid)
        list(0);
    if (substance.cpPolynomialValid)
        list(1);
    if (substance.cpSinhCoshValid)
        list(2);
}

void ModelChoice::CorrectCpModel() {
    const bool polynomial = model.substance.cpPolynomialValid;
    const bool sinhCosh = model.substance.cpSinhCoshValid;
    const bool keepsPolynomial = model.selection.cpModel == 1 && polynomial;
    if (keepsPolynomial || (polynomial && !sinhCosh))
        model.selection.cpModel = 1;
    else
        model.selection.cpModel = sinhCosh ? 2 : 0;
}

bool ModelChoice::SelectEos(int row) {
    if (!EOSKombi.Has(row))
        return false;
    EOSKombi.selected = row;
    ModelSelection& selection = model.selection;
    selection.eos = static_cast<std::int16_t>(EOSKombi.rows[static_cast<std::size_t>(row)].number);
    if (IsCubic(selection.eos))
        TakeCubic();
    else
        TakeNonCubic();
    priorityEnabled = !selection.nonCubic;
    return selection.eos == virialByHand && !loading;
}

void ModelChoice::TakeNonCubic() {
    model.selection.nonCubic = true;
    SetPriority(false);
    if (!HLVKombi.rows.empty() && HLVKombi.rows.back().number == hVapEos) {
        HLVKombi.rows.pop_back();
        SelectVaporization(0);
    }
}

void ModelChoice::TakeCubic() {
    if (model.selection.nonCubic)
        SetPriority(true);
    model.selection.nonCubic = false;
    // Kept on purpose: the test looks for row 5 and not for row 7, so that a repeated choice lists row 7
    // again.
    if (!HLVKombi.rows.empty() && HLVKombi.rows.back().number != hVapDensity)
        HLVKombi.rows.push_back({names.VaporizationModelNames[hVapEos - 1], hVapEos});
}

void ModelChoice::SetPriority(bool eosFirst) {
    model.selection.eosPriority = eosFirst;
    PriorOpt = eosFirst ? 0 : 1;
}

void ModelChoice::SelectVaporPressure(int row) {
    if (!pKombi.Has(row))
        return;
    pKombi.selected = row;
    const int index = pKombi.rows[static_cast<std::size_t>(row)].number;
    model.selection.vaporPressure = static_cast<std::int16_t>(index);
    model.selection.vaporPressureCode = VaporPressureCodeOf(index);
}

void ModelChoice::SelectVaporization(int row) {
    if (!HLVKombi.Has(row))
        return;
    HLVKombi.selected = row;
    model.selection.vaporization =
        static_cast<std::int16_t>(HLVKombi.rows[static_cast<std::size_t>(row)].number);
    watsonVisible = model.selection.vaporization == hVapWatson;
}

void ModelChoice::SelectWatsonExponent(int row) {
    if (!WatsonKombi.Has(row))
        return;
    TypeWatsonExponent(WatsonKombi.rows[static_cast<std::size_t>(row)].text);
    WatsonKombi.selected = row;
}

void ModelChoice::TypeWatsonExponent(std::string_view text) {
    watsonText = text;
    WatsonKombi.selected = -1;
    const double value = ParseNumber(text);
    const bool single = std::abs(value) <= std::numeric_limits<float>::max();
    model.selection.watsonExponent = single ? static_cast<float>(value) : 0;
}

void ModelChoice::SelectCpModel(int row) {
    if (!cpKombi.Has(row))
        return;
    cpKombi.selected = row;
    model.selection.cpModel = static_cast<std::int16_t>(cpKombi.rows[static_cast<std::size_t>(row)].number);
}

void ModelChoice::ChoosePriority(int button) {
    SetPriority(button == 0);
}

// Those in force if they were entered by hand: the slots mean something else for other rows.
std::array<double, 3> ModelChoice::VirialConstants() const {
    if (virialConstants)
        return *virialConstants;
    const EosParameters& eos = model.eos;
    return before.eos == virialByHand ? std::array{eos.b0, eos.nB, eos.nF} : std::array{0.0, 0.0, 0.0};
}

void ModelChoice::EnterVirialConstants(const std::array<double, 3>& constants) {
    virialConstants = constants;
}

// Nothing of the equation before may stay behind: its critical volume would scale reduced units.
void ModelChoice::TakeVirialConstants() {
    const std::array<double, 3> constants = VirialConstants();
    model.eos = {};
    model.eos.b0 = constants[0];
    model.eos.nB = constants[1];
    model.eos.nF = constants[2];
}

std::optional<Message> ModelChoice::OmegaWarning() const {
    const ModelSelection& selection = model.selection;
    if (model.substance.omega != 0 || !(selection.vaporization == hVapCarruth || NeedsOmega(selection.eos)))
        return std::nullopt;
    return Message{"WARNUNG",
                   "Kein azentrischer Faktor OMEGA verfügbar.\n"
                   "Es wird mit OMEGA = 0 gerechnet.\n"
                   "(Eingabemöglichkeit im Stoffdaten-Editor)",
                   MessageIcon::Exclamation};
}

EosDetermination ModelChoice::DetermineParameters() {
    const ModelSelection& selection = model.selection;
    if (selection.vaporPressure > vpAugust)
        CorrelateVapourPressure(model.substance, selection.vaporPressure);
    if (selection.eos == virialByHand) {
        TakeVirialConstants();
        return {};
    }
    if (determine)
        return determine(model, selection.eos);
    if (DetermineEosParameters(model, selection.eos))
        return {};
    return {.failed = true, .messages = {EosConstantsFailedMessage()}};
}

bool ModelChoice::OKModell(Dialogs& dialogs) {
    if (const std::optional<Message> warning = OmegaWarning())
        dialogs.Show(*warning);
    const EosDetermination determination = DetermineParameters();
    for (const Message& message : determination.messages)
        dialogs.Show(message);
    return !determination.failed;
}

// Code and nonCubic are read off the restored choice, so they go back with it.
void ModelChoice::cmdEsc() {
    model.selection = before;
    model.eos = eosBefore;
    model.voHalme = voHalmeBefore;
}

StatusPanels ModelChoice::Panels() const {
    const ModelSelection& selection = model.selection;
    StatusPanels panels;
    panels.substance = model.substance.name;
    if (selection.eos >= 0 && static_cast<std::size_t>(selection.eos) < names.EosNames.size())
        panels.eos = names.EosNames[static_cast<std::size_t>(selection.eos)];
    const auto index = static_cast<std::size_t>(std::clamp<int>(selection.vaporPressure, vpNone, vpThompson));
    panels.vaporPressure = "Dampfdruck-Gleichung: " + std::string(Trim(names.VaporPressureNames[index]));
    if (!selection.nonCubic)
        (selection.eosPriority ? panels.eos : panels.vaporPressure) += priorityMark;
    return panels;
}

} // namespace orva
