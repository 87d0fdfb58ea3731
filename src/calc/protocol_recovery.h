// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calc/protocol_text.h"

namespace orva {

// What the recovery file keeps of a protocol that is not written yet.
struct ProtocolRecovery {
    std::string protocolFile;
    ProtocolHead head; // without its date
    std::vector<ProtocolRow> rows;
    int damagedRows = 0;
};

// The recovery file: UTF-8, a line each of key and fields with tabs between them, numbers in the shortest
// form that gives the same single again.
std::string RecoveryText(const ProtocolRecovery& recovery);

// Reads any bytes. A line that is not whole is left out; rows among them are counted. What is missing stays
// empty.
ProtocolRecovery ParseRecovery(std::string_view bytes);

} // namespace orva
