// SPDX-License-Identifier: GPL-3.0-or-later
#include "diagrams/catalogue.h"

#include "diagrams/thermal_sections.h"

namespace orva {

namespace {

using R = DiagramRanges;

constexpr AxisRow volumeAxis{Quantity::Volume, &R::vMin, &R::vMax, "V(red)"};
constexpr AxisRow pressureAxis{Quantity::Pressure, &R::pMin, &R::pMax, "p / p(cr)"};

constexpr DiagramRow rows[] = {
    {1, "mnuGraf_sub_cut", 1, volumeAxis, pressureAxis, "isothermer Schnitt p - v", curveIsotherm, "pv",
     false, IsothermPv, IsothermPvTieLine},
};

} // namespace

// A quantity that nobody thought of here had better be drawn again than lie.
bool DependsOnReference(Quantity quantity) {
    switch (quantity) {
    case Quantity::None:
    case Quantity::Temperature:
    case Quantity::Pressure:
    case Quantity::Volume:
        return false;
    }
    return true;
}

std::span<const DiagramRow> Catalogue() {
    return rows;
}

const DiagramRow* FindDiagram(int type) {
    for (const DiagramRow& row : rows)
        if (row.type == type)
            return &row;
    return nullptr;
}

const DiagramRow* FindDiagram(std::string_view command, int index) {
    for (const DiagramRow& row : rows)
        if (row.command == command && row.index == index)
            return &row;
    return nullptr;
}

} // namespace orva
