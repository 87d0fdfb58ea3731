// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

// Windows are tested without a screen unless a platform is named; the settings of the user stay out of it.
int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir settings;
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("ORVA"));
    QApplication::setApplicationName(QStringLiteral("ORVA-6-tests"));
    return RUN_ALL_TESTS();
}
