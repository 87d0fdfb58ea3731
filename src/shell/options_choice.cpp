// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/options_choice.h"

#include <algorithm>

#include "calc/units.h"
#include "diagrams/default_ranges.h"
#include "state/constants.h"

namespace orva {

namespace {

constexpr std::int16_t basisMolar = 0;
constexpr std::int16_t unitsSpecific = 3;
constexpr std::int16_t volumeSpecific = 1;
constexpr std::int16_t volumeReduced = 2;

} // namespace

OptionsChoice::OptionsChoice(Session& owner) : session(owner) {
    Options& options = session.options;
    const SubstanceData& substance = session.model.substance;
    chkReduziertEnabled = substance.Tc * substance.pc > missingValue;
    if (!chkReduziertEnabled) {
        options.volumeBasis = basisMolar;
        SetUnits(session.model, options); // factor and labels belong to the basis
    }
    optMolarSpez = options.unitBasis == unitsSpecific ? 1 : 0;
    OptCalcMode = options.batchMode ? 1 : 0;
    chkReduziert = options.volumeBasis == volumeReduced;
    chkCurveTpRestricted = options.curveTpRestricted;
    chkSKurveOhneKonnode = options.sCurveWithoutTieLine;
    chkSKurveOhneKonnodeEnabled = !session.model.selection.nonCubic;
    chkPartialKurve = options.partialCurveGasOnly;
    Slider1_punktdichte = std::clamp<int>(options.curvePoints, fewestCurvePoints, mostCurvePoints);
}

void OptionsChoice::TakeUnits() {
    Options& options = session.options;
    const bool specific = optMolarSpez == 1;
    options.unitBasis = specific ? unitsSpecific : basisMolar;
    options.volumeBasis = specific ? volumeSpecific : basisMolar;
    options.energyFactor =
        EnergyFactor(options.unitBasis, session.calculation.diagramTemperature, session.model.substance);
    if (chkReduziert)
        options.volumeBasis = volumeReduced;
    SetUnits(session.model, options);
}

void OptionsChoice::TakeDiagramOptions() {
    Options& options = session.options;
    options.curveTpRestricted = chkCurveTpRestricted;
    options.sCurveWithoutTieLine = chkSKurveOhneKonnode;
    options.partialCurveGasOnly = chkPartialKurve;
}

OptionsChoice::Outcome OptionsChoice::cmdOK() {
    Options& options = session.options;
    const Options before = options;
    TakeUnits();
    TakeDiagramOptions();
    Outcome outcome;
    outcome.unitsChanged =
        options.energyFactor != before.energyFactor || options.volumeFactor != before.volumeFactor;
    SetDefaultRanges(session.model, options, session.ranges);
    options.curvePoints =
        static_cast<std::int16_t>(std::clamp(Slider1_punktdichte, fewestCurvePoints, mostCurvePoints));
    options.batchMode = OptCalcMode == 1;
    outcome.batchModeChanged = options.batchMode != before.batchMode;
    session.Enter(options.batchMode ? SessionEvent::BatchModeOn : SessionEvent::BatchModeOff);
    return outcome;
}

} // namespace orva
