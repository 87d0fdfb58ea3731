// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/open_with_preview.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <utility>

#include "shell/project_file.h"
#include "shell/road.h"
#include "substance/substance_choice.h"
#include "text/capitals.h"
#include "text/code_page.h"
#include "text/columns.h"
#include "text/lines.h"
#include "text/paths.h"
#include "text/text_file.h"

namespace orva {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view allFiles = "*.*";
constexpr std::string_view batchPattern = "*.BAQ";
constexpr std::size_t longestPath = 60; // characters of the label

// "*.QCF" fits by the end of the name, capitals or not.
bool Fits(std::string_view name, std::string_view pattern) {
    return pattern == allFiles
           || InCapitals(name).ends_with(InCapitals(pattern.substr(pattern.find('*') + 1)));
}

// The last three letters, which tell the kind of a file.
std::string KindOf(std::string_view name) {
    constexpr std::size_t kindLength = 3;
    return InCapitals(name.substr(name.size() - std::min(name.size(), kindLength)));
}

bool IsSameFile(const Session& session, const std::string& one, const std::string& other) {
    const fs::path folder = session.machine.InstallationFolder();
    std::error_code ignored;
    return fs::equivalent(folder / PathOf(one), folder / PathOf(other), ignored);
}

void SwitchDatabase(Session& session, const std::string& name) {
    const SessionState& state = session.state;
    if (state.databaseLoaded && !name.empty() && IsSameFile(session, state.databaseFile, name))
        return;
    if (!OpenDatabase(session, PathOf(name)))
        return;
    session.ResetModelState();
    std::fill_n(session.statusPanels.begin(), 3, "");
}

// Nothing if the list has no such substance.
std::optional<std::string> NameOf(const SubstanceList& list, std::string_view cas) {
    const int index = FindByCas(list, cas);
    return index == 0 ? std::nullopt : std::optional<std::string>(Trim(list.At(index).name));
}

void SortByName(std::vector<std::string>& names) {
    std::ranges::sort(names, [](const std::string& a, const std::string& b) {
        return std::pair(InCapitals(a), a) < std::pair(InCapitals(b), b);
    });
}

} // namespace

FilePreview PreviewProject(Session& session, const std::string& path) {
    ProjectFile project;
    const std::optional<std::string> bytes = ReadFileStart(PathOf(path));
    const int lines = bytes ? ReadProject(*bytes, project) : 0;
    if (lines > 0)
        session.state.batchDate = project.date; // kept on purpose: the field of a data series
    if (lines >= projectDatabaseLine)
        SwitchDatabase(session, project.database);
    FilePreview preview{"", project.comment, project.database};
    const auto name = lines < projectCasLine ? std::nullopt : NameOf(session.List(), project.cas);
    preview.name = name.value_or("Stoff nicht in aktueller Datenbank gefunden");
    preview.usable = name.has_value();
    return preview;
}

FilePreview PreviewBatch(Session& session, const std::string& path) {
    const std::string bytes = ReadFileStart(PathOf(path)).value_or("");
    LineReader lines(bytes);
    const auto next = [&lines] { return Utf8FromWindows1252(lines.Next().value_or("")); };
    session.state.batchDate = next();
    FilePreview preview;
    preview.comment = next();
    const std::optional<std::string_view> cas = lines.Next();
    const auto name = cas ? NameOf(session.List(), *cas) : std::nullopt;
    preview.name = name.value_or("(Stoff nicht in aktueller Datenbank gefunden)");
    return preview;
}

OpenWithPreview::OpenWithPreview(Session& owner, std::string windowTitle, std::string filePattern,
                                 std::string dir, std::string startFile)
    : title(std::move(windowTitle)), txtOpenFile(std::move(startFile)), session(owner),
      pattern(filePattern.empty() ? allFiles : std::move(filePattern)) {
    showsDatabase = pattern != batchPattern;
    frameTitle = showsDatabase ? "Projektinformation" : "Datei-Information";
    GoTo(std::move(dir));
}

std::string OpenWithPreview::PathLabel() const {
    return ShortenPath(folder, longestPath);
}

std::string OpenWithPreview::PathOfFile(std::string_view name) const {
    return PathText(PathOf(folder) / PathOf(name));
}

