// SPDX-License-Identifier: GPL-3.0-or-later
#include "substance/database.h"

#include <utility>

#include "text/text_file.h"

namespace orva {

namespace {

// The next record of the file; nothing if it ends before.
std::optional<DatabaseRecord> NextRecord(std::ifstream& file) {
    std::array<char, recordSize> bytes;
    if (!file.read(bytes.data(), bytes.size()))
        return std::nullopt;
    return DecodeRecord({bytes.data(), bytes.size()});
}

} // namespace

DatabaseLoadResult Database::LoadDatabase(const std::filesystem::path& path,
                                          const std::filesystem::path& installationFolder, bool englishText) {
    const std::filesystem::path full = path.has_parent_path() ? path : installationFolder / path;
    if (!FileExists(full))
        return {.notFound = true, .readError = false};
    std::ifstream newFile(full, std::ios::binary);
    const std::optional<DatabaseRecord> header = NextRecord(newFile);
    if (!header)
        return {.notFound = false, .readError = true};
    if (header->number < 1)
        return {.notFound = true, .readError = false};

    SubstanceList newList;
    for (int i = 1; i <= header->number; ++i) {
        const std::optional<DatabaseRecord> record = NextRecord(newFile);
        if (!record)
            return {.notFound = false, .readError = true};
        newList.entries.push_back({record->number, record->formula,
                                   englishText ? record->nameEnglish : record->nameGerman, record->cas});
    }
    file = std::move(newFile);
    list = std::move(newList);
    return {};
}

void Database::Close() {
    if (file.is_open())
        file.close();
}

bool Database::IsOpen() const {
    return file.is_open();
}

const SubstanceList& Database::List() const {
    return list;
}

std::optional<DatabaseRecord> Database::ReadRecord(int listIndex) {
    if (listIndex < 1 || static_cast<std::size_t>(listIndex) > list.entries.size())
        return std::nullopt;
    file.clear(); // an earlier read may have met the end of the file
    file.seekg(static_cast<std::streamoff>(recordSize) * listIndex);
    return NextRecord(file);
}

} // namespace orva
