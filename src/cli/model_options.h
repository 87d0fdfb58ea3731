// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "cli/answer.h"
#include "cli/request.h"
#include "shell/session.h"

namespace orva {

// Opens the model window for the accepted substance, makes the given choices on top of its presets, and
// accepts it. A choice that the window does not offer is refused with a text.
std::optional<Failure> AcceptModelOptions(Session& session, const ModelOptions& options);

} // namespace orva
