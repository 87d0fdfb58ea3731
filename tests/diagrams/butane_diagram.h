// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "diagrams/curve_generator.h"
#include "diagrams/diagram_fixture.h"
#include "thermo/caloric_fixture.h"
#include "thermo/vaporisation_enthalpy.h"

namespace orva::test {

// n-butane with all its functions, and every record that a diagram needs.
struct ButaneDiagram {
    SubstanceModel model;
    Options options;
    DiagramRanges ranges;
    CurveRequest request;
    SessionState session;
    double diagramTemperature = 298.15;
    NameTables names = FillNameTables();
    RecordedDialogs dialogs;
    DiagramSpec spec;
    CurveMode mode;
    CurvePoints curve;
    CurveOutcome outcome;

    explicit ButaneDiagram(int eos = eosPengRobinson, int volumeBasis = 0, int unitBasis = 0)
        : model(caloric::ModelOf(eos)) {
        model.selection.eosPriority = !model.selection.nonCubic;
        model.selection.vaporization = vaporisationCubic;
        options.volumeBasis = static_cast<std::int16_t>(volumeBasis);
        options.unitBasis = static_cast<std::int16_t>(unitBasis);
        SetDefaultRanges(model, options, ranges, false);
        session.rangesStale = true;
    }
    ButaneDiagram(const ButaneDiagram&) = delete;
    ButaneDiagram& operator=(const ButaneDiagram&) = delete;

    DiagramRecords Records() {
        return {model, options, ranges, request, session, diagramTemperature, names, {}};
    }

    // One curve in the default window of the type.
    const CurvePoints& Draw(int type, double T, double p, double v = 0.5) {
        DiagramRecords records = Records();
        SelectDiagram(records, *FindDiagram(type), spec);
        return DrawAgain(T, p, v);
    }
    // In the window as it is.
    const CurvePoints& DrawAgain(double T, double p, double v = 0.5) {
        mode.pMin = ranges.pMin;
        mode.pMax = ranges.pMax;
        GenerateCurve(model, options, mode, spec, curve, T, p, v, outcome);
        return curve;
    }
};

} // namespace orva::test
