// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>

#include "diagrams/diagram_window.h"

// The commands of the diagram window that add curves of another type, or a part of one, for one run.

namespace orva {

namespace {

constexpr int densitiesOverT = 8;
constexpr int diameterType = 80;
constexpr int vapourPressureType = 9;
constexpr int inversionPvOverP = 190, inversionPOverT = 105;

struct CoexistenceRow {
    int type, coexistence;
};

constexpr CoexistenceRow coexistenceTypes[] = {
    {1, 6},     {2, 106},  {26, 27},  {3, 7},    {4, 12},    {5, 9},     {15, 90},  {16, 91},
    {184, 91},  {17, 93},  {18, 94},  {19, 92},  {181, 95},  {182, 98},  {183, 99}, {24, 120},
    {107, 120}, {21, 96},  {22, 96},  {23, 121}, {109, 121}, {150, 70},  {151, 71}, {152, 73},
    {153, 74},  {154, 72}, {155, 75}, {156, 97}, {157, 100}, {158, 101}, {159, 89}, {160, 102},
};

// Types of which the S-curve needs a pressure below p(cr); the isotherms need a temperature below T(cr).
constexpr std::array sCurveIsobars = {3, 4, 15, 16, 18, 30, 31, 32, 33};
constexpr std::array sCurveIsotherms = {1, 2, 26, 40, 41, 42, 43};
constexpr int lastWithoutCondition = 149;

// Projections that show one boundary of the two-phase region at a time.
constexpr std::array boundaryTypes = {6,  7,  12, 27, 106, 70, 71, 72, 73,  74,  75,  89,  90,
                                      91, 92, 93, 94, 95,  96, 97, 99, 100, 101, 102, 120, 121};

template<typename List> bool Contains(const List& list, int type) {
    return std::find(list.begin(), list.end(), type) != list.end();
}

} // namespace

// Other types keep their own.
int CoexistenceTypeOf(int type) {
    for (const CoexistenceRow& row : coexistenceTypes)
        if (row.type == type)
            return row.coexistence;
    return type;
}

// One curve of another type in the diagram as it is.
bool DiagramWindow::DrawAs(int type, int curveKind) {
    const std::int16_t ownType = spec.type;
    const std::int16_t ownKind = spec.curveKind;
    spec.type = static_cast<std::int16_t>(type);
    spec.curveKind = static_cast<std::int16_t>(curveKind);
    const bool drawn = AddCurve();
    spec.type = ownType;
    spec.curveKind = ownKind;
    if (drawn)
        Notify();
    return drawn;
}

bool DiagramWindow::DrawAtOnce() {
    if (!Contains(boundaryTypes, spec.type) || records.model.selection.nonCubic)
        return cmdDraw();
    const bool liquid = DrawCoexistence(0);
    return DrawCoexistence(1) || liquid;
}

bool DiagramWindow::DrawCoexistence(double vapourFraction) {
    mode.coexistenceMode = true;
    mode.vapourFraction = vapourFraction;
    const bool drawn = DrawAs(CoexistenceTypeOf(spec.type), curveProjection);
    mode.coexistenceMode = false;
    mode.vapourFraction = 0;
    return drawn;
}

bool DiagramWindow::mnuMarkKoex() {
    if (RefuseNonCubic("VL-Koexistenzkurve nur für kubische EOS möglich."))
        return false;
    const bool liquid = DrawCoexistence(0);
    if (CoexistenceTypeOf(spec.type) == vapourPressureType)
        return liquid;
    return DrawCoexistence(1) || liquid;
}

bool DiagramWindow::mnuMarkInversion() {
    if (RefuseNonCubic("Inversionskurve nur mit kubischer EOS möglich."))
        return false;
    const bool overP = spec.type == 2 || spec.type == 26 || spec.type == 106;
    return DrawAs(overP ? inversionPvOverP : inversionPOverT, curveInversion);
}

bool DiagramWindow::mnuMarkHalbierende() {
    return spec.type == densitiesOverT && DrawAs(diameterType, spec.curveKind);
}

bool DiagramWindow::mnuMarkKonnode() {
    if (RefuseNonCubic("Konnode V-L nur für kubische EOS möglich"))
        return false;
    if (spec.curveKind == curveIsotherm && !IsBelowCriticalT())
        return false;
    if (spec.curveKind == curveIsobar && !IsBelowCriticalP())
        return false;
    mode.tieLineMode = true;
    const bool drawn = cmdDraw();
    mode.tieLineMode = false;
    return drawn;
}

bool DiagramWindow::mnuMarkSKurve() {
    const int type = spec.type;
    if ((Contains(sCurveIsotherms, type) || type > lastWithoutCondition) && !IsBelowCriticalT())
        return false;
    if (Contains(sCurveIsobars, type) && !IsBelowCriticalP())
        return false;
    mode.sCurveMode = true;
    const bool drawn = cmdDraw();
    mode.sCurveMode = false;
    return drawn;
}

bool DiagramWindow::RefuseNonCubic(const char* text) {
    if (records.model.selection.nonCubic)
        Refuse(text);
    return records.model.selection.nonCubic;
}

// The conditions of the commands that work inside the two-phase region.
bool DiagramWindow::IsBelowCriticalT() {
    const bool below = records.request.curveT < records.model.substance.Tc;
    if (!below)
        Refuse("nur im V-L-Existenzgebiet möglich (T < T(cr))");
    return below;
}

bool DiagramWindow::IsBelowCriticalP() {
    const bool below = records.request.curveP < records.model.substance.pc;
    if (!below)
        Refuse("nur im V-L-Existenzgebiet möglich (p < p(cr))");
    return below;
}

} // namespace orva
