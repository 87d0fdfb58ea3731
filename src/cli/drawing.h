// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>

#include "cli/answer.h"
#include "cli/request.h"
#include "diagrams/chart_document.h"
#include "text/number_format.h"

namespace orva {

class PlotProgram;

// Writes finished diagrams as files. What drawing needs around it is started with the first of them, so that
// commands without images do not wait for it.
class Drawing {
public:
    Drawing();
    ~Drawing();
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

    // Writes the files that the options name, each whole or not at all.
    std::optional<Failure> Write(const ChartDocument& chart, const CurveOptions& options, NumberStyle style);

private:
    std::unique_ptr<PlotProgram> program;
};

} // namespace orva
