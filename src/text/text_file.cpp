// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/text_file.h"

#include <array>
#include <cerrno>
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

// The reason of the last stream operation. The standard library leaves it in errno, if anywhere.
std::error_code LastError() {
    return {errno != 0 ? errno : EIO, std::generic_category()};
}

std::error_code WriteBytes(const fs::path& path, std::string_view bytes) {
    errno = 0;
    std::ofstream stream(path, std::ios::binary | std::ios::trunc);
    if (!stream)
        return LastError();
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.flush();
    if (!stream)
        return LastError();
    stream.close();
    return stream.fail() ? LastError() : std::error_code();
}

// A new name may be written; of an old file the write permission counts, which a change of names would evade.
std::error_code RefusalToReplace(const fs::file_status& status) {
    constexpr fs::perms anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if (status.type() == fs::file_type::not_found)
        return {};
    if (status.type() == fs::file_type::directory)
        return std::make_error_code(std::errc::is_a_directory);
    if (status.type() != fs::file_type::regular || (status.permissions() & anyWrite) == fs::perms::none)
        return std::make_error_code(std::errc::permission_denied);
    return {};
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
    return !TryWriteFile(path, bytes);
}

std::error_code TryWriteFile(const fs::path& path, std::string_view bytes) {
    std::error_code ignored;
    // The file behind a link is replaced, not the link. A link to nowhere gives an empty path.
    const fs::path target = fs::is_symlink(path, ignored) ? fs::canonical(path, ignored) : path;
    const fs::file_status status = fs::status(target, ignored);
    if (!target.has_filename())
        return std::make_error_code(std::errc::no_such_file_or_directory);
    if (const std::error_code refusal = RefusalToReplace(status))
        return refusal;
    const fs::path temporary = TemporaryBeside(target);
    std::error_code error = WriteBytes(temporary, bytes);
    if (!error) {
        if (fs::exists(status))
            fs::permissions(temporary, status.permissions(), ignored);
        fs::rename(temporary, target, error);
    }
    if (error)
        fs::remove(temporary, ignored);
    return error;
}

} // namespace orva
