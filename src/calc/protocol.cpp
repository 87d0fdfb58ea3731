// SPDX-License-Identifier: GPL-3.0-or-later
#include "calc/protocol.h"

#include <algorithm>
#include <system_error>

#include "text/code_page.h"
#include "text/paths.h"
#include "text/text_file.h"

namespace orva {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view extension = ".CSV";

// "dd.mm.yyyy", the date text that the parts of the name are cut from.
std::string GermanDate(std::chrono::year_month_day date) {
    const auto twoDigits = [](unsigned number) {
        return std::string(number < 10 ? "0" : "") + std::to_string(number);
    };
    return twoDigits(static_cast<unsigned>(date.day())) + "." + twoDigits(static_cast<unsigned>(date.month()))
           + "." + std::to_string(static_cast<int>(date.year()));
}

std::string FileName(const std::string& day, int number) {
    return day + (number < 10 ? "0" : "") + std::to_string(number).append(extension);
}

// A name out of a file that may hold anything must not lead out of the folder.
bool IsPlainProtocolName(std::string_view name) {
    if (!name.ends_with(extension))
        return false;
    const std::string_view stem = name.substr(0, name.size() - extension.size());
    return !stem.empty() && stem.size() <= 12
           && std::all_of(stem.begin(), stem.end(), [](char c) { return c >= '0' && c <= '9'; });
}

constexpr const char* commaWarning =
    "Bei Computereinstellung \"Deutschland\" (Dezimalzeichen Komma)\r\n"
    "ist Komma als Dateitrennzeichen nicht sinnvoll; der Clipboard-Inhalt\r\n"
    "ist nicht mehr Excel-kompatibel.\r\n"
    "Empfehlung: Semikolon";

std::string RowCountText(int count) {
    return std::to_string(count) + (count == 1 ? " Zeile" : " Zeilen");
}

Question RecoveryQuestion(const ProtocolRecovery& recovery, const std::string& refusedName) {
    std::string text = "Die letzte Sitzung wurde nicht ordentlich beendet.\nIhr Protokoll mit ";
    text += RowCountText(static_cast<int>(recovery.rows.size()));
    if (!recovery.head.substance.empty())
        text += " (Stoff: " + recovery.head.substance + ")";
    text += " ist noch nicht gespeichert.\n";
    if (recovery.damagedRows > 0)
        text += RowCountText(recovery.damagedRows) + " nicht mehr lesbar.\n";
    text += "\nMöchten Sie diese Zeilen in das Protokoll übernehmen?\n(Bei \"Nein\" bleiben sie in der Datei "
            + refusedName + ".)";
    return {"Protokoll wiederherstellen", text};
}

} // namespace

std::string NewProtocolFileName(const Machine& machine) {
    const std::string date = GermanDate(machine.Today());
    const std::string day = date.substr(date.size() - 2) + date.substr(0, 2) + date.substr(3, 2);
    const fs::path folder = machine.WritableFolder();
    int number = 1;
    while (FileExists(folder / FileName(day, number)))
        ++number;
    return FileName(day, number);
}

fs::path ProtocolRecoveryFile(const Machine& machine, int number) {
    const std::string counter = number > 1 ? std::to_string(number) : std::string();
    return machine.WritableFolder() / ("ORVAPROT" + counter + ".REC");
}

Protocol::Protocol(const Machine& ownMachine, Dialogs& ownDialogs)
    : protocolFile(NewProtocolFileName(ownMachine)), machine(ownMachine), dialogs(ownDialogs),
      ownName(protocolFile) {}

fs::path Protocol::FullPath() const {
    const bool hasFolder = protocolFile.find_first_of("\\/") != std::string::npos;
    return hasFolder ? PathOf(protocolFile) : machine.WritableFolder() / PathOf(protocolFile);
}

fs::path Protocol::RefusedRecoveryFile() const {
    return RecoveryFile().replace_extension(".BAK");
}

