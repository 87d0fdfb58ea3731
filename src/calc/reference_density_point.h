// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "calc/calculation_state.h"
#include "state/name_tables.h"
#include "thermo/reference_density.h"

namespace orva {

// The second reference point of the Benson method as the calculations use it.

ReferenceDensityPoint AsReferencePoint(const ReferenceDensityProposal& proposal);

// Puts the point in force. It counts as valid when the product of its four numbers, in single precision, is
// above 1e-6; without a valid point the partial method computes no densities.
void TakeReferenceDensity(CalculationState& calculation, const ReferenceDensityPoint& point);

// The proposal in German, a line each for T, p and both densities, with the source of each. Numbers have a
// point whatever the system's separator.
std::string ProposalText(const ReferenceDensityProposal& proposal, const SubstanceModel& model,
                         const NameTables& names);

// The normal boiling point with the density of the liquid by the approximation of Benson and the vapour of
// the equation of state. Kept on purpose: the pressure is 101.335 kPa and its text says 101.325.
ReferenceDensityPoint BensonReferencePoint(SubstanceModel& model);
std::string BensonReferenceText(const ReferenceDensityPoint& point, const SubstanceModel& model,
                                const NameTables& names);

} // namespace orva
