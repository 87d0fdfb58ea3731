// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "substance/model_choice_fixture.h"
#include "text/columns.h"

namespace orva {
namespace {

using test::ModelWindow;
using testing::ElementsAre;

// Opening the window: what is offered and what is preset.

TEST_F(ModelWindow, IsTitledWithTheSubstance) {
    window.Open();
    EXPECT_EQ(window.title, " Berechnungsmodelle für n-Butan");
    EXPECT_FALSE(window.loading);
}

TEST_F(ModelWindow, TellsOfTheLiquidDensity) {
    window.Open();
    EXPECT_EQ(window.Rx1, "Parameter nicht verfügbar");
    EXPECT_EQ(window.Rx2, "");
    substance.rhoLiquid.Tlo = 135;
    substance.rhoLiquid.Thi = 424;
    window.Open();
    EXPECT_EQ(window.Rx1, "Parameter aus Datenbank verfügbar");
    EXPECT_EQ(window.Rx2, "Gültigkeit: T =135 ... 424 K");
}

TEST_F(ModelWindow, ListsVapourPressureEquationsInTheirOrder) {
    substance.wagner.Tlo = substance.frostKalkwarf.Tlo = 170;
    substance.antoineLow.A = substance.antoineHigh.A = 6;
    substance.august = {15, -2800};
    substance.Tb = 272.66F;
    window.Open();
    EXPECT_THAT(Numbers(window.pKombi), ElementsAre(4, 3, 1, 2, 5, 6, 7, 8));
    EXPECT_EQ(selection.vaporPressure, vpWagner);
    EXPECT_EQ(selection.vaporPressureCode, "WAG");
    EXPECT_EQ(window.pKombi.selected, 0);
}

TEST_F(ModelWindow, ListsOnlyTheVapourPressureEquationsThatHaveData) {
    substance.frostKalkwarf.Tlo = -170;
    substance.antoineLow.A = -6;
    substance.antoineHigh.A = 6;
    substance.wagner.Tlo = -170;
    substance.august = {15, 0};
    window.Open();
    EXPECT_THAT(Numbers(window.pKombi), ElementsAre(3, 2));
}

TEST_F(ModelWindow, WithoutVapourPressureDataAndBoilingTemperatureThereIsNoEquation) {
    selection.vaporPressure = vpWagner;
    window.Open();
    ASSERT_THAT(Numbers(window.pKombi), ElementsAre(0));
    EXPECT_EQ(TrimRight(window.pKombi.rows[0].text), "keine");
    EXPECT_EQ(selection.vaporPressure, vpNone);
    EXPECT_EQ(selection.vaporPressureCode, "000");
}

TEST_F(ModelWindow, NoEquationComesLastBehindTheCorrelatedOnes) {
    substance.Tb = 272.66F;
    window.Open();
    EXPECT_THAT(Numbers(window.pKombi), ElementsAre(6, 7, 8, 0));
    EXPECT_EQ(selection.vaporPressure, vpFrostKalkwarfVdW);
    EXPECT_EQ(selection.vaporPressureCode, "KFW");
}

TEST_F(ModelWindow, KeepsAVapourPressureEquationThatIsListed) {
    substance.wagner.Tlo = 170;
    substance.antoineLow.A = 6;
    selection.vaporPressure = vpAntoineLow;
    window.Open();
    EXPECT_EQ(selection.vaporPressure, vpAntoineLow);
    EXPECT_EQ(selection.vaporPressureCode, "ALP");
    EXPECT_EQ(window.pKombi.selected, 1);
}

TEST_F(ModelWindow, FallsBackFromAVapourPressureEquationThatIsNot) {
    substance.wagner.Tlo = 170;
    selection.vaporPressure = vpFrostKalkwarf;
    window.Open();
    EXPECT_EQ(selection.vaporPressure, vpWagner);
}

TEST_F(ModelWindow, ListingTakesTheLeadingBlanksOutOfTheNameTable) {
    substance.wagner.Tlo = 170;
    EXPECT_EQ(names.VaporPressureNames[vpWagner], FixedField("                    Wagner", 35));
    window.Open();
    EXPECT_EQ(names.VaporPressureNames[vpWagner], FixedField("Wagner", 35));
    EXPECT_EQ(window.pKombi.rows[0].text, FixedField("Wagner", 35));
    EXPECT_EQ(names.VaporPressureNames[vpFrostKalkwarf], FixedField("            Frost/Kalkwarf", 35))
        << "a name that is not listed keeps them";
}

TEST_F(ModelWindow, ListsEquationsOfStateInTheirOrder) {
    ModelChoice all(model, names, [](SubstanceModel&, int) { return EosDetermination{}; });
    all.Open();
    EXPECT_THAT(Numbers(all.EOSKombi), ElementsAre(0, 2, 3, 4, 5, 6, 7, 8, 10, 16, 11, 12, 13, 14, 15));
    EXPECT_EQ(all.EOSKombi.rows[5].text, FixedField("CEOS Peng / Robinson", 35));
    EXPECT_EQ(selection.eos, eosPengRobinson);
    EXPECT_EQ(all.EOSKombi.selected, 5);
}

TEST_F(ModelWindow, CancelAfterConstantsThatCouldNotBeDeterminedBringsTheOldOnesBack) {
    ModelChoice first(model, names);
    first.Open();
    ASSERT_FALSE(first.DetermineParameters().failed);
    const double a0 = model.eos.a0;
    ASSERT_GT(a0, 0);
    ModelChoice all(model, names, [](SubstanceModel& m, int) {
        m.eos = {};
        return EosDetermination{.failed = true, .messages = {EosConstantsFailedMessage()}};
    });
    all.Open();
    all.SelectEos(all.EOSKombi.RowOf(eosVoHalme2));
    EXPECT_TRUE(all.DetermineParameters().failed);
    all.cmdEsc();
    EXPECT_EQ(selection.eos, eosPengRobinson);
    EXPECT_EQ(model.eos.a0, a0);
}

TEST_F(ModelWindow, LeavesOutVoHalmeUnlessItIsOffered) {
    window.Open();
    EXPECT_THAT(Numbers(window.EOSKombi), ElementsAre(0, 2, 3, 4, 5, 6, 10, 16, 11, 12, 13, 14, 15));
}

TEST_F(ModelWindow, WithoutAcentricFactorPresetsRedlichKwong) {
    substance.omega = 0;
    ModelChoice all(model, names, [](SubstanceModel&, int) { return EosDetermination{}; });
    all.Open();
    EXPECT_THAT(Numbers(all.EOSKombi), ElementsAre(0, 2, 3, 4, 10, 11, 12, 13));
    EXPECT_EQ(selection.eos, eosRedlichKwong);
}

TEST_F(ModelWindow, KeepsAnEquationOfStateThatIsNoLongerListedWithoutSelectingARow) {
    substance.omega = 0;
    selection.eos = eosPengRobinson;
    window.Open();
    EXPECT_EQ(selection.eos, eosPengRobinson);
    EXPECT_EQ(window.EOSKombi.selected, -1);
}

TEST_F(ModelWindow, ListsVaporisationModelsAsTheDataAllow) {
    window.Open();
    EXPECT_THAT(Numbers(window.HLVKombi), ElementsAre(2, 3, 6, 7));
    EXPECT_EQ(selection.vaporization, 2) << "the first row";
    substance.hVapFunction.Tlo = 140;
    substance.hVapRef = 22400;
    substance.TVapRef = 272;
    substance.rhoLiquid.Tlo = 135;
    window.Open();
    EXPECT_THAT(Numbers(window.HLVKombi), ElementsAre(1, 2, 3, 4, 5, 6, 7));
    EXPECT_EQ(selection.vaporization, 2) << "the choice before";
    EXPECT_EQ(window.HLVKombi.selected, 1);
    EXPECT_EQ(window.HLVKombi.rows[0].text, FixedField("Gleichung Fu(T) aus Datenbank ", 35));
}

TEST_F(ModelWindow, AVaporisationModelThatIsNotListedStaysUnselected) {
    selection.vaporization = 1;
    window.Open();
    EXPECT_EQ(selection.vaporization, 1);
    EXPECT_EQ(window.HLVKombi.selected, -1);
}

TEST_F(ModelWindow, WithoutACubicEquationThereIsNoVaporisationFromIt) {
    selection.eos = eosIdealGas;
    window.Open();
    EXPECT_THAT(Numbers(window.HLVKombi), ElementsAre(2, 3, 6));
    EXPECT_TRUE(selection.nonCubic);
    EXPECT_FALSE(selection.eosPriority);
    EXPECT_FALSE(window.priorityEnabled);
    EXPECT_EQ(window.PriorOpt, 1);
}

TEST_F(ModelWindow, ShowsTheWatsonExponentWithTheWatsonModelOnly) {
    substance.hVapRef = 22400;
    substance.TVapRef = 272;
    selection.vaporization = 4;
    window.Open();
    EXPECT_TRUE(window.watsonVisible);
    selection.vaporization = 2;
    window.Open();
    EXPECT_FALSE(window.watsonVisible);
}

TEST_F(ModelWindow, OffersTheWatsonExponentsByReducedBoilingTemperature) {
    const auto texts = [this](float Tb, double Tc) {
        substance.Tb = Tb;
        substance.Tc = Tc;
        window.Open();
        std::vector<std::string> rows;
        for (const ChoiceRow& row : window.WatsonKombi.rows)
            rows.push_back(row.text);
        return rows;
    };
    EXPECT_THAT(texts(57, 100), ElementsAre("0.38", "0.30")) << "0.57 itself belongs below";
    EXPECT_THAT(texts(58, 100), ElementsAre("0.38", "0.41"));
    EXPECT_THAT(texts(65, 100), ElementsAre("0.38", "0.41")) << "no value between 0.57 and 0.71";
    EXPECT_THAT(texts(75, 100), ElementsAre("0.38", "0.41"));
    EXPECT_THAT(texts(0, 100), ElementsAre("0.38", "0.30"));
    EXPECT_THAT(texts(57, 0), ElementsAre("0.38"));
}

TEST_F(ModelWindow, PresetsTheFirstWatsonExponent) {
    window.Open();
    EXPECT_EQ(selection.watsonExponent, 0.38F);
    EXPECT_EQ(window.watsonText, "0.38");
    EXPECT_EQ(window.WatsonKombi.selected, 0);
}

TEST_F(ModelWindow, ShowsTheWatsonExponentOfBefore) {
    selection.watsonExponent = 0.365F;
    window.Open();
    EXPECT_EQ(selection.watsonExponent, 0.365F);
    EXPECT_EQ(window.watsonText, "0.365");
    EXPECT_EQ(window.WatsonKombi.selected, -1);
}

TEST_F(ModelWindow, CorrectsTheHeatCapacityModel) {
    struct Case {
        int before;
        bool polynomial, sinhCosh;
        int after;
        std::vector<int> rows;
    };
    const std::vector<Case> cases = {
        {0, false, false, 0, {0}},  {0, true, false, 1, {1}},   {0, false, true, 2, {2}},
        {0, true, true, 2, {1, 2}}, {1, false, false, 0, {0}},  {1, true, false, 1, {1}},
        {1, false, true, 2, {2}},   {1, true, true, 1, {1, 2}}, {2, false, false, 0, {0}},
        {2, true, false, 1, {1}},   {2, false, true, 2, {2}},   {2, true, true, 2, {1, 2}},
    };
    for (const Case& c : cases) {
        selection.cpModel = static_cast<std::int16_t>(c.before);
        substance.cpPolynomialValid = c.polynomial;
        substance.cpSinhCoshValid = c.sinhCosh;
        window.Open();
        EXPECT_EQ(selection.cpModel, c.after) << c.before << c.polynomial << c.sinhCosh;
        EXPECT_EQ(Numbers(window.cpKombi), c.rows);
        EXPECT_EQ(window.cpKombi.rows[static_cast<std::size_t>(window.cpKombi.selected)].number, c.after);
    }
}

TEST_F(ModelWindow, OpeningWithTheHandInputDoesNotAskForConstants) {
    selection.eos = virialByHand;
    window.Open();
    EXPECT_EQ(selection.eos, virialByHand);
    EXPECT_TRUE(selection.nonCubic);
}

} // namespace
} // namespace orva
