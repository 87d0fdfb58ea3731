// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/chart_file.h"

#include <fstream>
#include <sstream>

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "diagrams/diagram_fixture.h"
#include "diagrams/diagram_window.h"

namespace orva {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct Drawing {
    test::MethaneDiagram d;
    DiagramWindow window;

    Drawing() : window(d.Records(), d.dialogs) {
        window.Open(FindDiagram(1));
        for (const double T : {160.0, 190.564, 250.0}) {
            d.request.curveT = T;
            window.cmdDraw();
        }
    }
    std::string As(ImageFormat format, PlotStyle style = {}) {
        return DrawImage(window.Chart(), format, style);
    }
};

// Pixels whose colour is that of a curve.
int CountPixels(const QImage& image, int slot) {
    const ChartColour c = SlotColour(slot);
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            count += std::abs(pixel.red() - c.red) + std::abs(pixel.green() - c.green)
                                 + std::abs(pixel.blue() - c.blue)
                             < 30
                         ? 1
                         : 0;
        }
    return count;
}

// The lowest row of the picture in which the colour forms a line at least a third of the width long; -1 for
// none.
int HorizontalLine(const QImage& image, int slot) {
    for (int y = image.height() - 1; y >= 0; --y)
        if (CountPixels(image.copy(0, y, image.width(), 1), slot) > image.width() / 3)
            return y;
    return -1;
}

QImage RenderSvg(const std::string& svg) {
    QSvgRenderer renderer(QByteArray::fromStdString(svg));
    QImage image(renderer.viewBox().size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

TEST(ChartFile, PngHoldsEveryCurve) {
    Drawing drawing;
    const QImage image = QImage::fromData(QByteArray::fromStdString(drawing.As(ImageFormat::Png)), "PNG");
    ASSERT_EQ(image.size(), QSize(2000, 1400));
    for (int slot = 1; slot <= 3; ++slot)
        EXPECT_GT(CountPixels(image, slot), 1000) << slot;
    EXPECT_EQ(CountPixels(image, 4), 0);
}

TEST(ChartFile, SvgShowsTheSameHorizontalTieLineAsThePng) {
    Drawing drawing;
    const QImage svg = RenderSvg(drawing.As(ImageFormat::Svg));
    const QImage png = QImage::fromData(QByteArray::fromStdString(drawing.As(ImageFormat::Png)), "PNG");
    ASSERT_EQ(svg.size(), QSize(1000, 700));
    const int svgRow = HorizontalLine(svg, 1);
    const int pngRow = HorizontalLine(png, 1);
    ASSERT_GT(svgRow, 0);
    EXPECT_NEAR(svgRow, pngRow / 2.0, 2);
    // The line of 160 K lies at p(LV) = 1.6 of 7.36 MPa, low in the frame.
    EXPECT_GT(svgRow, 450);
}

TEST(ChartFile, SvgIsVectorGraphicWithTextAndTitle) {
    Drawing drawing;
    const std::string svg = drawing.As(ImageFormat::Svg);
    EXPECT_THAT(svg, StartsWith("<?xml"));
    EXPECT_THAT(svg, HasSubstr("<title>Methan (CH4)</title>"));
    EXPECT_THAT(svg, HasSubstr("190.56 K"));
    EXPECT_THAT(svg, HasSubstr("isothermer Schnitt p - v"));
    EXPECT_THAT(svg, Not(HasSubstr("<image"))); // no bitmap inside
}

TEST(ChartFile, PdfIsOnePageOfTheSizeOfTheSheet) {
    Drawing drawing;
    const std::string pdf = drawing.As(ImageFormat::Pdf);
    EXPECT_THAT(pdf, StartsWith("%PDF-"));
    EXPECT_THAT(pdf, HasSubstr("MediaBox [0 0 750"));
    EXPECT_GT(pdf.size(), 10000U);
}

TEST(ChartFile, FormatFollowsTheExtension) {
    EXPECT_EQ(ImageFormatOf("a/b.SVG"), ImageFormat::Svg);
    EXPECT_EQ(ImageFormatOf("b.pdf"), ImageFormat::Pdf);
    EXPECT_EQ(ImageFormatOf("b.png"), ImageFormat::Png);
    EXPECT_FALSE(ImageFormatOf("b.bmpx").has_value());
    EXPECT_FALSE(ImageFormatOf("svg").has_value());
}

TEST(ChartFile, SavesTheBytesOfTheDrawing) {
    Drawing drawing;
    const QTemporaryDir folder;
    const std::filesystem::path path = std::filesystem::path(folder.path().toStdString()) / "Methan.svg";
    ASSERT_TRUE(SaveImage(drawing.window.Chart(), path, {}));
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    EXPECT_EQ(bytes.str(), drawing.As(ImageFormat::Svg));
}

TEST(ChartFile, UnwritablePlaceAndUnknownExtensionFail) {
    Drawing drawing;
    EXPECT_FALSE(SaveImage(drawing.window.Chart(), "/nonexistent-folder/a.svg", {}));
    EXPECT_FALSE(SaveImage(drawing.window.Chart(), "a.xyz", {}));
}

TEST(ChartFile, AbsurdSizesAreLimited) {
    Drawing drawing;
    const std::string png = DrawImage(drawing.window.Chart(), ImageFormat::Png, {}, {-5, 0, 1});
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(png)).size(), QSize(200, 200));
}

} // namespace
} // namespace orva
