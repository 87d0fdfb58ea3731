// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/calc_batch.h"
#include "cli/answer.h"
#include "cli/request.h"
#include "cli/workspace.h"

namespace orva {

// The steps that the commands of single points share.

// Puts a calculation kind in force, settles its method and takes the given values, as the windows would.
std::optional<Failure> StartPoint(Workspace& workspace, const PointOptions& point);

// What the window shows in red, in one line.
std::string FailureText(const PointResult& result);

// The four labels of the result window, a line each, and the report.
std::string ResultText(const PointResult& result);

// An answer with the boxes so far and those of the calculation, marked as failed if it is.
Answer AnswerOf(const Workspace& workspace, const PointResult& result);

} // namespace orva
