// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QWindow>

#include "shell/help_library.h"
#include "ui/shell/help_browser.h"

namespace orva {

// The help: contents or search results at the left, the page at the right. It stands beside the other windows
// and stays usable while one of them is modal. Size, language and zoom outlive it.
class HelpWindow : public QWidget {
    Q_OBJECT
public:
    // `folder` is the folder "help" of the installation.
    explicit HelpWindow(const std::filesystem::path& folder);

    // Shows a place of the help and brings the window to the front.
    void Open(const HelpTopic& topic);

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    QToolButton* AddButton(QLayout& row, const char* name, const QString& text);
    QLayout* ButtonRow();
    QWidget* LeftSide();
    void AddKeys();
    void RestoreSettings();
    void ShowTexts();
    void FillContents();
    void SetLanguage(HelpLanguage chosen);
    void OpenItem(const QTreeWidgetItem* item);
    void OpenHit(const QListWidgetItem* item);
    void Search(const QString& query);
    void FollowPage();
    void JoinModalWindow();

    HelpLibrary library;
    HelpLanguage language = HelpLanguage::German;
    HelpBrowser* browser;
    QLineEdit* search;
    QTreeWidget* contents;
    QListWidget* results;
    QStackedWidget* left;
    QSplitter* splitter;
    QToolButton *back = nullptr, *forward = nullptr, *home = nullptr;
    QToolButton *smaller = nullptr, *larger = nullptr;
    QLabel* zoomShown = nullptr;
    QComboBox* languages = nullptr;
};

} // namespace orva
