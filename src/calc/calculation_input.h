// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "calc/calculation_state.h"
#include "state/name_tables.h"
#include "state/substance_model.h"

namespace orva {

// State and rules of `frmCalcIn`, which settles how vapour-liquid equilibrium is treated: both phases from
// the cubic equation (global), or p(LV) from the vapour-pressure equation, the vapour from the equation of
// state and the liquid from a correlation (partial), with the reference point of the Benson method. The
// choices act on the records at once; Cancel brings them back.
class CalculationInput {
public:
    CalculationInput(SubstanceModel& model, const NameTables& names, CalculationState& calculation);

    // What the window says about the situation, and about the liquid density under it.
    std::string SituationText() const;

    // Nothing is left to choose where the vapour-pressure equation has priority: the window shows its text
    // alone, under the caption "Berechnungs-Situation".
    bool OffersChoice() const { return situation != Situation::EquationHasPriority; }
    bool EscVisible() const { return OffersChoice(); }
    bool GlobHelpVisible() const { return situation != Situation::BensonVaporisation; }

    // `opt_glob`: index 0 global, 1 partial.
    bool GlobalOffered() const { return situation == Situation::CubicChoice; }
    bool Global() const { return calculation.GlobalMethod; }
    void SetGlobal(bool global);

    // The frame with liquid density and reference point belongs to the partial method.
    bool ReferenceFrameVisible() const { return OffersChoice() && !calculation.GlobalMethod; }

    // `optPartialBenson`: index 0 database function, 1 Benson method.
    bool DatabaseDensityOffered() const;
    bool Benson() const { return calculation.BensonLiquid; }
    void SetBenson(bool benson);

    // `Ref_opt`: 0 proposal, 1 Benson approximation at the boiling point, 2 typed in.
    bool ReferenceEnabled() const { return ReferenceFrameVisible() && calculation.BensonLiquid; }
    bool ApproximationOffered() const;
    int Reference() const { return reference; }
    void SetReference(int option);
    // The reference point with the source of its numbers.
    std::string ReferenceText() const;

    // `OK`: tells whether the reference point is usable. `Esc`: everything as it was.
    void Accept();
    void Cancel() { calculation = before; }

private:
    enum class Situation {
        VirialAssumed,
        Virial,
        CubicAssumed,
        CubicChoice,
        EquationHasPriority,
        BensonVaporisation
    };

    Situation SituationOf() const;

    SubstanceModel& model;
    const NameTables& names;
    CalculationState& calculation;
    CalculationState before;
    Situation situation;
    int reference = 0;
    std::string sourceText;
};

} // namespace orva
