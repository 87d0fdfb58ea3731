// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/text_file.h"

#include <array>
#include <fstream>
#include <random>
#include <system_error>

namespace orva {

namespace fs = std::filesystem;

namespace {

// A free name in the folder of the file. It is short and does not contain the name of the file, which may
// already be as long as the file system allows.
fs::path TemporaryBeside(const fs::path& path) {
    std::random_device random;
    fs::path temporary;
    std::error_code ignored;
    do {
        temporary = path.parent_path() / std::to_string(random()).append("~.tmp");
    } while (fs::exists(temporary, ignored));
    return temporary;
}

bool WriteBytes(const fs::path& path, std::string_view bytes) {
    std::ofstream stream(path, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.flush();
    const bool written = stream.good();
    stream.close();
    return written && !stream.fail();
}

// A new name may be written; of an old file the write permission counts, which a change of names would evade.
bool MayReplace(const fs::file_status& status) {
    constexpr fs::perms anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if (status.type() == fs::file_type::not_found)
        return true;
    return status.type() == fs::file_type::regular && (status.permissions() & anyWrite) != fs::perms::none;
}

} // namespace

bool FileExists(const fs::path& path) {
    std::error_code error;
    if (!fs::exists(path, error) || fs::is_directory(path, error))
        return false;
    const std::uintmax_t size = fs::file_size(path, error);
    return !error && size > 0;
}

std::optional<std::string> ReadFile(const fs::path& path) {
    std::error_code ignored;
    if (fs::is_directory(path, ignored))
        return std::nullopt;
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
        return std::nullopt;
    std::string bytes;
    std::array<char, 65536> block;
    do {
        stream.read(block.data(), static_cast<std::streamsize>(block.size()));
        bytes.append(block.data(), static_cast<std::size_t>(stream.gcount()));
    } while (stream);
    if (stream.bad())
        return std::nullopt;
    return bytes;
}

bool WriteFile(const fs::path& path, std::string_view bytes) {
    std::error_code ignored;
    // The file behind a link is replaced, not the link. A link to nowhere gives an empty path.
    const fs::path target = fs::is_symlink(path, ignored) ? fs::canonical(path, ignored) : path;
    const fs::file_status status = fs::status(target, ignored);
    if (!target.has_filename() || !MayReplace(status))
        return false;
    const fs::path temporary = TemporaryBeside(target);
    bool done = WriteBytes(temporary, bytes);
    if (done) {
        if (fs::exists(status))
            fs::permissions(temporary, status.permissions(), ignored);
        std::error_code error;
        fs::rename(temporary, target, error);
        done = !error;
    }
    if (!done)
        fs::remove(temporary, ignored);
    return done;
}

} // namespace orva
