// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/run_command.h"

#include <chrono>
#include <fstream>
#include <iostream>

#include "cli/main_output.h"
#include "cli/request_json.h"

namespace orva {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t linesBetweenLooks = 256; // at the clock
constexpr auto barInterval = std::chrono::milliseconds(100);
constexpr int barWidth = 40;
constexpr std::size_t bytesWrittenAtOnce = 1U << 16U;

// A line that is overwritten in place: the part done, if the size of the input is known, and the count.
class ProgressBar {
public:
    explicit ProgressBar(const RunProgress& theProgress) : progress(theProgress) {}
    ~ProgressBar() {
        if (progress.shown != nullptr && visible)
            *progress.shown << "\r\033[K" << std::flush;
    }
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    void Advance(std::size_t lines, double bytes) {
        if (progress.shown == nullptr || lines % linesBetweenLooks != 0 || Clock::now() < next)
            return;
        next = Clock::now() + barInterval;
        visible = true;
        *progress.shown << '\r';
        if (progress.inputBytes > 0) {
            const double part = std::min(bytes / progress.inputBytes, 1.0);
            const int full = static_cast<int>(part * barWidth);
            *progress.shown << '[' << std::string(static_cast<std::size_t>(full), '#')
                            << std::string(static_cast<std::size_t>(barWidth - full), ' ') << "] "
                            << static_cast<int>(part * 100) << " %  ";
        }
        *progress.shown << lines << " requests" << std::flush;
    }

private:
    const RunProgress& progress;
    Clock::time_point next = Clock::now() + barInterval;
    bool visible = false;
};

Answer AnswerLine(Program& program, const std::string& database, const std::string& line) {
    ReadRequest read = RequestFromJson(line);
    if (!read.error.empty())
        return AnswerFor({exitWrongUsage, read.error, {}});
    if (read.request.database.empty())
        read.request.database = database;
    return program.Execute(read.request);
}

double SizeOf(std::ifstream& file) {
    file.seekg(0, std::ios::end);
    const auto size = static_cast<double>(file.tellg());
    file.clear();
    file.seekg(0);
    return std::max(size, 0.0);
}

bool IsBlank(std::string_view line) {
    return line.find_first_not_of(" \t\r") == line.npos;
}

int Finish(const RunSummary& summary) {
    if (!summary.written)
        return OutputFailure();
    if (summary.failed == 0)
        return exitGood;
    PrintErrorLine(std::to_string(summary.failed) + " of " + std::to_string(summary.lines)
                   + " requests failed");
    return exitCalculationFailed;
}

} // namespace

RunSummary RunRequests(Program& program, const std::string& database, std::istream& requests,
                       std::ostream& answers, RunProgress progress) {
    RunSummary summary;
    ProgressBar bar(progress);
    double bytes = 0;
    std::string line, pending;
    const auto write = [&answers, &pending] {
        answers.write(pending.data(), static_cast<std::streamsize>(pending.size())).flush();
        pending.clear();
        return answers.good();
    };
    while (summary.written && std::getline(requests, line)) {
        bytes += static_cast<double>(line.size()) + 1;
        if (IsBlank(line))
            continue;
        Answer answer = AnswerLine(program, database, line);
        ++summary.lines;
        summary.failed += answer.exitStatus != exitGood ? 1 : 0;
        pending += TakeJsonText(std::move(answer));
        pending += '\n';
        if (progress.flushEachLine || pending.size() >= bytesWrittenAtOnce)
            summary.written = write();
        bar.Advance(summary.lines, bytes);
    }
    summary.written = summary.written && write();
    return summary;
}

int RunCommand(Program& program, const Request& request) {
    if (const std::optional<Failure> failure = program.OpenDatabase(request.database)) {
        PrintErrorLine(failure->text);
        return failure->exitStatus;
    }
    RunProgress progress;
    progress.shown = IsErrorTerminal() ? &std::cerr : nullptr;
    if (request.requestsFile == "-") {
        progress.flushEachLine = true;
        return Finish(RunRequests(program, request.database, std::cin, std::cout, progress));
    }
    const std::filesystem::path path(std::u8string(request.requestsFile.begin(), request.requestsFile.end()));
    std::ifstream file(path, std::ios::binary);
    std::error_code ignored;
    if (!file || std::filesystem::is_directory(path, ignored)) {
        PrintErrorLine("the file " + request.requestsFile + " cannot be read");
        return exitDataError;
    }
    progress.inputBytes = SizeOf(file);
    return Finish(RunRequests(program, request.database, file, std::cout, progress));
}

} // namespace orva
