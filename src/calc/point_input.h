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

// The records that `frmParinput` reads and writes.
struct PointInputRecords {
    const SubstanceData& substance;
    const Options& options;
    BatchDataSet& batch;
    CalculationState& calculation;
};

// State and rules of `frmParinput`, which takes the numbers of one point, of a vessel or of the reference
// point of the Benson method.
class PointInput {
public:
    // `inputContext` says what is asked for: the kind + 100, 33 for the vessel, 4 for the reference point.
    PointInput(int inputContext, PointInputRecords records);

    std::string Title() const;
    std::string CommandText() const { return context == inputContextReference ? "OK" : "&Berechnen"; }
    bool IsVessel() const { return context == inputContextVessel; }
    bool IsReference() const { return context == inputContextReference; }
    // 0 T, 1 p, 2 density of the vapour or of the whole, 3 density of the liquid; of a vessel 0 V, 1 m or n,
    // 3 T; of the reference point T, p, liquid and vapour density.
    std::array<InputLine, 4>& Lines() { return lines; }

    // The density line can take a volume instead, in the unit of the options (`optRhoV`).
    bool TakesDensity() const { return !IsReference() && !IsVessel() && lines[2].visible; }
    void SetVolumeInput(bool volume);
    bool VolumeInput() const { return volumeInput; }
    // The options changed the units: a volume line takes its new ones, without the number typed in the old.
    void FollowUnits();

    // The content of a vessel as mass or as amount of substance (`optm_n`).
    void SetAmountInput(bool amount);
    bool AmountInput() const { return amountInput; }

    // Writes the numbers to row 0, the direct input, to the vessel or to the reference point. Without usable
    // numbers the box is returned and nothing is changed.
    std::optional<Message> Accept();

private:
    void BuildPointLines();
    void BuildVesselLines();
    void BuildReferenceLines();
    void LabelDensityLine();
    bool AcceptPoint(const std::array<double, 4>& values);
    bool AcceptVessel(const std::array<double, 4>& values);
    bool AcceptReference(const std::array<double, 4>& values);

    int context;
    PointInputRecords records;
    std::array<InputLine, 4> lines;
    bool volumeInput = false;
    bool amountInput = false;
};

// The box for a number field without a usable number.
Message InvalidInputMessage();

} // namespace orva
