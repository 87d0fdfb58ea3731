// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/drawing.h"

#include "plot/chart_file.h"
#include "plot/plot_program.h"
#include "text/text_file.h"

namespace orva {

Drawing::Drawing() = default;
Drawing::~Drawing() = default;

std::optional<Failure> Drawing::Write(const ChartDocument& chart, const CurveOptions& options,
                                      NumberStyle style) {
    const std::pair<const std::string&, ImageFormat> files[] = {{options.svgFile, ImageFormat::Svg},
                                                                {options.pngFile, ImageFormat::Png},
                                                                {options.pdfFile, ImageFormat::Pdf}};
    for (const auto& [file, format] : files) {
        if (file.empty())
            continue;
        if (!program)
            program = std::make_unique<PlotProgram>();
        PlotStyle plotStyle;
        plotStyle.decimal = style.decimal;
        const std::string bytes = DrawImage(chart, format, plotStyle);
        const std::filesystem::path path(std::u8string(file.begin(), file.end()));
        if (bytes.empty() || !WriteFile(path, bytes))
            return Failure{exitDataError, "the file " + file + " cannot be written", {}};
    }
    return std::nullopt;
}

} // namespace orva
