// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/result_list.h"

namespace orva {

// Number of the last row of the data series.
int ResultListRowCount(const ResultList& list);
// False for a row whose calculation failed or was never run.
bool HasResult(const ResultList& list, int number);

// A number of a list: a blank or a minus sign before the digits, a blank behind them.
std::string ListNumber(float x, NumberStyle style);
std::string ListNumber(double x, NumberStyle style);

// The part of the list behind the means: derivatives and functions of every data set that was calculated with
// them.
void WriteDerivatives(const ResultList& list, ListPage& page);

} // namespace orva
