// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "diagrams/curve_property.h"
#include "diagrams/curve_run.h"
#include "state/diagram_ranges.h"

namespace orva {

// What an axis shows.
enum class Quantity : std::uint8_t {
    None,
    Temperature,
    Pressure,
    Volume,
    Density,
    PressureVolume,
    InverseTemperature,
    LogPressure,
    VapourPressureSlope,
    JouleThomson,
    VaporisationEnthalpy,
    Enthalpy,
    Entropy,
    FreeEnthalpy,
    InnerEnergy,
    FreeEnergy,
    ExergyOfEnthalpy,
    ExergyOfInnerEnergy,
    AmbientEntropy, // T(ambient) s
    HeatCapacityP,
    HeatCapacityV,
    IsochoricHeatCapacity, // cV over T, whose axis says cp where energies are divided by R
    ResidualEnthalpy,
    ResidualEntropy,
    ResidualFreeEnthalpy,
    ResidualHeatCapacity,
    EosParameterA
};

struct AxisRow {
    Quantity quantity;
    float DiagramRanges::*low; // where the window comes from
    float DiagramRanges::*high;
};

// All that is to be said of one diagram type. A type that only a command of the diagram window sets, for one
// curve, has no menu command.
struct DiagramRow {
    std::int16_t type;
    std::string_view command; // name of the menu array
    int index;                // within it
    AxisRow x, y;
    std::string_view title; // "~" stands for "molare " or "spezifische "
    std::int16_t curveKind;
    std::string_view curveCode;
    void (*family)(CurveRun&);     // fills the points
    TieLine (*tieLine)(CurveRun&); // ends of the tie line, or none
    CurveProperty property;        // what the family evaluates, where it serves several types
};

// False for T, p and v, whatever their unit, and for what depends on the fluid alone; true for what counts
// from the reference point or the ambient state, so that curves of it are out of date when these change.
bool DependsOnReference(Quantity quantity);

std::span<const DiagramRow> Catalogue();

// The row of a type; null if there is none.
const DiagramRow* FindDiagram(int type);

// The row behind a menu entry; null if it is not built.
const DiagramRow* FindDiagram(std::string_view command, int index);

// With vapour-pressure priority the heading of the vapour-pressure curves names that equation.
bool NamesVapourPressure(int type);

} // namespace orva
