// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <optional>
#include <string>

#include "calc/calculation_state.h"
#include "state/batch_data.h"
#include "state/dialogs.h"
#include "state/options.h"
#include "state/substance_data.h"

namespace orva {

// One input line of the window `frmParinput`.
struct InputLine {
    bool visible = false;
    std::string heading; // above the line, for the density or volume only
    std::string label;
    std::string text;
};

// State and rules of `frmParinput`, which takes the numbers of one point.
class PointInput {
public:
    // `kind` says which lines are asked for: T and p, T and density, p and density, or one of them.
    PointInput(int kind, const SubstanceData& substance, const Options& options, BatchDataSet& batch);

    std::string Title() const;
    std::string CommandText() const { return "&Berechnen"; }
    // 0 T, 1 p, 2 density of the vapour or of the whole, 3 density of the liquid.
    std::array<InputLine, 4>& Lines() { return lines; }

    // The density line can take a volume instead, in the unit of the options.
    bool TakesDensity() const;
    void SetVolumeInput(bool volume);
    bool VolumeInput() const { return volumeInput; }
    // The options changed the units: a volume line takes its new ones, without the number typed in the old.
    void FollowUnits();

    // Writes the numbers to row 0, the direct input. Without any number the box is returned and nothing is
    // changed.
    std::optional<Message> Accept();

private:
    void LabelDensityLine();

    int kind;
    const SubstanceData& substance;
    const Options& options;
    BatchDataSet& batch;
    std::array<InputLine, 4> lines;
    bool volumeInput = false;
};

// The box for a number field without a usable number.
Message InvalidInputMessage();

} // namespace orva
