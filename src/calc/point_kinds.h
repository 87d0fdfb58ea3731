// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/point_run.h"

namespace orva {

// The calculation kinds, one function a family. Each takes its input from the data row, calls the property
// models and writes its part of the report; what all kinds share stands in CalcBatch.

// Given T and the density of the whole or of the liquid: pressure and phase.
void CalculateFromTRho(PointRun& run);

// Given T and p: density and phase.
void CalculateFromTP(PointRun& run);

// Where the user declared that T and p describe equilibrium, the partial method gives both densities.
void AssumeEquilibriumAt(PointRun& run);

// Given p and the density: temperature and phase.
void CalculateFromPRho(PointRun& run);

// Equilibrium from T or p, by the cubic equation or by the vapour-pressure equation.
void CalculateSaturation(PointRun& run);

// Both densities of the partial method, where a reference point of the densities is in force: the vapour
// from the volume found, the liquid from its correlation.
void AppendPartialDensities(PointRun& run);

// Enthalpy of vaporisation from T or p by the model in force.
void CalculateVaporisation(PointRun& run);

// Given T and p: all caloric functions.
void CalculateFunctions(PointRun& run);

// Content of a closed vessel.
void CalculateVessel(PointRun& run);

// Second virial coefficients of all virial rows at T.
void CompareVirialCoefficients(PointRun& run);

// A process of its own: its start point and the report that came with it.
void ShowProcess(PointRun& run);

// Functions of T from the database.
void CalculateDatabaseFunction(PointRun& run);

} // namespace orva
