// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/session.h"

namespace orva {

// What the window of file choice shows of a file before it is opened.
struct FilePreview {
    std::string name; // of the substance, or that it was not found
    std::string comment;
    std::string database; // file name, of a project only
    bool usable = true;   // false for a project whose substance cannot be found
};

// Looks into a project: loads its database, so that browsing changes the database of the session, and finds
// the substance in it. A database other than the one before ends the work with the substance in force. The
// date goes to `batchDate`, like that of a data series.
FilePreview PreviewProject(Session& session, const std::string& path);

// Looks into a file of a data series. The date goes to `batchDate`.
FilePreview PreviewBatch(Session& session, const std::string& path);

// State and rules of `frmCmnDlg`, which chooses a file to open and shows what is in it. Files are looked into
// as they are picked.
class OpenWithPreview {
public:
    // An empty pattern is "*.*", an empty folder the current one. `file` stands in the name field at first.
    OpenWithPreview(Session& session, std::string title, std::string pattern, std::string dir,
                    std::string file);

    std::string title;
    std::string frameTitle;           // of `fraViewStoff`
    bool showsDatabase = false;       // the two rows of the database
    std::vector<std::string> folders; // of the folder, by name
    std::vector<std::string> files;   // those of the pattern, by name
    int selectedFile = -1;            // row of `filOpenList`
    std::string txtOpenFile;          // file name
    std::string Text1;                // substance
    std::string Text2;                // comment
    std::string Label5;               // database
    bool okEnabled = true;            // `cmdOpenOK`

    // The folder in force, whole and shortened for its label.
    const std::string& Folder() const { return folder; }
    std::string PathLabel() const;

    void SelectFile(int row);
    void TypeFile(std::string_view text);
    // The comment goes into the session, to be written with the next save.
    void EditComment(std::string_view text);
    // Deletes the picked file from the disk if the user agrees. True if the list is a new one.
    bool DeleteSelected();
    void cmdReturn();
    void OpenFolder(int row);

    // True if the window closes with a file. The name may lead into another folder; that of a folder opens
    // it.
    bool cmdOpenOK();
    void cmdOpenCancel();

    bool Accepted() const { return accepted; }
    // File name without its folder; empty after a cancel.
    const std::string& File() const { return file; }

private:
    void GoTo(std::string newFolder);
    void ListFolder();
    void ClearPreview();
    std::string PathOfFile(std::string_view name) const;

    Session& session;
    std::string pattern, folder, file;
    std::string previewed; // name of the file whose comment is shown
    bool accepted = false;
};

} // namespace orva
