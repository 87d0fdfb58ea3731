// SPDX-License-Identifier: GPL-3.0-or-later
// Diagrams of T, p and v and those of the two-phase region, as a lecture shows them.
#include <gtest/gtest.h>

#include "ui/dark_palette.h"
#include "ui/diagram_pictures_fixture.h"
#include "ui/shell/help_window.h"

namespace orva::test {
namespace {

struct SectionPictures : DiagramPictures {
    void DrawIsotherms() {
        Draw(Temperatures(), " K");
        Keep(Temperatures()[1]);
    }
    void DrawIsobars() {
        Draw(Pressures(), " kPa");
        Keep(Pressures()[1]);
    }
};

TEST_P(SectionPictures, IsothermsOfPressureOverVolume) {
    Open({"mnuGraf(0)", "mnuGraf_sub_cut(1)", "v / (m³/kmol)", "p / kPa"});
    DrawIsotherms();
    AddCoexistence();
    AddTieLine();
    Add("mnuMarkSKurve", {Number(Temperatures()[1]) + " K"});
    ExpectWholeCurves();
    Shoot("001-p-v");
    graph->findChild<QAction*>("cmdXLog")->trigger();
    graph->findChild<QAction*>("cmdYLog")->trigger();
    Shoot("001-log-p-log-v");
}

TEST_P(SectionPictures, IsothermsOfDensityOverPressure) {
    Open({"mnuGraf(0)", "mnuGraf_sub_cut(2)", "p / kPa", "rho / (kg/m³)"});
    DrawIsotherms();
    AddCoexistence();
    AddTieLine();
    Add("mnuMarkSKurve", {Number(Temperatures()[1]) + " K"});
    ExpectWholeCurves();
    Shoot("026-rho-p");
}

TEST_P(SectionPictures, IsothermsOfTheProductOverPressure) {
    Open({"mnuGraf(0)", "mnuGraf_sub_cut(3)", "p / kPa", "p v / (kPa m³/kmol)"});
    DrawIsotherms();
    AddCoexistence();
    AddInversion();
    Add("mnuMarkSKurve", {Number(Temperatures()[1]) + " K"});
    ExpectWholeCurves();
    Shoot("002-pv-p");
}

TEST_P(SectionPictures, Isobars) {
    Open({"mnuGraf(0)", "mnuGraf_sub_cut(5)", "v / (m³/kmol)", "T / K"});
    DrawIsobars();
    AddCoexistence();
    Add("mnuMarkSKurve", {Number(Pressures()[1]) + " kPa"});
    ExpectWholeCurves();
    Shoot("003-T-v");
    Open({"mnuGraf(0)", "mnuGraf_sub_cut(6)", "rho / (kg/m³)", "T / K"});
    DrawIsobars();
    AddCoexistence();
    Add("mnuMarkSKurve", {Number(Pressures()[1]) + " kPa"});
    ExpectWholeCurves();
    Shoot("004-T-rho");
}

TEST_P(SectionPictures, Isochors) {
    Open({"mnuGraf(0)", "mnuGraf_sub_cut(8)", "T / K", "p / kPa"});
    const double vc = Model().eos.vCritCalc;
    auto* box = Find<frmTpVSInputBox>();
    ASSERT_NE(box, nullptr);
    for (const double v : Volumes()) {
        In<QLineEdit>(box, "txtValue")->setText(Number(v));
        ClickButton(box, "cmdOKAndDraw");
        Expect(Number(v) + (v < vc ? " m^3/kmol  (L)" : " m^3/kmol  (V)"));
    }
    Add("mnuMarkKoex", {"VLE  (L)"});
    AddInversion();
    ExpectWholeCurves();
    Shoot("005-p-T");
}

TEST_P(SectionPictures, BoundariesOfTheTwoPhaseRegion) {
    struct Projection {
        DiagramCase diagram;
        const char* name;
    };
    for (const auto& [diagram, name] : {
             Projection{{"mnuGraf(9)", "mnuGraf_sub_proj(1)", "v / (m³/kmol)", "p / kPa"}, "006-p-v"},
             Projection{{"mnuGraf(9)", "mnuGraf_sub_proj(2)", "p / kPa", "rho / (kg/m³)"}, "027-rho-p"},
             Projection{{"mnuGraf(9)", "mnuGraf_sub_proj(3)", "p / kPa", "p v / (kPa m³/kmol)"}, "106-pv-p"},
             Projection{{"mnuGraf(9)", "mnuGraf_sub_proj(4)", "v / (m³/kmol)", "T / K"}, "007-T-v"},
             Projection{{"mnuGraf(9)", "mnuGraf_sub_proj(8)", "T / K", "h / (kJ/kmol) "}, "090-h-T"},
             Projection{{"mnuGraf(9)", "mnuGraf_sub_proj(9)", "T / K", "s / (kJ/(kmol K)) "}, "091-s-T"},
             Projection{{"mnuGraf(9)", "mnuGraf_sub_proj(10)", "T / K", "g / (kJ/kmol) "}, "093-g-T"},
             Projection{{"mnuGraf(9)", "mnuGraf_sub_proj(11)", "T / K", "e / (kJ/kmol) "}, "094-e-T"},
             Projection{{"mnuGraf(9)", "mnuGraf_sub_proj(12)", "T / K", "cp / (kJ/(kmol K)) "}, "092-cp-T"},
         }) {
        Open(diagram);
        Expect("VLE  (L)");
        Expect("VLE  (V)");
        ExpectWholeCurves();
        Shoot(name);
    }
}

TEST_P(SectionPictures, DensitiesOfBothPhases) {
    Open({"mnuGraf(9)", "mnuGraf_sub_proj(5)", "T / K", "rho / (kg/m³)"});
    Expect("VLE");
    if (std::string("Kohlendioxid") != GetParam()) // it melts where its vapour is still too dense for a mean
        Add("mnuMarkHalbierende", {"VLE"});
    ExpectWholeCurves();
    Shoot("008-rho-T");
}

TEST_P(SectionPictures, VapourPressureAndEnthalpyOfVaporisation) {
    Open({"mnuGraf(9)", "mnuGraf_sub_proj(0)", "T / K", "delta(LV)h / (kJ/kmol) "});
    Expect("VLE");
    ExpectWholeCurves();
    Shoot("013-hLV");
    Open({"mnuGraf(9)", "mnuGraf_sub_proj(6)", "T / K", "p / kPa"});
    Expect("VLE");
    AddInversion();
    ExpectWholeCurves();
    Shoot("009-p-T");
    Open({"mnuGraf(9)", "mnuGraf_sub_proj(14)", "1/T / (1/K)", "ln(p / kPa)"});
    Expect("VLE");
    ExpectWholeCurves();
    Shoot("010-ln-p");
    Open({"mnuGraf(9)", "mnuGraf_sub_proj(15)", "1/T / (1/K)", "dlnp / d(1/T) / K"});
    Expect("VLE");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "HINWEIS");
    dialogs.shown.clear();
    ExpectWholeCurves();
    Shoot("011-dln-p");
}

// The commands of the window lead to its page and to that of the type.
TEST_P(SectionPictures, HelpKnowsTheWindowAndTheType) {
    std::filesystem::create_directory_symlink(std::filesystem::path(ORVA_DATABASE_DIR) / "help",
                                              machine.InstallationFolder() / "help");
    Open({"mnuGraf(9)", "mnuGraf_sub_proj(1)", "v / (m³/kmol)", "p / kPa"});
    Click(In<QToolButton>(graph, "cmdGraphHelp"));
    auto* help = Wait<HelpWindow>();
    ASSERT_NE(help, nullptr);
    EXPECT_EQ(In<HelpBrowser>(help, "helpPage")->PageName(), "diagram-window.html");
    graph->findChild<QAction*>("cmdTypeHelp")->trigger();
    EXPECT_EQ(In<HelpBrowser>(help, "helpPage")->PageName(), "diagrams.html");
    EXPECT_EQ(In<HelpBrowser>(help, "helpPage")->Anchor(), "projections");
    help->close();
}

// The sheet stays white on a dark desktop, the window around it does not.
TEST_P(SectionPictures, SheetIsWhiteOnADarkDesktop) {
    const QPalette light = QApplication::palette();
    QApplication::setPalette(DarkPalette());
    Open({"mnuGraf(0)", "mnuGraf_sub_cut(1)", "v / (m³/kmol)", "p / kPa"});
    DrawIsotherms();
    AddCoexistence();
    ExpectWholeCurves();
    Shoot("001-p-v", "dunkel");
    const QImage picture = graph->grab().toImage();
    EXPECT_EQ(picture.pixelColor(graph->Plot().mapTo(graph, QPoint(3, 3))), QColor(Qt::white));
    EXPECT_LT(picture.pixelColor(picture.width() - 3, picture.height() - 3).lightness(), 100);
    QApplication::setPalette(light);
}

INSTANTIATE_TEST_SUITE_P(Substance, SectionPictures,
                         testing::Values("Wasser", "n-Butan", "Kohlendioxid", "R134a"), PictureName);

} // namespace
} // namespace orva::test
