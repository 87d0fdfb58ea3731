// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt_machine.h"

#include <QCoreApplication>
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

} // namespace orva
