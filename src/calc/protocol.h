// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>

#include "calc/calc_batch.h"
#include "calc/protocol_recovery.h"
#include "state/dialogs.h"
#include "state/machine.h"

namespace orva {

// Name of the next free protocol file of the day in the folder for written files: two digits each of year,
// day and month, a running number from 01 on, ".CSV". Behind 99 the number takes a third digit, so that no
// file is written over.
std::string NewProtocolFileName(const Machine& machine);

// The recovery file of program `number` of those that run side by side: "ORVAPROT.REC", "ORVAPROT2.REC", ...
std::filesystem::path ProtocolRecoveryFile(const Machine& machine, int number);

// The protocol of the session: calculated points as rows of one table, collected across calculations and
// written when the user asks for it or leaves. Every recorded row also goes to a recovery file at once, which
// an orderly end removes and otherwise the next start offers.
class Protocol {
public:
    Protocol(const Machine& machine, Dialogs& dialogs);

    // Name of the file that the rows will go to; a name without a folder lies in the folder for written
    // files. Where another running program has meanwhile written a file under the name given out here, the
    // rows go to the next free one.
    std::string protocolFile;

    // Programs that run side by side count from 1, each with a recovery file of its own.
    int programNumber = 1;

    bool protocolOpen() const { return open; }
    int protocolRows() const { return static_cast<int>(table.size()); }
    const std::vector<ProtocolRow>& ProtocolTable() const { return table; }

    // `cmdProtokoll`: adds the results as a row, after a warning where the separator of lists is a comma.
    void Record(const std::array<double, resultCount>& results, const CalculationContext& context);

    // `cmdOpenNew`: writes the protocol and begins a new one under a new name. Returns the text for the
    // clipboard, empty where there was nothing; nothing if the file cannot be written, which is said and
    // leaves all rows where they are.
    std::optional<std::string> OpenNew(const CalculationContext& context);

    // Writes the table to `protocolFile`, over a file of this name. False, and a box, if that is not
    // possible.
    bool WriteProtocol(const CalculationContext& context);

    // End of the session: writes a protocol that is open and removes a protocol file that is empty. Rows that
    // cannot be written stay in the recovery file.
    void Close(const CalculationContext& context);

    // Start of the session: asks whether the rows of a session that broke off shall be taken over. Rows that
    // are not wanted stay in a file beside, until the next ones are.
    void OfferRecovery();

    std::filesystem::path RecoveryFile() const { return ProtocolRecoveryFile(machine, programNumber); }
    std::filesystem::path RefusedRecoveryFile() const; // the same with the ending ".BAK"

private:
    ProtocolHead CurrentHead(const CalculationContext& context) const;
    void Begin();
    void LeaveForeignFile();
    void KeepRecovery(const CalculationContext& context);
    void RemoveRecovery() const;
    void RemoveIfEmpty() const;
    std::filesystem::path FullPath() const;

    const Machine& machine;
    Dialogs& dialogs;
    bool open = false;
    bool recoveryFailureSaid = false;
    std::string ownName;  // the name given out
    bool written = false; // and that the file of this name is this protocol
    std::vector<ProtocolRow> table;
    std::optional<ProtocolHead> recoveredHead; // of rows taken over, as long as none is added to them
};

} // namespace orva
