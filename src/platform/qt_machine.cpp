// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt_machine.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>

namespace orva {

namespace {

std::filesystem::path PathOf(const QString& text) {
    return std::filesystem::path(text.toStdU16String());
}

} // namespace

std::filesystem::path QtMachine::InstallationFolder() const {
    return PathOf(QCoreApplication::applicationDirPath());
}

std::filesystem::path QtMachine::WritableFolder() const {
    const QString installation = QCoreApplication::applicationDirPath();
    if (QFileInfo(installation).isWritable())
        return PathOf(installation);
    const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(own);
    return PathOf(own);
}

bool QtMachine::DecimalComma() const {
    return QLocale::system().toString(0.75).contains(QLatin1Char(','));
}

std::chrono::year_month_day QtMachine::Today() const {
    const QDate today = QDate::currentDate();
    return {std::chrono::year(today.year()), std::chrono::month(static_cast<unsigned>(today.month())),
            std::chrono::day(static_cast<unsigned>(today.day()))};
}

std::string QtMachine::ShortDate() const {
    return QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat).toStdString();
}

} // namespace orva
