// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/calc_batch.h"
#include "shell/road.h"
#include "ui/ui_fixture.h"

namespace orva::test {

// n-butane with its models accepted, and calculations without the windows of their input.
struct PointTools : Workbench {
    BusyCursor busy;

    void SetUp() override {
        Workbench::SetUp();
        AcceptModels("n-Butan");
    }

    PointResult Calculate(int kind, double T, double p, double rho = 0) {
        EXPECT_TRUE(SetCalculation(*session, kind, false));
        BatchRow& row = session->batch.rows.front();
        row = {};
        row.T = T;
        row.p = p;
        row.rhoV = static_cast<float>(rho);
        return Run();
    }

    PointResult CalculateVessel(int kind, double T, double mass) {
        EXPECT_TRUE(SetCalculation(*session, kind, false));
        session->calculation.vessel = {static_cast<float>(mass), 0.1F, static_cast<float>(T), false};
        session->calculation.vesselResult = {};
        return Run();
    }

    static void Expose(QWidget& form) {
        form.setAttribute(Qt::WA_DeleteOnClose, false); // it lives in the test
        form.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
    }

    static void ClickOption(const QWidget& form, const char* name) {
        auto* option = In<QRadioButton>(&form, name);
        ASSERT_NE(option, nullptr);
        QTest::mouseClick(option, Qt::LeftButton, {}, QPoint(8, option->height() / 2));
    }

    // A picture for people to look at, once on light and once on dark ground.
    static void Shoot(QWidget& form, const char* name) {
        const QPalette light = QApplication::palette();
        for (const bool dark : {false, true}) {
            QApplication::setPalette(dark ? QPalette(QColor(53, 55, 58), QColor(43, 45, 48)) : light);
            QTest::qWait(30);
            const QString folder = QStringLiteral(ORVA_SCREENSHOT_DIR);
            ASSERT_TRUE(QDir().mkpath(folder));
            EXPECT_TRUE(
                form.grab().save(QStringLiteral("%1/%2-%3.png").arg(folder, name, dark ? "dunkel" : "hell")));
            for (const QLabel* label : form.findChildren<QLabel*>())
                EXPECT_TRUE(!label->isVisible() || label->width() >= label->sizeHint().width())
                    << FromQt(label->objectName()) << FromQt(label->text());
        }
        QApplication::setPalette(light);
        QTest::qWait(10);
    }

private:
    PointResult Run() {
        CalculationContext context = session->Calculation();
        return CalcBatch(context, session->calculation.CalcKind, 0);
    }
};

} // namespace orva::test
