// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QPrinter>

#include "text/text_file.h"
#include "ui/calc/vessel_drawing.h"
#include "ui/calc/vessel_window.h"
#include "ui/point_tools_fixture.h"

namespace orva::test {
namespace {

struct VesselWindow : PointTools {
    static QString Text(const QWidget& form, const char* name) { return In<QLabel>(&form, name)->text(); }

    static QColor Ground(const QWidget& form) {
        return In<QLabel>(&form, "labP")->palette().color(QPalette::Window);
    }

    // The colour on the middle line of the vessel, at a height of its diameter.
    static QColor At(const QImage& image, double height) {
        const double scale = image.width() / 500.0 * 5; // the sheet is 100 wide
        return image.pixelColor(static_cast<int>(42 * scale), static_cast<int>((97 - 70 * height) * scale));
    }

    static bool IsBlue(const QColor& colour) {
        return colour.blue() > colour.red() + 60 && colour.saturation() > 110;
    }
};

TEST_F(VesselWindow, ShowsTheLabelsOfBothPhases) {
    CalculateVessel(kindVesselGlobal, 300, 20);
    frmKessel form(*session);
    Expose(form);
    EXPECT_EQ(form.objectName(), "frmKessel");
    EXPECT_EQ(form.windowTitle(), "Behälter-Berechnung (Global-Methode)");
    EXPECT_EQ(Text(form, "lblTitle"), "zylinderförmiger Behälter");
    EXPECT_EQ(Text(form, "labP"), "256.654 kPa");
    EXPECT_EQ(Text(form, "labLevel"), "Füllstand 32.64 % (Vol.-anteil)");
    EXPECT_EQ(Text(form, "labPhase"), "");
    EXPECT_EQ(Ground(form), ColourOf(VesselColour::Black, form.palette()));
    EXPECT_EQ(form.width(), qRound(3760 / 1440.0 * form.logicalDpiX()));
    EXPECT_EQ(form.height(), qRound(5200 / 1440.0 * form.logicalDpiY()));
}

TEST_F(VesselWindow, DrawsTheLiquidUpToItsLevel) {
    CalculateVessel(kindVesselGlobal, 300, 20); // level at 0.362 of the diameter
    frmKessel form(*session);
    const QImage image = form.Image();
    for (const double height : {0.05, 0.2, 0.33})
        EXPECT_TRUE(IsBlue(At(image, height))) << height;
    for (const double height : {0.39, 0.6, 0.95})
        EXPECT_FALSE(IsBlue(At(image, height))) << height;
    CalculateVessel(kindVesselGlobal, 300, 45); // above half, drawn from the top
    form.Show();
    ASSERT_TRUE(form.Picture().mirrored);
    const double level = form.Picture().levelHeight / 100;
    EXPECT_TRUE(IsBlue(At(form.Image(), level - 0.03)));
    EXPECT_FALSE(IsBlue(At(form.Image(), level + 0.03)));
}

TEST_F(VesselWindow, ReadsTheResultAnewWhenItIsPainted) {
    CalculateVessel(kindVesselGlobal, 300, 20);
    frmKessel form(*session);
    Expose(form);
    CalculateVessel(kindVesselGlobal, 450, 5);
    form.repaint();
    EXPECT_EQ(Text(form, "labLevel"), "  überkritisch");
    CalculateVessel(kindVesselPartial, 300, 90);
    form.Show();
    EXPECT_EQ(form.windowTitle(), "Behälter-Berechnung (Partial-Methode)");
    EXPECT_EQ(Text(form, "labP"), "Error");
    EXPECT_EQ(Text(form, "labNote"), "s. Hilfe 'Behälter'");
    EXPECT_EQ(Text(form, "labPhase"), "  L-Phase");
    EXPECT_EQ(Ground(form), ColourOf(VesselColour::LightRed, form.palette()));
    CalculateVessel(kindVesselGlobal, 300, 90);
    form.repaint();
    EXPECT_EQ(Text(form, "labP"), " Error: v < b");
    CalculateVessel(kindVesselGlobal, 300, 0.1);
    form.repaint();
    EXPECT_EQ(Text(form, "labPhase"), "  V-Phase");
    EXPECT_EQ(Ground(form), ColourOf(VesselColour::Black, form.palette()));
}

TEST_F(VesselWindow, LabelsStayApartAndWholeAtEverySize) {
    CalculateVessel(kindVesselPartial, 300, 90); // the most words
    frmKessel form(*session);
    Expose(form);
    for (const QSize size : {form.size(), QSize(400, 400), QSize(1200, 700), QSize(420, 900)}) {
        form.resize(size);
        QTest::qWait(20);
        QList<QLabel*> labels = form.findChildren<QLabel*>();
        for (const QLabel* label : labels) {
            EXPECT_GE(label->width(), label->sizeHint().width()) << FromQt(label->objectName());
            EXPECT_TRUE(label->parentWidget()->rect().contains(label->geometry()));
            for (const QLabel* other : labels)
                EXPECT_TRUE(label == other || !label->geometry().intersects(other->geometry()))
                    << FromQt(label->objectName() + other->objectName());
        }
    }
}

TEST_F(VesselWindow, CopiesItsPictureByKeyOnWhite) {
    CalculateVessel(kindVesselGlobal, 300, 20);
    frmKessel form(*session);
    Expose(form);
    QGuiApplication::clipboard()->clear();
    form.activateWindow();
    WaitForKeyboard(&form);
    QTest::keyClick(&form, Qt::Key_C, Qt::ControlModifier);
    const QImage image = QGuiApplication::clipboard()->image();
    ASSERT_EQ(image.size(), QSize(1500, 1920));
    EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::white));
    EXPECT_TRUE(IsBlue(At(image, 0.2)));
}

