// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "shell/open_with_preview.h"

namespace orva {

// The window that chooses a file to open and shows what is in it.
class frmCmnDlg : public QDialog {
    Q_OBJECT
public:
    explicit frmCmnDlg(OpenWithPreview openWithPreview, QWidget* parent = nullptr);

    // How it was left.
    const OpenWithPreview& Choice() const { return choice; }

    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLayout* FolderRow();
    QLayout* Lists();
    QGroupBox* PreviewFrame();
    QLayout* FileRow();
    QLayout* ButtonRow();
    QListWidget* AddList(const char* name, const char* accessibleName);
    QPushButton* AddButton(const char* name, const char* text);
    void ConnectControls();
    void ShowFolder();
    void ShowChoice();
    void PickFile();
    void AcceptFile();
    void OpenFolder();
    void GoUp();

    OpenWithPreview choice;
    QLabel *pathLabel, *Text1, *Label4, *Label5;
    QListWidget *dirOpenList, *filOpenList;
    QLineEdit *txtOpenFile, *Text2;
    QPushButton *cmdReturn, *cmdOpenOK, *cmdOpenCancel;
};

} // namespace orva
