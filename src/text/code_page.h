// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace orva {

// Text of files on disk. Inside the program all text is UTF-8.

// Windows-1252. Any byte has a meaning: the five unassigned bytes become U+FFFD.
std::string Utf8FromWindows1252(std::string_view bytes);
// Characters outside of the code page, and bytes that are not UTF-8, become "?".
std::string Windows1252FromUtf8(std::string_view text);
// True if every character of the text stands in Windows-1252.
bool FitsWindows1252(std::string_view text);

// The text of a file that a person may have written with any editor: UTF-8, with or without its mark, where
// every character of it is whole, else Windows-1252.
std::string Utf8FromTextFile(std::string_view bytes);

// Code page 850, the OEM text of the synonym file.
std::string Utf8FromOem(std::string_view bytes);
std::string OemFromUtf8(std::string_view text);
bool FitsOem(std::string_view text);

} // namespace orva