TEST_F(VesselWindow, PrintsItself) {
    CalculateVessel(kindVesselGlobal, 300, 20);
    const frmKessel form(*session);
    const std::filesystem::path file = machine.InstallationFolder() / "kessel.pdf";
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(ToQt(file.string()));
    EXPECT_TRUE(form.Print(printer));
    const std::string pdf = ReadFile(file).value_or("");
    EXPECT_TRUE(pdf.starts_with("%PDF"));
    EXPECT_GT(pdf.size(), 5000U);
    printer.setOutputFileName(ToQt((machine.InstallationFolder() / "nirgends" / "kessel.pdf").string()));
    EXPECT_FALSE(form.Print(printer));
    const auto* print = form.findChild<QAction*>("cmdPrint");
    ASSERT_NE(print, nullptr);
    EXPECT_EQ(print->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_P));
}

TEST_F(VesselWindow, EscClosesIt) {
    CalculateVessel(kindVesselGlobal, 300, 20);
    frmKessel form(*session);
    Expose(form);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(VesselWindow, Pictures) {
    const struct {
        int kind;
        double T, mass;
        const char* name;
    } pictures[] = {{kindVesselGlobal, 300, 20, "40-frmKessel"},
                    {kindVesselGlobal, 380, 38, "41-frmKessel-ueber-halb"},
                    {kindVesselGlobal, 300, 0.1, "42-frmKessel-Dampf"},
                    {kindVesselPartial, 300, 90, "43-frmKessel-voll"},
                    {kindVesselGlobal, 450, 5, "44-frmKessel-ueberkritisch"}};
    for (const auto& [kind, T, mass, name] : pictures) {
        CalculateVessel(kind, T, mass);
        frmKessel form(*session);
        Expose(form);
        Shoot(form, name);
    }
    CalculateVessel(kindVesselGlobal, 380, 30);
    frmKessel form(*session);
    form.resize(760, 900);
    Expose(form);
    Shoot(form, "45-frmKessel-gross");
}

} // namespace
} // namespace orva::test
