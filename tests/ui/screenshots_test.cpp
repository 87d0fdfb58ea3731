// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of every window for people to look at, on light and on dark ground, and what can be said of them
// without looking: no text is cut off.
#include <gtest/gtest.h>

#include "ui/ui_fixture.h"

#include "ui/diagrams/diagram_window_view.h"
#include "ui/diagrams/value_input_view.h"
#include "ui/shell/help_window.h"
#include "ui/substance/virial_input_window.h"

namespace orva::test {
namespace {

QPalette DarkPalette() {
    QPalette dark(QColor(53, 55, 58), QColor(43, 45, 48));
    dark.setColor(QPalette::Base, QColor(30, 31, 34));
    dark.setColor(QPalette::AlternateBase, QColor(38, 40, 43));
    dark.setColor(QPalette::Text, QColor(225, 227, 230));
    dark.setColor(QPalette::WindowText, QColor(225, 227, 230));
    dark.setColor(QPalette::ButtonText, QColor(225, 227, 230));
    dark.setColor(QPalette::ToolTipBase, QColor(60, 63, 66));
    dark.setColor(QPalette::ToolTipText, QColor(225, 227, 230));
    dark.setColor(QPalette::Highlight, QColor(64, 126, 201));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(125, 128, 132));
    return dark;
}

struct Screenshots : Workbench, testing::WithParamInterface<const char*> {
    void SetUp() override {
        light = QApplication::palette();
        if (GetParam() == std::string("dunkel"))
            QApplication::setPalette(DarkPalette());
        Workbench::SetUp();
    }
    void TearDown() override {
        Workbench::TearDown();
        QApplication::setPalette(light);
    }

    void Shoot(QWidget* form, const char* name) {
        ASSERT_NE(form, nullptr) << name;
        QTest::qWait(30);
        const QString folder = QStringLiteral(ORVA_SCREENSHOT_DIR);
        ASSERT_TRUE(QDir().mkpath(folder));
        const QPixmap picture = form->grab();
        EXPECT_TRUE(picture.save(QStringLiteral("%1/%2-%3.png").arg(folder, name, GetParam())));
        for (const QAbstractButton* button : form->findChildren<QAbstractButton*>())
            EXPECT_TRUE(!button->isVisible() || qobject_cast<QLineEdit*>(button->parentWidget()) != nullptr
                        || button->width() >= button->minimumSizeHint().width())
                << FromQt(button->objectName());
        for (const QLabel* label : form->findChildren<QLabel*>()) {
            const bool mayBeCut = label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
            EXPECT_TRUE(!label->isVisible() || mayBeCut || label->wordWrap()
                        || label->width() >= label->sizeHint().width())
                << FromQt(label->text());
        }
    }

    QPalette light;
};

TEST_P(Screenshots, OfAllWindowsShowTheirTextsWhole) {
    Shoot(window.get(), "01-mdiORVA-Start");
    QTest::mouseClick(In<QToolButton>(window.get(), "cmdErstnutzer"), Qt::LeftButton);
    Shoot(window.get(), "02-mdiORVA-Erstnutzer");
    QTest::mouseClick(In<QToolButton>(window.get(), "cmdErstnutzer"), Qt::LeftButton);
    frmStoffWahl* substances = OpenDatabase();
    ASSERT_NE(substances, nullptr);
    In<SubstanceListView>(substances, "StoffListe")->SelectRow(FindByCas(session->List(), "106-97-8") - 1);
    Shoot(substances, "03-frmStoffWahl");
    ClickButton(substances, "StoffOK");
    auto* models = Wait<frmQModell>();
    ASSERT_NE(models, nullptr);
    auto* hLV = In<QComboBox>(models, "HLVKombi");
    emit hLV->activated(hLV->findText("Watson-Korrelation"));
    Shoot(models, "04-frmQModell");
    frmBParInput hand({0.0758, 2.31e4, 1.75});
    hand.show();
    Shoot(&hand, "05-frmBParInput");
    hand.close();
    ClickButton(models, "OKModell");
    Shoot(window.get(), "06-mdiORVA-bereit");

    auto* input = StartTP();
    ASSERT_NE(input, nullptr);
    for (const auto& [T, p, name] : {std::tuple{"300", "100", "07-frmCalcOut-Dampf"},
                                     {"300", "500", "08-frmCalcOut-Fluessigkeit"},
                                     {"500", "6000", "09-frmCalcOut-ueberkritisch"},
                                     {"300", "", "10-frmCalcOut-Fehler"}}) {
        In<QLineEdit>(input, "par(0)")->setText(T);
        In<QLineEdit>(input, "par(1)")->setText(p);
        ClickButton(input, "cmdParameter_OK");
        Shoot(Find<frmCalcOut>(), name);
    }
    Shoot(input, "11-frmParinput");
    input->close();
    Find<frmCalcOut>()->close();

    Choose("mnuGraf(0)", "mnuGraf_sub_cut(1)");
    auto* box = Wait<frmTpVSInputBox>();
    ASSERT_NE(box, nullptr);
    for (const char* T : {"380", "425.1", "450"}) {
        In<QLineEdit>(box, "txtValue")->setText(T);
        ClickButton(box, "cmdOKAndDraw");
    }
    Shoot(box, "12-frmTpVSInputBox");
    Shoot(Find<frmGraph2D>(), "13-frmGraph2D");
    window->findChild<QMenu*>("mnuCalcMain")->popup(window->mapToGlobal(QPoint(300, 30)));
    Shoot(window->findChild<QMenu*>("mnuCalcMain"), "14-mnuCalcMain");
    window->findChild<QMenu*>("mnuCalcMain")->hide();

    std::filesystem::create_directory_symlink(std::filesystem::path(ORVA_DATABASE_DIR) / "help",
                                              machine.InstallationFolder() / "help");
    Command("mnuHilfe_Index")->trigger();
    auto* help = Wait<HelpWindow>();
    Shoot(help, "15-helpWindow");
    help->Open(*HelpTopicOf("frmQModell", ""));
    Shoot(help, "16-helpWindow-Bild");
    help->Open(*FindHelpTopic("eos-peng-robinson.html", ""));
    Shoot(help, "17-helpWindow-Formeln");
    In<QLineEdit>(help, "helpSearch")->setText("Dampfdruck");
    help->Open(*FindHelpTopic("vaporisation.html", ""));
    Shoot(help, "18-helpWindow-Suche");
    help->Open(*FindHelpTopic("result-window.html", "report"));
    Shoot(help, "19-helpWindow-Bericht");
}

INSTANTIATE_TEST_SUITE_P(Palette, Screenshots, testing::Values("hell", "dunkel"),
                         [](const auto& chosen) { return std::string(chosen.param); });

} // namespace
} // namespace orva::test
