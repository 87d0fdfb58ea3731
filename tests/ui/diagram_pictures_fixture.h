// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include <qcustomplot.h>

#include "ui/diagrams/diagram_window_view.h"
#include "ui/diagrams/limit_input_view.h"
#include "ui/diagrams/value_input_view.h"
#include "ui/ui_fixture.h"

namespace orva::test {

// What a diagram shows when it is opened from its menu.
struct DiagramCase {
    const char* menu; // object name of the menu that holds the command
    const char* command;
    const char* xTitle;
    const char* yTitle;
};

// A teacher who draws the diagrams of one substance for a lecture, with several curves each.
struct DiagramPictures : Workbench, testing::WithParamInterface<const char*> {
    frmGraph2D* graph = nullptr;
    QStringList legend; // of the curves that should be there

    void SetUp() override {
        Workbench::SetUp();
        AcceptModels(GetParam());
    }

    const SubstanceModel& Model() const { return session->model; }

    // A part of a critical value as somebody would type it, with two significant digits or the third a five.
    static double Round(double value) {
        const double unit = std::pow(10.0, std::floor(std::log10(value)) - 1) / 2;
        return std::round(value / unit) * unit;
    }
    // Below, at and above the critical point.
    std::vector<double> Temperatures() const {
        const double Tc = Model().substance.Tc;
        return {Round(0.88 * Tc), Round(0.95 * Tc), std::floor(Tc * 10) / 10, Round(1.1 * Tc)};
    }
    std::vector<double> Pressures() const {
        const double pc = Model().substance.pc;
        return {Round(0.1 * pc), Round(0.3 * pc), Round(0.7 * pc), std::floor(pc), Round(1.5 * pc)};
    }
    std::vector<double> Volumes() const {
        const double vc = Model().eos.vCritCalc;
        return {Round(0.5 * vc), Round(vc), Round(2 * vc), Round(5 * vc)};
    }

    // At least one digit behind the point.
    static QString Number(double value) {
        const QString text = QString::number(value, 'g', 8);
        return text.contains(u'.') ? text : text + QStringLiteral(".0");
    }

    void Open(const DiagramCase& diagram) {
        legend.clear();
        ASSERT_NO_FATAL_FAILURE(Choose(diagram.menu, diagram.command));
        ASSERT_TRUE(QTest::qWaitFor([this] { return (graph = Find<frmGraph2D>()) != nullptr; }, 2000));
        EXPECT_EQ(graph->Plot().xAxis->label(), QString::fromUtf8(diagram.xTitle)) << diagram.command;
        EXPECT_EQ(graph->Plot().yAxis->label(), QString::fromUtf8(diagram.yTitle)) << diagram.command;
    }

    void Expect(const QString& text) {
        legend << QStringLiteral("(%1) %2").arg(legend.size() + 1).arg(text).trimmed();
    }

    // One curve for each value, typed one after the other into the open box.
    void Draw(const std::vector<double>& values, const char* unit) {
        auto* box = Find<frmTpVSInputBox>();
        ASSERT_NE(box, nullptr);
        for (const double value : values) {
            In<QLineEdit>(box, "txtValue")->setText(Number(value));
            ClickButton(box, "cmdOKAndDraw");
            Expect(Number(value) + QLatin1String(unit));
        }
    }
    // The value of the commands that follow.
    void Keep(double value) {
        auto* box = Find<frmTpVSInputBox>();
        ASSERT_NE(box, nullptr);
        In<QLineEdit>(box, "txtValue")->setText(Number(value));
        ClickButton(box, "cmdOK");
    }

    void DrawBetween(const std::vector<double>& values, double low, double high, const char* unit) {
        auto* box = Find<frmInputProzessLinien>();
        ASSERT_NE(box, nullptr);
        for (const double value : values) {
            In<QLineEdit>(box, "txtValue")->setText(Number(value));
            In<QLineEdit>(box, "txtFrom")->setText(Number(low));
            In<QLineEdit>(box, "txtTo")->setText(Number(high));
            ClickButton(box, "cmdDraw");
            Expect(Number(value) + QLatin1String(unit));
        }
    }

    // Takes a command from the menu "Einfügen" and expects these curves of it.
    void Add(const char* command, const QStringList& texts) {
        auto* menu = graph->findChild<QMenu*>(QStringLiteral("mnuAdd"));
        auto* action = graph->findChild<QAction*>(QLatin1String(command));
        ASSERT_NE(menu, nullptr);
        ASSERT_NE(action, nullptr);
        ASSERT_TRUE(action->isEnabled()) << command;
        menu->popup(graph->mapToGlobal(QPoint(60, 40)));
        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        menu->hide();
        for (const QString& text : texts)
            Expect(text);
    }
    void AddCoexistence() { Add("mnuMarkKoex", {QStringLiteral("VLE  (L)"), QStringLiteral("VLE  (V)")}); }
    void AddTieLine() { Add("mnuMarkKonnode", {QStringLiteral("Konnode V-L")}); }
    void AddInversion() { Add("mnuMarkInversion", {QStringLiteral("Inversionskurve delta = 0")}); }

    // Every curve is there, has its legend, and all its points are numbers; nobody was disturbed by a box.
    void ExpectWholeCurves() {
        QStringList names;
        for (int i = 0; i < graph->Plot().plottableCount(); ++i) {
            const auto* curve = qobject_cast<QCPCurve*>(graph->Plot().plottable(i));
            ASSERT_NE(curve, nullptr);
            names << curve->name();
            EXPECT_GT(curve->data()->size(), 1) << FromQt(curve->name());
            const bool hasBranches = curve->name().contains(QStringLiteral("Inversionskurve"));
            for (const QCPCurveData& point : *curve->data())
                ASSERT_TRUE(std::isfinite(point.key) && (std::isfinite(point.value) || hasBranches))
                    << FromQt(curve->name());
        }
        EXPECT_EQ(FromQt(names.join(u'|')), FromQt(legend.join(u'|')));
        for (const Message& message : dialogs.shown)
            ADD_FAILURE() << message.title << ": " << message.text;
        dialogs.shown.clear();
    }

    void Shoot(const char* name, const char* palette = "hell") const {
        const QString folder = QStringLiteral(ORVA_SCREENSHOT_DIR);
        ASSERT_TRUE(QDir().mkpath(folder));
        QTest::qWait(20);
        EXPECT_TRUE(graph->grab().save(
            QStringLiteral("%1/60-%2-%3-%4.png").arg(folder, name, QString::fromUtf8(GetParam()), palette)));
    }
};

// Substance names as parts of the names of tests.
inline std::string PictureName(const testing::TestParamInfo<const char*>& info) {
    std::string name = info.param;
    std::erase(name, '-');
    return name;
}

} // namespace orva::test
