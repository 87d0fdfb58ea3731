// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include <QString>

namespace orva {

// The rooms without windows speak UTF-8.
inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) {
    return text.toStdString();
}

// A button text on a label, or on a second button: without its mnemonic.
inline QString WithoutMnemonic(std::string_view text) {
    return ToQt(text).remove(u'&').simplified();
}

// "par(0)": the object name of one control of an array.
inline QString ControlName(const char* array, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(index);
}

} // namespace orva
