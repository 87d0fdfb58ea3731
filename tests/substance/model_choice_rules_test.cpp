// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "substance/model_choice_fixture.h"
#include "support/scripted_dialogs.h"
#include "text/columns.h"

namespace orva {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// The rules of the lists, acceptance and cancel.
class ModelWindowRules : public test::ModelWindow {};

TEST_F(ModelWindowRules, LeavingTheCubicEquationsTakesTheirVaporisationModelAway) {
    window.Open();
    window.SelectVaporization(window.HLVKombi.RowOf(7));
    ChooseEos(virialPitzerCurl);
    EXPECT_THAT(Numbers(window.HLVKombi), ElementsAre(2, 3, 6));
    EXPECT_EQ(window.HLVKombi.selected, 0);
    EXPECT_EQ(selection.vaporization, 2);
    EXPECT_TRUE(selection.nonCubic);
    EXPECT_FALSE(selection.eosPriority);
    EXPECT_EQ(window.PriorOpt, 1);
    EXPECT_FALSE(window.priorityEnabled);
}

TEST_F(ModelWindowRules, LeavingTheCubicEquationsResetsAnotherVaporisationModelToo) {
    window.Open();
    window.SelectVaporization(window.HLVKombi.RowOf(6));
    ChooseEos(eosIdealGas);
    EXPECT_EQ(selection.vaporization, 2);
}

TEST_F(ModelWindowRules, ComingBackToACubicEquationGivesItThePriority) {
    selection.eos = virialVanDerWaals;
    window.Open();
    ChooseEos(eosPengRobinson);
    EXPECT_FALSE(selection.nonCubic);
    EXPECT_TRUE(selection.eosPriority);
    EXPECT_EQ(window.PriorOpt, 0);
    EXPECT_TRUE(window.priorityEnabled);
    EXPECT_THAT(Numbers(window.HLVKombi), ElementsAre(2, 3, 6, 7));
    EXPECT_EQ(window.HLVKombi.rows.back().text, FixedField("aus kub.-EOS (Globalberechnung)", 35));
}

TEST_F(ModelWindowRules, ChangingBetweenCubicEquationsKeepsThePriority) {
    window.Open();
    window.ChoosePriority(1);
    ChooseEos(eosSoaveRedlichKwong);
    EXPECT_FALSE(selection.eosPriority);
    EXPECT_EQ(window.PriorOpt, 1);
}

TEST_F(ModelWindowRules, ARepeatedCubicChoiceListsTheVaporisationModelAgain) {
    window.Open();
    ChooseEos(eosVanDerWaals);
    EXPECT_THAT(Numbers(window.HLVKombi), ElementsAre(2, 3, 6, 7, 7));
    ChooseEos(eosIdealGas);
    EXPECT_THAT(Numbers(window.HLVKombi), ElementsAre(2, 3, 6, 7)) << "one row goes";
}

TEST_F(ModelWindowRules, OnlyTheHandInputOpensTheVirialConstants) {
    window.Open();
    for (std::size_t row = 0; row < window.EOSKombi.rows.size(); ++row) {
        const int eos = window.EOSKombi.rows[row].number;
        EXPECT_EQ(window.SelectEos(static_cast<int>(row)), eos == virialByHand) << eos;
        EXPECT_EQ(selection.eos, eos);
        EXPECT_EQ(selection.nonCubic, eos == 0 || eos > 9);
    }
}

TEST_F(ModelWindowRules, EachVapourPressureRowHasItsCode) {
    substance.wagner.Tlo = substance.frostKalkwarf.Tlo = 170;
    substance.antoineLow.A = substance.antoineHigh.A = 6;
    substance.august = {15, -2800};
    substance.Tb = 272.66F;
    window.Open();
    std::vector<std::string> codes;
    for (int row = 0; row < 8; ++row) {
        window.SelectVaporPressure(row);
        codes.push_back(selection.vaporPressureCode);
    }
    EXPECT_THAT(codes, ElementsAre("WAG", "FRO", "ALP", "AHP", "AUG", "KFW", "KFR", "THO"));
}

TEST_F(ModelWindowRules, ChoosingWatsonShowsItsExponent) {
    substance.hVapRef = 22400;
    substance.TVapRef = 272;
    window.Open();
    window.SelectVaporization(window.HLVKombi.RowOf(4));
    EXPECT_TRUE(window.watsonVisible);
    window.SelectVaporization(0);
    EXPECT_FALSE(window.watsonVisible);
}

TEST_F(ModelWindowRules, TheWatsonExponentIsTypedOrPicked) {
    window.Open();
    window.TypeWatsonExponent("0,35");
    EXPECT_EQ(selection.watsonExponent, 0.35F);
    EXPECT_EQ(window.WatsonKombi.selected, -1);
    window.TypeWatsonExponent("x");
    EXPECT_EQ(selection.watsonExponent, 0);
    window.TypeWatsonExponent("1E300");
    EXPECT_TRUE(std::isfinite(selection.watsonExponent));
    window.SelectWatsonExponent(1);
    EXPECT_EQ(selection.watsonExponent, 0.3F);
    EXPECT_EQ(window.watsonText, "0.30");
}

TEST_F(ModelWindowRules, TheHeatCapacityModelFollowsItsRow) {
    substance.cpPolynomialValid = substance.cpSinhCoshValid = true;
    window.Open();
    window.SelectCpModel(0);
    EXPECT_EQ(selection.cpModel, 1);
    window.SelectCpModel(1);
    EXPECT_EQ(selection.cpModel, 2);
}

TEST_F(ModelWindowRules, RowsThatAreNotThereChangeNothing) {
    window.Open();
    const ModelSelection before = selection;
    EXPECT_FALSE(window.SelectEos(-1));
    EXPECT_FALSE(window.SelectEos(99));
    window.SelectVaporPressure(99);
    window.SelectVaporization(-1);
    window.SelectWatsonExponent(99);
    window.SelectCpModel(99);
    EXPECT_EQ(selection.eos, before.eos);
    EXPECT_EQ(selection.vaporPressure, before.vaporPressure);
    EXPECT_EQ(selection.vaporization, before.vaporization);
    EXPECT_EQ(selection.watsonExponent, before.watsonExponent);
    EXPECT_EQ(selection.cpModel, before.cpModel);
}

TEST_F(ModelWindowRules, WarnsOfAMissingAcentricFactorWhereItMatters) {
    substance.omega = 0;
    for (int eos = 0; eos <= 16; ++eos) {
        selection.eos = static_cast<std::int16_t>(eos);
        selection.vaporization = 2;
        EXPECT_EQ(window.OmegaWarning().has_value(), (eos >= 5 && eos <= 8) || eos > 13) << eos;
        selection.vaporization = 3;
        EXPECT_TRUE(window.OmegaWarning()) << eos;
    }
    EXPECT_EQ(*window.OmegaWarning(), (Message{"WARNUNG",
                                               "Kein azentrischer Faktor OMEGA verfügbar.\n"
                                               "Es wird mit OMEGA = 0 gerechnet.\n"
                                               "(Eingabemöglichkeit im Stoffdaten-Editor)",
                                               MessageIcon::Exclamation}));
    substance.omega = 0.2;
    EXPECT_FALSE(window.OmegaWarning());
}

TEST_F(ModelWindowRules, AcceptingDeterminesTheConstants) {
    test::ScriptedDialogs dialogs;
    window.Open();
    EXPECT_TRUE(window.OKModell(dialogs));
    EXPECT_THAT(dialogs.shown, IsEmpty());
    EXPECT_NEAR(model.eos.b0, 0.0777961 * 8.31451 * 425.125 / 3796, 1e-7); // Peng, Robinson 1976
}

TEST_F(ModelWindowRules, AcceptingCorrelatesTheChosenEquation) {
    test::ScriptedDialogs dialogs;
    substance.Tb = 272.66F;
    window.Open();
    window.SelectVaporPressure(window.pKombi.RowOf(vpThompson));
    EXPECT_TRUE(window.OKModell(dialogs));
    EXPECT_NE(substance.thompson.B, 0);
    EXPECT_EQ(substance.kfw.c2, 0) << "the others stay";
}

TEST_F(ModelWindowRules, TheHandInputKeepsItsConstants) {
    test::ScriptedDialogs dialogs;
    selection.eos = virialByHand;
    window.Open();
    model.eos.b0 = -0.5;
    EXPECT_TRUE(window.OKModell(dialogs));
    EXPECT_EQ(model.eos.b0, -0.5);
}

TEST_F(ModelWindowRules, AFailureOfTheConstantsKeepsTheWindowOpenAfterTheWarning) {
    test::ScriptedDialogs dialogs;
    substance.omega = 0;
    substance.pc = 0;
    window.Open();
    window.SelectVaporization(window.HLVKombi.RowOf(3));
    EXPECT_FALSE(window.OKModell(dialogs));
    ASSERT_EQ(dialogs.shown.size(), 2U);
    EXPECT_EQ(dialogs.shown[0].title, "WARNUNG");
    EXPECT_EQ(dialogs.shown[1].title, "Ausführung nicht möglich");
    EXPECT_EQ(dialogs.shown[1].text, "Fehler bei der EOS-Parameterberechnung");
}

TEST_F(ModelWindowRules, ThePanelsNameSubstanceAndModels) {
    substance.wagner.Tlo = 170;
    window.Open();
    EXPECT_EQ(window.Panels().substance, "n-Butan");
    EXPECT_EQ(window.Panels().eos, FixedField("CEOS Peng / Robinson", 35) + " (Priorität!)");
    EXPECT_EQ(window.Panels().vaporPressure, "Dampfdruck-Gleichung: Wagner");
    window.ChoosePriority(1);
    EXPECT_EQ(window.Panels().eos, FixedField("CEOS Peng / Robinson", 35));
    EXPECT_EQ(window.Panels().vaporPressure, "Dampfdruck-Gleichung: Wagner (Priorität!)");
    ChooseEos(eosIdealGas);
    EXPECT_EQ(window.Panels().eos, FixedField("Idealgas-EOS ", 35));
    EXPECT_EQ(window.Panels().vaporPressure, "Dampfdruck-Gleichung: Wagner");
}

TEST_F(ModelWindowRules, CancelBringsTheChoiceOfBeforeBack) {
    substance.cpPolynomialValid = substance.cpSinhCoshValid = true;
    substance.wagner.Tlo = 170;
    substance.antoineLow.A = 6;
    selection = {.eos = eosPengRobinson,
                 .vaporPressure = vpAntoineLow,
                 .vaporPressureCode = "ALP",
                 .vaporization = 6,
                 .cpModel = 1,
                 .watsonExponent = 0.4F,
                 .eosPriority = false,
                 .nonCubic = false};
    window.Open();
    ChooseEos(virialVanDerWaals);
    window.SelectVaporPressure(0);
    window.SelectVaporization(0);
    window.SelectCpModel(1);
    window.TypeWatsonExponent("0.3");
    window.cmdEsc();
    EXPECT_EQ(selection.eos, eosPengRobinson);
    EXPECT_EQ(selection.vaporPressure, vpAntoineLow);
    EXPECT_EQ(selection.vaporization, 6);
    EXPECT_EQ(selection.cpModel, 1);
    EXPECT_EQ(selection.watsonExponent, 0.4F);
    EXPECT_FALSE(selection.eosPriority);
    EXPECT_FALSE(selection.nonCubic) << "it belongs to the equation of state";
    EXPECT_EQ(selection.vaporPressureCode, "ALP");
}

TEST_F(ModelWindowRules, CancelRestoresAlsoAChoiceThatWasNeverMade) {
    window.Open();
    EXPECT_EQ(selection.eos, eosPengRobinson);
    ChooseEos(eosRedlichKwong);
    window.cmdEsc();
    EXPECT_EQ(selection.eos, eosNotChosen);
}

TEST_F(ModelWindowRules, ASecondOpeningListsEverythingOnce) {
    window.Open();
    const auto rows = Numbers(window.HLVKombi);
    ChooseEos(eosRedlichKwong);
    window.Open();
    EXPECT_EQ(Numbers(window.HLVKombi), rows);
    EXPECT_EQ(window.WatsonKombi.rows.size(), 2U);
}

} // namespace
} // namespace orva
