// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt_settings.h"

#include <QSettings>
#include <QVariant>

namespace orva {

namespace {

QString PathOf(std::string_view section, std::string_view key) {
    return QString::fromUtf8(section.data(), static_cast<qsizetype>(section.size())) + u'/'
           + QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size()));
}

} // namespace

std::optional<int> QtSettings::Number(std::string_view section, std::string_view key) const {
    bool isNumber = false;
    const int value = QSettings().value(PathOf(section, key)).toInt(&isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
}

void QtSettings::SetNumber(std::string_view section, std::string_view key, int value) {
    QSettings().setValue(PathOf(section, key), value);
}

} // namespace orva
