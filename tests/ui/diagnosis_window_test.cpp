// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <qcustomplot.h>

#include "text/number_format.h"
#include "thermo/saturation.h"
#include "ui/calc/diagnosis_window.h"
#include "ui/calc/isotherm_plot.h"
#include "ui/point_tools_fixture.h"

namespace orva::test {
namespace {

struct DiagnosisWindow : PointTools {
    static QString Text(const QWidget& form, const char* name) { return In<QLabel>(&form, name)->text(); }
    static bool Shown(const QWidget& form, const char* name) { return In<QLabel>(&form, name)->isVisible(); }

    // The drawn points with a marker of their own.
    static QList<QPointF> Markers(const frmCEOSDiagnose& form) {
        QList<QPointF> points;
        auto* plot = In<QCustomPlot>(&form, "chart");
        for (int i = 0; i < plot->plottableCount(); ++i)
            if (auto* curve = qobject_cast<QCPCurve*>(plot->plottable(i)); curve && curve->dataCount() == 1)
                points << QPointF(curve->data()->at(0)->key, curve->data()->at(0)->value);
        return points;
    }
    static QStringList PlotTexts(const frmCEOSDiagnose& form) {
        QStringList texts;
        auto* plot = In<QCustomPlot>(&form, "chart");
        for (int i = 0; i < plot->itemCount(); ++i)
            if (auto* text = qobject_cast<QCPItemText*>(plot->item(i)))
                texts << text->text();
        return texts;
    }
    static int Fills(const frmCEOSDiagnose& form) {
        int fills = 0;
        auto* plot = In<QCustomPlot>(&form, "chart");
        for (int i = 0; i < plot->graphCount(); ++i)
            fills += plot->graph(i)->channelFillGraph() != nullptr ? 1 : 0;
        return fills;
    }
};

TEST_F(DiagnosisWindow, NamesThreeRootsAndTheirStability) {
    Calculate(kindTP, 300, 100);
    frmCEOSDiagnose form(*session);
    Expose(form);
    EXPECT_EQ(form.objectName(), "frmCEOSDiagnose");
    EXPECT_EQ(form.windowTitle(), "Diagnose kubische EOS");
    EXPECT_EQ(Text(form, "lblEOSType"), "CEOS Peng / Robinson");
    EXPECT_EQ(Text(form, "lblixk"), "3");
    const auto& v = session->calculation.eosState.v;
    for (int i = 1; i <= 3; ++i) {
        const float root = static_cast<float>(v[static_cast<std::size_t>(i) - 1]);
        EXPECT_EQ(FromQt(Text(form, ControlName("lblLoesungen", i).toLatin1())),
                  "v(" + std::to_string(i) + ") =" + Str(root));
    }
    EXPECT_EQ(Text(form, "lblStab(1)"), "(metastabil)");
    EXPECT_EQ(Text(form, "lblStab(2)"), "(instabil)");
    EXPECT_EQ(Text(form, "lblStab(3)"), "(stabil, V-Phase)");
    EXPECT_TRUE(Shown(form, "lblA_x") && Shown(form, "lblA_u") && Shown(form, "lblA_o"));
    EXPECT_THAT(FromQt(Text(form, "lblA_o")), testing::MatchesRegex("A\\(o\\) = .* kJ/kmol"));
    EXPECT_EQ(form.height(), qRound(8000 / 1440.0 * form.logicalDpiY()));
}

TEST_F(DiagnosisWindow, DrawsTheRootsOnTheIsobarAndBothAreas) {
    Calculate(kindTP, 380, 1700);
    frmCEOSDiagnose form(*session);
    Expose(form);
    const QList<QPointF> markers = Markers(form);
    ASSERT_EQ(markers.size(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_DOUBLE_EQ(markers[i].x(), session->calculation.eosState.v[static_cast<std::size_t>(i)]);
        EXPECT_EQ(markers[i].y(), 1700);
    }
    EXPECT_EQ(Fills(form), 2);
    const QStringList texts = PlotTexts(form);
    for (const char* text : {"v(1)", "v(2)", "v(3)", "A(u)", "A(o)"})
        EXPECT_TRUE(texts.contains(QLatin1String(text))) << text;
}

TEST_F(DiagnosisWindow, RootsAndTheirNamesLieWholeInThePicture) {
    const std::pair<double, double> states[] = {{380, 1700}, {300, 100},  {300, 0.01}, {200, 2},
                                                {420, 3500}, {150, 0.01}, {600, 100},  {300, 5000}};
    for (const auto& [T, p] : states) {
        Calculate(kindTP, T, p);
        frmCEOSDiagnose form(*session);
        Expose(form);
        auto* plot = In<QCustomPlot>(&form, "chart");
        plot->replot();
        const QRect inside = plot->axisRect()->rect();
        for (const QPointF& marker : Markers(form)) {
            const QPointF at(plot->xAxis->coordToPixel(marker.x()), plot->yAxis->coordToPixel(marker.y()));
            EXPECT_TRUE(inside.contains(at.toPoint())) << T << ' ' << p << ' ' << marker.x();
        }
        for (int i = 0; i < plot->itemCount(); ++i) {
            const auto* text = qobject_cast<QCPItemText*>(plot->item(i));
            if (text == nullptr || text->text()[0] != u'v')
                continue;
            const QRectF place(text->topLeft->pixelPosition(), text->bottomRight->pixelPosition());
            EXPECT_TRUE(inside.contains(place.toRect())) << T << ' ' << p << ' ' << FromQt(text->text());
        }
    }
}

TEST_F(DiagnosisWindow, ThePictureTakesTheWidthThatIsThere) {
    Calculate(kindTP, 300, 100);
    frmCEOSDiagnose form(*session);
    Expose(form);
    auto* plot = In<QCustomPlot>(&form, "chart");
    plot->replot();
    EXPECT_LT(plot->width() - plot->axisRect()->right(), 30);
}

TEST_F(DiagnosisWindow, TheHeadingShowsASmallPressureWithAllItsDigits) {
    Calculate(kindTP, 140, 0.0001);
    frmCEOSDiagnose form(*session);
    Expose(form);
    auto* plot = In<QCustomPlot>(&form, "chart");
    const auto* heading = plot->findChild<QCPTextElement*>("subHeading");
    ASSERT_NE(heading, nullptr);
    EXPECT_EQ(heading->text(), "T = 140.000 K,  p = 0.0001 kPa");
}

TEST_F(DiagnosisWindow, OneRootIsASinglePoint) {
    Calculate(kindTP, 500, 6000);
    frmCEOSDiagnose form(*session);
    Expose(form);
    EXPECT_EQ(Text(form, "lblixk"), "1");
    EXPECT_EQ(Text(form, "lblStab(1)"), "(stabil, V-Phase)");
    for (const char* name :
         {"lblLoesungen(2)", "lblLoesungen(3)", "lblStab(2)", "lblStab(3)", "lblA_x", "lblA_u", "lblA_o"})
        EXPECT_FALSE(Shown(form, name)) << name;
    EXPECT_EQ(Markers(form).size(), 1);
    EXPECT_EQ(Fills(form), 0);
    EXPECT_EQ(form.height(), qRound(5600 / 1440.0 * form.logicalDpiY()));
}

TEST_F(DiagnosisWindow, FollowsTheNextCalculation) {
    Calculate(kindTP, 500, 6000);
    frmCEOSDiagnose form(*session);
    Expose(form);
    Calculate(kindTP, 300, 500);
    form.Show();
    EXPECT_EQ(Text(form, "lblStab(1)"), "(stabil, L-Phase)");
    EXPECT_EQ(Text(form, "lblStab(3)"), "(metastabil)");
    EXPECT_TRUE(Shown(form, "lblStab(3)"));
    EXPECT_EQ(Markers(form).size(), 3);
}

TEST_F(DiagnosisWindow, ExplainsAGivenDensity) {
    Calculate(kindTRho, 300, 0, 2);
    frmCEOSDiagnose form(*session);
    Expose(form);
    ASSERT_EQ(Markers(form).size(), 3);
    EXPECT_NEAR(Markers(form)[2].x(), session->model.substance.molarMass / 2, 1e-3);
}

TEST_F(DiagnosisWindow, WordsKeepTheirColoursOnADarkGround) {
    QPalette dark(QColor(53, 55, 58), QColor(43, 45, 48));
    for (const RootStability stability :
         {RootStability::Stable, RootStability::Metastable, RootStability::Unstable}) {
        EXPECT_GT(ColourOf(stability, dark).lightness(), 140);
        EXPECT_LT(ColourOf(stability, QPalette(Qt::white)).lightness(), 110);
    }
}

TEST_F(DiagnosisWindow, ItsButtonAndEscCloseIt) {
    Calculate(kindTP, 300, 100);
    frmCEOSDiagnose form(*session);
    Expose(form);
    ClickButton(&form, "cmdClose");
    EXPECT_FALSE(form.isVisible());
    Expose(form);
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(DiagnosisWindow, Pictures) {
    const double pLV = EosSaturationPressure(session->model, 380).value;
    const struct {
        double T, p;
        const char* name;
    } pictures[] = {{380, pLV, "47-frmCEOSDiagnose-Gleichgewicht"},
                    {300, 100, "48-frmCEOSDiagnose-Dampf"},
                    {500, 6000, "49-frmCEOSDiagnose-eine-Loesung"},
                    {300, 5000, "50-frmCEOSDiagnose-Fluessigkeit"}};
    for (const auto& [T, p, name] : pictures) {
        Calculate(kindTP, T, p);
        frmCEOSDiagnose form(*session);
        Expose(form);
        Shoot(form, name);
    }
}

} // namespace
} // namespace orva::test
