// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include "calc/input_checks.h"
#include "calc/point_kinds.h"
#include "text/columns.h"
#include "thermo/cubic_equation.h"
#include "thermo/eos_constants.h"
#include "thermo/virial_equation.h"

namespace orva {

void CompareVirialCoefficients(PointRun& run) {
    if (!TakeTemperature(run, run.result.par1))
        return;
    run.result.par1.text = TemperatureLabel(run);
    SubstanceModel& model = run.context.model;
    const std::string title = "Virialkoeffizienten-Vergleich, [B] = m^3/kmol";
    AppendLine(run, title);
    AppendLine(run, Line("=", CharacterCount(title)));
    AppendLine(run, "");
    // Each row brings its own constants; those of the session come back afterwards.
    const EosParameters constants = model.eos;
    for (int row = virialVanDerWaals; row <= virialPitzerCurl; ++row) {
        DetermineEosParameters(model, row);
        const auto B = static_cast<float>(VirialCoefficientB(model, row, run.T));
        if (!std::isfinite(B)) {
            ReportFailure(run, FailureNumber());
            break;
        }
        AppendLine(run, run.context.names.EosNames.at(static_cast<std::size_t>(row))
                            + " {B} = " + General(B, run.context.style));
    }
    model.eos = constants;
    const double B = VirialCoefficientB(model, model.selection.eos, run.T);
    run.result.results[slotB] = B;
    model.work.BVirial = B;
    model.eos = constants;
    SetEosCoefficients(model, run.T);
}

} // namespace orva
