// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/calculation_input.h"

#include "calc/reference_density_point.h"
#include "state/constants.h"
#include "text/number_format.h"
#include "thermo/vaporisation_enthalpy.h"

namespace orva {

namespace {

const NumberStyle pointStyle{'.'};

std::string TypedPointText(const ReferenceDensityPoint& point) {
    return " T(ref)/K           =" + Str(point.T, pointStyle) + "\n p(LV)(ref)/kPa     ="
           + Str(point.p, pointStyle) + "\n rho(L)(ref)/kg/m^3 =" + Str(point.rhoL, pointStyle)
           + "\n rho(V)(ref)/kg/m^3 =" + Str(point.rhoV, pointStyle);
}

} // namespace

CalculationInput::Situation CalculationInput::SituationOf() const {
    const ModelSelection& selection = model.selection;
    if (calculation.CalcKind >= kindVaporisationAtT || selection.vaporization == vaporisationBenson)
        return Situation::BensonVaporisation;
    const bool assumed = calculation.CalcKind == kindTP && calculation.AssumeEquilibrium;
    if (selection.nonCubic)
        return assumed ? Situation::VirialAssumed : Situation::Virial;
    if (assumed)
        return Situation::CubicAssumed;
    return selection.eosPriority ? Situation::CubicChoice : Situation::EquationHasPriority;
}

CalculationInput::CalculationInput(SubstanceModel& ownModel, const NameTables& nameTables,
                                   CalculationState& state)
    : model(ownModel), names(nameTables), calculation(state), before(state), situation(SituationOf()) {
    calculation.InputContext = inputContextReference;
    calculation.GlobalMethod =
        situation == Situation::CubicChoice || situation == Situation::EquationHasPriority;
    calculation.BensonLiquid = true;
    SetReference(0);
}

std::string CalculationInput::SituationText() const {
    std::string text;
    switch (situation) {
    case Situation::VirialAssumed:
        text = "Annahme, dass die Vorgabewerte das Phasengleichgewicht beschreiben.\n"
               "Mittels EOS wird die V-Dichte berechnet, mittels der BENSON-Methode die L-Dichte";
        break;
    case Situation::Virial:
        text = "Die gewählte EOS ist nur für die V-Phasen-Berechnung anwendbar\n"
               "Die L-Dichte wird mit der BENSON-Methode berechnet,\n"
               " p(LV) bzw. T(LV) mittels aktueller Dampfdruckgleichung (\"Partialberechnung\").";
        break;
    case Situation::CubicAssumed:
        text = "Annahme, dass die Vorgabewerte exakt das Phasengleichgewicht beschreiben.\n"
               "Für diesen Fall ist die Partialberechnung zu wählen: Mittels EOS wird die \n"
               "Dampfdichte berechnet, mittels der Benson-Methode die Flüssigkeitsdichte";
        break;
    case Situation::CubicChoice:
        text = "Die gewählte EOS ermöglicht die Berechnung beider Gleichgewichtsphasen\n"
               " L und V (\"Globalberechnung\"). Ihre Anwendung kann jedoch auf die V-Phase\n"
               " beschränkt werden (\"Partialberechnung\"); die L-Dichte wird dann mittels\n"
               " BENSON-Methode oder Datenbank-Gleichung rho(T) berechnet, p(LV) bzw. T(LV) mittels "
               "Dampfdruckgleichung.";
        break;
    case Situation::EquationHasPriority:
        return "Gleichgewichtsberechnung L-V erfolgt mit der aktuellen Dampfdruckgleichung.\n"
               "(Die EOS wurde im Fenster \"Modelle\" deaktiviert.)";
    case Situation::BensonVaporisation:
        text = "Die Berechnung der Dichte (bzw. des Molvolumens) der L-Phase erfolgt\n"
               "nach der BENSON-Methode. Dazu ist (neben dem kritischen Punkt)\n"
               "ein zweiter Bezugspunkt festzulegen.";
        break;
    }
    if (calculation.GlobalMethod)
        return text;
    return text
           + (calculation.BensonLiquid
                  ? "\n\nDie L-Dichte wird mit der BENSON-Methode berechnet."
                  : "\n\nDie L-Dichte wird mit der Datenbankfunktion rho(L) = Fu(T) berechnet.");
}

void CalculationInput::SetGlobal(bool global) {
    if (GlobalOffered())
        calculation.GlobalMethod = global;
}

bool CalculationInput::DatabaseDensityOffered() const {
    const LiquidDensityBlock& block = model.substance.rhoLiquid;
    // The enthalpy of vaporisation of this situation takes no other density.
    const bool choice =
        situation != Situation::BensonVaporisation || calculation.CalcKind == kindVesselPartial;
    return choice && ReferenceFrameVisible() && (block.Tlo > missingValue || block.r1 > missingValue);
}

void CalculationInput::SetBenson(bool benson) {
    if (benson || DatabaseDensityOffered())
        calculation.BensonLiquid = benson;
}

bool CalculationInput::ApproximationOffered() const {
    const SubstanceData& substance = model.substance;
    return ReferenceEnabled() && substance.Tb > missingValue && substance.rhoc > missingValue;
}

void CalculationInput::SetReference(int option) {
    reference = option;
    if (option == 0) {
        const ReferenceDensityProposal proposal = ProposeReferenceDensityPoint(model);
        TakeReferenceDensity(calculation, AsReferencePoint(proposal));
        sourceText = ProposalText(proposal, model, names);
    } else if (option == 1) {
        const ReferenceDensityPoint point = BensonReferencePoint(model);
        TakeReferenceDensity(calculation, point);
        sourceText = BensonReferenceText(point, model, names);
    }
    calculation.ReferenceDensityPointValid = false; // until the window is left with OK
}

std::string CalculationInput::ReferenceText() const {
    return reference == 2 ? TypedPointText(calculation.referenceDensity) : sourceText;
}

void CalculationInput::Accept() {
    TakeReferenceDensity(calculation, calculation.referenceDensity);
}

} // namespace orva
