// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "plot/chart_plot.h"

namespace orva {

// A chart document as an image, drawn without any window on the screen. Needs a QApplication (the offscreen
// platform will do).

enum class ImageFormat : std::uint8_t { Svg, Pdf, Png };

struct ImageSize {
    int width = 1000, height = 700; // points of the screen at 96 to the inch
    double pngScale = 2;            // pixels per point of a PNG
};

// By the extension of a file name; nothing for others.
std::optional<ImageFormat> ImageFormatOf(const std::filesystem::path& path);

// The bytes of the image; empty if it could not be drawn.
std::string DrawImage(const ChartDocument& chart, ImageFormat format, const PlotStyle& style,
                      ImageSize size = {});

// Writes the image whole or not at all. False for an unknown extension and where the file cannot be written.
bool SaveImage(const ChartDocument& chart, const std::filesystem::path& path, const PlotStyle& style,
               ImageSize size = {});

} // namespace orva