void OpenWithPreview::GoTo(std::string newFolder) {
    std::error_code error;
    fs::path whole = newFolder.empty() ? fs::current_path(error) : fs::absolute(PathOf(newFolder), error);
    whole = whole.lexically_normal();
    if (!whole.has_filename() && whole.has_relative_path())
        whole = whole.parent_path(); // no separator at the end
    folder = PathText(whole);
    ListFolder();
}

// A folder that cannot be read is shown empty.
void OpenWithPreview::ListFolder() {
    folders.clear();
    files.clear();
    std::error_code error;
    fs::directory_iterator entry(PathOf(folder), fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = PathText(entry->path().filename());
        std::error_code unknown;
        if (entry->is_directory(unknown)) {
            if (!name.starts_with('.'))
                folders.push_back(name);
        } else if (entry->is_regular_file(unknown) && Fits(name, pattern)) {
            files.push_back(name);
        }
    }
    SortByName(folders);
    SortByName(files);
    selectedFile = -1;
    ClearPreview();
}

void OpenWithPreview::ClearPreview() {
    Text1.clear();
    Text2.clear();
    Label5.clear();
    previewed.clear();
    okEnabled = true;
}

void OpenWithPreview::SelectFile(int row) {
    if (row < 0 || static_cast<std::size_t>(row) >= files.size())
        return;
    ClearPreview();
    selectedFile = row;
    txtOpenFile = files[static_cast<std::size_t>(row)];
    const std::string kind = KindOf(txtOpenFile);
    if (kind != "BAQ" && kind != "QCF")
        return;
    const std::string path = PathOfFile(txtOpenFile);
    const FilePreview preview = kind == "BAQ" ? PreviewBatch(session, path) : PreviewProject(session, path);
    Text1 = preview.name;
    Text2 = preview.comment;
    Label5 = preview.database;
    okEnabled = preview.usable;
    previewed = txtOpenFile;
}

void OpenWithPreview::TypeFile(std::string_view text) {
    txtOpenFile = text;
    selectedFile = -1;
    ClearPreview();
}

void OpenWithPreview::EditComment(std::string_view text) {
    Text2 = text;
    const std::string kind = KindOf(previewed);
    if (kind == "BAQ")
        session.state.batchComment = text;
    else if (kind == "QCF")
        session.state.projectComment = text;
}

bool OpenWithPreview::DeleteSelected() {
    if (selectedFile < 0)
        return false;
    const std::string name = files[static_cast<std::size_t>(selectedFile)];
    Question question;
    question.title = "Löschen von Dateien bestätigen";
    question.text = "File " + name + " wirklich löschen?";
    question.yesIsDefault = false;
    if (!session.dialogs.Ask(question))
        return false;
    std::error_code error;
    if (!fs::remove(PathOf(PathOfFile(name)), error) || error)
        session.dialogs.Show({"Ausführung nicht möglich", "Die Datei kann nicht gelöscht werden:\n" + name,
                              MessageIcon::Exclamation});
    txtOpenFile.clear();
    ListFolder();
    return true;
}

void OpenWithPreview::cmdReturn() {
    txtOpenFile.clear();
    GoTo(PathText(PathOf(folder).parent_path()));
}

void OpenWithPreview::OpenFolder(int row) {
    if (row < 0 || static_cast<std::size_t>(row) >= folders.size())
        return;
    txtOpenFile.clear();
    GoTo(PathOfFile(folders[static_cast<std::size_t>(row)]));
}

bool OpenWithPreview::cmdOpenOK() {
    if (!okEnabled)
        return false;
    const fs::path chosen = PathOf(PathOfFile(txtOpenFile)).lexically_normal();
    std::error_code ignored;
    if (!txtOpenFile.empty() && fs::is_directory(chosen, ignored)) {
        txtOpenFile.clear();
        GoTo(PathText(chosen));
        return false;
    }
    if (!FileExists(chosen)) {
        session.dialogs.Show({"Ausführung nicht möglich", "Datei im ORVA-Verzeichnis nicht gefunden",
                              MessageIcon::Exclamation});
        return false;
    }
    folder = PathText(chosen.parent_path());
    file = PathText(chosen.filename());
    accepted = true;
    return true;
}

void OpenWithPreview::cmdOpenCancel() {
    accepted = false;
    file.clear();
}

} // namespace orva
