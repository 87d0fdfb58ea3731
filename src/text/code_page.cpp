// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/code_page.h"

#include "text/utf8.h"

#include <algorithm>
#include <array>
#include <iconv.h>
#include <optional>
#include <utility>
#include <vector>

namespace orva {

namespace {

constexpr char32_t unassigned = 0xFFFD;

// What a byte above 7F means in each direction, asked of the converter of the platform once.
class CodePage {
public:
    explicit CodePage(const char* name) {
        // The byte order is named, or the converter would put a mark of it before the first character.
        const iconv_t converter = iconv_open("UTF-32LE", name);
        for (unsigned byte = 0x80; byte <= 0xFF; ++byte) {
            const char32_t character = Convert(converter, static_cast<char>(byte));
            AppendUtf8(utf8[byte - 0x80], character);
            if (character != unassigned)
                bytes.emplace_back(character, static_cast<char>(byte));
        }
        if (converter != InvalidConverter())
            iconv_close(converter);
        std::sort(bytes.begin(), bytes.end());
    }

    std::string ToUtf8(std::string_view text) const {
        if (IsAscii(text))
            return std::string(text);
        std::string result;
        result.reserve(text.size() + text.size() / 2);
        for (const char c : text) {
            const auto byte = static_cast<unsigned char>(c);
            if (byte < 0x80)
                result += c;
            else
                result += utf8[byte - 0x80u];
        }
        return result;
    }

    std::string FromUtf8(std::string_view text) const {
        if (IsAscii(text))
            return std::string(text);
        std::string result;
        result.reserve(text.size());
        while (!text.empty()) {
            const Utf8Step step = FirstCharacter(text);
            result += Byte(step).value_or('?');
            text.remove_prefix(step.length);
        }
        return result;
    }

    bool Fits(std::string_view text) const {
        while (!text.empty()) {
            const Utf8Step step = FirstCharacter(text);
            if (!Byte(step))
                return false;
            text.remove_prefix(step.length);
        }
        return true;
    }

private:
    // As iconv_open reports failure. Every byte above 7F is unassigned then.
    static iconv_t InvalidConverter() {
        return reinterpret_cast<iconv_t>(-1); // NOLINT(performance-no-int-to-ptr)
    }

    static char32_t Convert(iconv_t converter, char byte) {
        if (converter == InvalidConverter())
            return unassigned;
        char* input = &byte;
        std::size_t inputLeft = 1;
        std::array<char, 4> output{};
        char* outputEnd = output.data();
        std::size_t outputLeft = output.size();
        iconv(converter, nullptr, nullptr, nullptr, nullptr);
        if (iconv(converter, &input, &inputLeft, &outputEnd, &outputLeft) != 0 || outputLeft != 0)
            return unassigned;
        char32_t character = 0;
        for (std::size_t i = output.size(); i-- > 0;)
            character = (character << 8) | static_cast<unsigned char>(output[i]);
        return character;
    }

    std::optional<char> Byte(const Utf8Step& step) const {
        if (!step.character)
            return std::nullopt;
        if (*step.character < 0x80)
            return static_cast<char>(*step.character);
        const auto found = std::lower_bound(bytes.begin(), bytes.end(), *step.character,
                                            [](const std::pair<char32_t, char>& entry, char32_t character) {
                                                return entry.first < character;
                                            });
        if (found == bytes.end() || found->first != *step.character)
            return std::nullopt;
        return found->second;
    }

    std::array<std::string, 128> utf8;            // of the bytes 80 to FF
    std::vector<std::pair<char32_t, char>> bytes; // by character
};

const CodePage& Windows1252() {
    static const CodePage page("CP1252");
    return page;
}

const CodePage& Oem850() {
    static const CodePage page("CP850");
    return page;
}

} // namespace

std::string Utf8FromWindows1252(std::string_view bytes) {
    return Windows1252().ToUtf8(bytes);
}

std::string Windows1252FromUtf8(std::string_view text) {
    return Windows1252().FromUtf8(text);
}

std::string Utf8FromTextFile(std::string_view bytes) {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (!IsUtf8(bytes))
        return Utf8FromWindows1252(bytes);
    if (bytes.starts_with(mark))
        bytes.remove_prefix(mark.size());
    return std::string(bytes);
}

bool FitsWindows1252(std::string_view text) {
    return Windows1252().Fits(text);
}

std::string Utf8FromOem(std::string_view bytes) {
    return Oem850().ToUtf8(bytes);
}

std::string OemFromUtf8(std::string_view text) {
    return Oem850().FromUtf8(text);
}

bool FitsOem(std::string_view text) {
    return Oem850().Fits(text);
}

} // namespace orva
