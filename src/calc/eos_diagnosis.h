// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "calc/calculation_state.h"
#include "state/name_tables.h"
#include "state/substance_model.h"
#include "text/number_format.h"

namespace orva {

enum class RootStability : std::uint8_t { Stable, Metastable, Unstable };

// One volume root with the words of its labels `lblLoesungen` and `lblStab`.
struct DiagnosisLine {
    bool visible = false;
    std::string solution;  // "v(1) = 0.09687602"
    std::string stability; // "(stabil, L-Phase)"
    RootStability kind = RootStability::Stable;
    double v = 0; // m^3/kmol
};

// What `frmCEOSDiagnose` says of the last cubic solution.
struct EosDiagnosis {
    std::string lblEOSType;
    std::string lblixk;
    std::array<DiagnosisLine, 3> lines;
    bool threeRoots = false;             // the area labels are visible
    std::string lblA_x, lblA_u, lblA_o;  // ratio, lower and upper area between isotherm and isobar
    int windowHeight = 5600;             // twips
    double T = 0, p = 0;                 // K, kPa
    double upperArea = 0, lowerArea = 0; // kJ/kmol: positive above the isobar, negative below
};

// The record in words. Some calculations leave roots of the saturated state in it while its pressure is that
// of the point; then the roots are solved once more at T and p. Others solve no cubic equation at all, and no
// root has a line. Works on a copy of the model.
EosDiagnosis DiagnoseEos(const EosStateRecord& state, SubstanceModel model, const NameTables& names,
                         NumberStyle style);

struct IsothermPoint {
    double v = 0, p = 0; // m^3/kmol, kPa
};

// Points of p(v) at T, evenly spaced in ln v, both ends included; none at or below the co-volume. `count` is
// at least 2. Works on a copy of the model.
std::vector<IsothermPoint> IsothermPoints(SubstanceModel model, double T, double vFrom, double vTo,
                                          int count);

// The picture beside the labels: the isotherm through its loop, the isobar, and the two areas between them.
struct IsothermPicture {
    std::vector<IsothermPoint> curve;
    std::vector<IsothermPoint> lowerLobe, upperLobe; // of three roots: the curve between two roots
    double vMin = 0, vMax = 0, pMin = 0, pMax = 0;   // window; v is drawn logarithmically
};

IsothermPicture DrawIsotherm(const EosDiagnosis& diagnosis, const SubstanceModel& model);

} // namespace orva
