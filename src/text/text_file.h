// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace orva {

// True when the file is there and not empty.
bool FileExists(const std::filesystem::path& path);

// All bytes of a file, or nothing if it cannot be read.
std::optional<std::string> ReadFile(const std::filesystem::path& path);

// Writes the file whole or not at all: the bytes go to a file beside it, which then takes its name.
// False, with the old file untouched, if that was not possible.
bool WriteFile(const std::filesystem::path& path, std::string_view bytes);

// The same, with the system's reason why it was not possible; its `message()` is the system's error text.
std::error_code TryWriteFile(const std::filesystem::path& path, std::string_view bytes);

} // namespace orva