ProtocolHead Protocol::CurrentHead(const CalculationContext& context) const {
    ProtocolHead head{"", context.model.substance.name, context.calculation.CurrentModelText,
                      context.options.volumeBasis, context.options.unitBasis};
    if (recoveredHead)
        head = *recoveredHead;
    head.date = machine.ShortDate();
    return head;
}

void Protocol::Record(const std::array<double, resultCount>& results, const CalculationContext& context) {
    if (context.options.listSeparator == ',')
        dialogs.Show({"Warnung", commaWarning, MessageIcon::Exclamation});
    open = true;
    recoveredHead.reset();
    table.push_back(ProtocolRowOf(results));
    KeepRecovery(context);
}

void Protocol::KeepRecovery(const CalculationContext& context) {
    if (WriteFile(RecoveryFile(), RecoveryText({protocolFile, CurrentHead(context), table}))
        || recoveryFailureSaid)
        return;
    recoveryFailureSaid = true;
    dialogs.Show({"Warnung",
                  "Das Protokoll kann nicht gegen einen Absturz gesichert werden:\n"
                      + PathText(RecoveryFile()) + "\nkann nicht geschrieben werden.",
                  MessageIcon::Exclamation});
}

bool Protocol::WriteProtocol(const CalculationContext& context) {
    const std::string text =
        ProtocolText(CurrentHead(context), table, context.options.listSeparator, context.style);
    if (WriteFile(FullPath(), Windows1252FromUtf8(text))) {
        written = true;
        return true;
    }
    dialogs.Show({"Ausgabe-Fehler", "Die Datei kann nicht geschrieben werden:\n" + PathText(FullPath()),
                  MessageIcon::Exclamation});
    return false;
}

std::optional<std::string> Protocol::OpenNew(const CalculationContext& context) {
    LeaveForeignFile();
    if (open && !WriteProtocol(context))
        return std::nullopt;
    RemoveIfEmpty();
    const std::string text = ProtocolClipboardText(Utf8FromWindows1252(ReadFile(FullPath()).value_or("")),
                                                   context.options.listSeparator);
    Begin();
    return text;
}

void Protocol::LeaveForeignFile() {
    if (open && !written && protocolFile == ownName && FileExists(FullPath()))
        protocolFile = ownName = NewProtocolFileName(machine);
}

void Protocol::Begin() {
    if (open)
        RemoveRecovery();
    protocolFile = ownName = NewProtocolFileName(machine);
    written = false;
    open = false;
    table.clear();
    recoveredHead.reset();
}

void Protocol::Close(const CalculationContext& context) {
    LeaveForeignFile();
    if (open && WriteProtocol(context)) {
        RemoveRecovery();
        open = false;
    }
    RemoveIfEmpty();
}

void Protocol::RemoveIfEmpty() const {
    std::error_code ignored;
    const fs::path path = FullPath();
    if (fs::is_regular_file(path, ignored) && fs::file_size(path, ignored) == 0)
        fs::remove(path, ignored);
}

void Protocol::RemoveRecovery() const {
    std::error_code ignored;
    fs::remove(RecoveryFile(), ignored);
}

void Protocol::OfferRecovery() {
    const std::optional<std::string> bytes = ReadFile(RecoveryFile());
    if (!bytes)
        return;
    ProtocolRecovery recovery = ParseRecovery(*bytes);
    if (recovery.rows.empty())
        return;
    if (!dialogs.Ask(RecoveryQuestion(recovery, PathText(RefusedRecoveryFile().filename())))) {
        std::error_code ignored;
        fs::rename(RecoveryFile(), RefusedRecoveryFile(), ignored);
        return;
    }
    table = std::move(recovery.rows);
    recoveredHead = std::move(recovery.head);
    open = true;
    if (IsPlainProtocolName(recovery.protocolFile)
        && !FileExists(machine.WritableFolder() / PathOf(recovery.protocolFile)))
        protocolFile = ownName = recovery.protocolFile;
}

} // namespace orva
