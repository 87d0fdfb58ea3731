// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt_program_runner.h"

#include <QProcess>
#include <QString>

namespace orva {

namespace {

constexpr int millisecondsASecond = 1000;
constexpr int killPatience = 2000; // ms

QString TextOf(const std::filesystem::path& path) {
    return QString::fromStdU16String(path.u16string());
}

} // namespace

void QtProgramRunner::Run(const std::filesystem::path& program, const std::filesystem::path& folder,
                          int seconds) {
    QProcess process;
    process.setWorkingDirectory(TextOf(folder));
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(TextOf(program), {});
    if (process.waitForStarted() && !process.waitForFinished(seconds * millisecondsASecond)) {
        process.kill();
        process.waitForFinished(killPatience);
    }
}

} // namespace orva
