// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/chart_file.h"

#include <algorithm>

#include <QBuffer>
#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <qcustomplot.h>

#include "text/text_file.h"

namespace orva {

namespace {

constexpr int screenResolution = 96; // dots per inch
constexpr double pointsPerInch = 72;
constexpr int smallestSide = 200, largestSide = 10000;

QString TitleOf(const ChartDocument& chart) {
    return chart.headingLines.empty() ? QString() : QString::fromStdString(chart.headingLines.front());
}

bool DrawOn(QPaintDevice& device, QCustomPlot& plot, ImageSize size) {
    QCPPainter painter;
    if (!painter.begin(&device))
        return false;
    painter.setMode(QCPPainter::pmVectorized);
    painter.setMode(QCPPainter::pmNoCaching);
    plot.toPainter(&painter, size.width, size.height);
    return painter.end();
}

bool DrawSvg(QIODevice& output, QCustomPlot& plot, const ChartDocument& chart, ImageSize size) {
    QSvgGenerator svg;
    svg.setOutputDevice(&output);
    svg.setSize({size.width, size.height});
    svg.setViewBox(QRect(0, 0, size.width, size.height));
    svg.setResolution(screenResolution);
    svg.setTitle(TitleOf(chart));
    return DrawOn(svg, plot, size);
}

bool DrawPdf(QIODevice& output, QCustomPlot& plot, const ChartDocument& chart, ImageSize size) {
    QPdfWriter pdf(&output);
    pdf.setResolution(screenResolution);
    pdf.setPageSize(QPageSize(QSizeF(size.width, size.height) * (pointsPerInch / screenResolution),
                              QPageSize::Point, QString(), QPageSize::ExactMatch));
    pdf.setPageMargins({});
    pdf.setTitle(TitleOf(chart));
    return DrawOn(pdf, plot, size);
}

bool DrawPng(QIODevice& output, QCustomPlot& plot, ImageSize size) {
    const QPixmap pixmap = plot.toPixmap(size.width, size.height, size.pngScale);
    return !pixmap.isNull() && pixmap.save(&output, "PNG");
}

} // namespace

std::optional<ImageFormat> ImageFormatOf(const std::filesystem::path& path) {
    std::string extension = path.extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (extension == ".svg")
        return ImageFormat::Svg;
    if (extension == ".pdf")
        return ImageFormat::Pdf;
    if (extension == ".png")
        return ImageFormat::Png;
    return std::nullopt;
}

std::string DrawImage(const ChartDocument& chart, ImageFormat format, const PlotStyle& style,
                      ImageSize size) {
    size.width = std::clamp(size.width, smallestSide, largestSide);
    size.height = std::clamp(size.height, smallestSide, largestSide);
    QCustomPlot plot;
    plot.setGeometry(0, 0, size.width, size.height);
    PreparePlot(plot, style);
    ShowChart(plot, chart, style);

    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    bool drawn = false;
    switch (format) {
    case ImageFormat::Svg:
        drawn = DrawSvg(buffer, plot, chart, size);
        break;
    case ImageFormat::Pdf:
        drawn = DrawPdf(buffer, plot, chart, size);
        break;
    case ImageFormat::Png:
        drawn = DrawPng(buffer, plot, size);
        break;
    }
    return drawn ? bytes.toStdString() : std::string();
}

bool SaveImage(const ChartDocument& chart, const std::filesystem::path& path, const PlotStyle& style,
               ImageSize size) {
    const std::optional<ImageFormat> format = ImageFormatOf(path);
    if (!format)
        return false;
    const std::string bytes = DrawImage(chart, *format, style, size);
    return !bytes.empty() && WriteFile(path, bytes);
}

} // namespace orva
