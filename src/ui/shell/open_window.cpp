// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shell/open_window.h"

#include <utility>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "ui/text.h"

namespace orva {

namespace {

constexpr int listCharacters = 26; // width of a list of names
constexpr int listLines = 12;

QLabel* Caption(const char* text, QWidget* buddy, QWidget* parent) {
    auto* label = new QLabel(QString::fromUtf8(text), parent);
    label->setBuddy(buddy);
    return label;
}

QLineEdit* Field(const char* name, const char* accessibleName, QWidget* parent) {
    auto* field = new QLineEdit(parent);
    field->setObjectName(QLatin1String(name));
    field->setAccessibleName(QString::fromUtf8(accessibleName));
    return field;
}

void Fill(QListWidget& list, const std::vector<std::string>& names) {
    const QSignalBlocker quiet(&list);
    list.clear();
    for (const std::string& name : names)
        list.addItem(ToQt(name));
}

bool IsEnter(const QKeyEvent& key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

} // namespace

frmCmnDlg::frmCmnDlg(OpenWithPreview openWithPreview, QWidget* parent)
    : QDialog(parent), choice(std::move(openWithPreview)), pathLabel(new QLabel(this)),
      Text1(new QLabel(this)), Label4(new QLabel(QStringLiteral("Datenbank:"), this)),
      Label5(new QLabel(this)), dirOpenList(AddList("dirOpenList", "Ordner")),
      filOpenList(AddList("filOpenList", "Dateien")), txtOpenFile(Field("txtOpenFile", "Dateiname", this)),
      Text2(Field("Text2", "Dateikommentar", this)),
      cmdReturn(AddButton("cmdReturn", " über&geordneter Ordner ")),
      cmdOpenOK(AddButton("cmdOpenOK", "&OK, Laden")),
      cmdOpenCancel(AddButton("cmdOpenCancel", "&Abbrechen")) {
    setObjectName(QStringLiteral("frmCmnDlg"));
    setWindowTitle(ToQt(choice.title));
    cmdReturn->setAutoDefault(false);
    cmdOpenOK->setDefault(true);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(10);
    column->addLayout(FolderRow());
    column->addLayout(Lists(), 1);
    column->addLayout(FileRow());
    column->addWidget(PreviewFrame());
    column->addLayout(ButtonRow());
    ConnectControls();
    ShowFolder();
    (filOpenList->count() > 0 ? static_cast<QWidget*>(filOpenList) : txtOpenFile)->setFocus();
}

QListWidget* frmCmnDlg::AddList(const char* name, const char* accessibleName) {
    auto* list = new QListWidget(this);
    list->setObjectName(QLatin1String(name));
    list->setAccessibleName(QString::fromUtf8(accessibleName));
    const QFontMetrics metrics(list->font());
    list->setMinimumSize(metrics.horizontalAdvance(u'0') * listCharacters, metrics.lineSpacing() * listLines);
    list->installEventFilter(this);
    return list;
}

QPushButton* frmCmnDlg::AddButton(const char* name, const char* text) {
    auto* button = new QPushButton(QString::fromUtf8(text), this);
    button->setObjectName(QLatin1String(name));
    return button;
}

QLayout* frmCmnDlg::FolderRow() {
    pathLabel->setObjectName(QStringLiteral("lblPath"));
    pathLabel->setTextFormat(Qt::PlainText);
    auto* row = new QHBoxLayout;
    row->addWidget(pathLabel, 1);
    row->addWidget(cmdReturn);
    return row;
}

QLayout* frmCmnDlg::Lists() {
    auto* grid = new QGridLayout;
    grid->addWidget(Caption("O&rdner:", dirOpenList, this), 0, 0);
    grid->addWidget(Caption("&Dateien:", filOpenList, this), 0, 1);
    grid->addWidget(dirOpenList, 1, 0);
    grid->addWidget(filOpenList, 1, 1);
    grid->setRowStretch(1, 1);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 3);
    return grid;
}

QLayout* frmCmnDlg::FileRow() {
    auto* row = new QHBoxLayout;
    row->addWidget(Caption("Datei&name:", txtOpenFile, this));
    row->addWidget(txtOpenFile, 1);
    return row;
}

QGroupBox* frmCmnDlg::PreviewFrame() {
    auto* frame = new QGroupBox(ToQt(choice.frameTitle), this);
    frame->setObjectName(QStringLiteral("fraViewStoff"));
    Text1->setObjectName(QStringLiteral("Text1"));
    Label4->setObjectName(QStringLiteral("Label4"));
    Label5->setObjectName(QStringLiteral("Label5"));
    for (QLabel* shown : {Text1, Label5}) {
        shown->setTextFormat(Qt::PlainText);
        shown->setTextInteractionFlags(Qt::TextSelectableByMouse);
        shown->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a long name widens nothing
    }
    auto* grid = new QGridLayout(frame);
    grid->addWidget(new QLabel(QStringLiteral("Stoff:"), frame), 0, 0);
    grid->addWidget(Text1, 0, 1);
    grid->addWidget(Caption("Datei&kommentar (editierbar):", Text2, frame), 1, 0);
    grid->addWidget(Text2, 1, 1);
    grid->addWidget(Label4, 2, 0);
    grid->addWidget(Label5, 2, 1);
    grid->setColumnStretch(1, 1);
    Label4->setVisible(choice.showsDatabase);
    Label5->setVisible(choice.showsDatabase);
    return frame;
}

QLayout* frmCmnDlg::ButtonRow() {
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(cmdOpenOK);
    row->addWidget(cmdOpenCancel);
    return row;
}

void frmCmnDlg::ConnectControls() {
    connect(filOpenList, &QListWidget::itemSelectionChanged, this, &frmCmnDlg::PickFile);
    connect(filOpenList, &QListWidget::itemDoubleClicked, this, &frmCmnDlg::AcceptFile);
    connect(dirOpenList, &QListWidget::itemDoubleClicked, this, &frmCmnDlg::OpenFolder);
    connect(txtOpenFile, &QLineEdit::textEdited, this, [this](const QString& text) {
        choice.TypeFile(FromQt(text));
        const QSignalBlocker quiet(filOpenList);
        filOpenList->clearSelection();
        ShowChoice();
    });
    connect(Text2, &QLineEdit::textEdited, this,
            [this](const QString& text) { choice.EditComment(FromQt(text)); });
    connect(cmdReturn, &QPushButton::clicked, this, &frmCmnDlg::GoUp);
    connect(cmdOpenOK, &QPushButton::clicked, this, &frmCmnDlg::AcceptFile);
    connect(cmdOpenCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmCmnDlg::ShowFolder() {
    pathLabel->setText(ToQt(choice.PathLabel()));
    pathLabel->setToolTip(ToQt(choice.Folder()));
    Fill(*dirOpenList, choice.folders);
    Fill(*filOpenList, choice.files);
    ShowChoice();
}

// The name field is left alone while it is typed in.
void frmCmnDlg::ShowChoice() {
    if (txtOpenFile->text() != ToQt(choice.txtOpenFile))
        txtOpenFile->setText(ToQt(choice.txtOpenFile));
    Text1->setText(ToQt(choice.Text1));
    Text2->setText(ToQt(choice.Text2));
    Text2->setEnabled(choice.selectedFile >= 0);
    Label5->setText(ToQt(choice.Label5));
    cmdOpenOK->setEnabled(choice.okEnabled);
}

void frmCmnDlg::PickFile() {
    if (filOpenList->selectedItems().isEmpty())
        return;
    choice.SelectFile(filOpenList->currentRow());
    ShowChoice();
}

void frmCmnDlg::AcceptFile() {
    const std::string before = choice.Folder();
    if (choice.cmdOpenOK())
        accept();
    else if (choice.Folder() != before)
        ShowFolder();
}

void frmCmnDlg::OpenFolder() {
    choice.OpenFolder(dirOpenList->currentRow());
    ShowFolder();
}

void frmCmnDlg::GoUp() {
    choice.cmdReturn();
    ShowFolder();
}

void frmCmnDlg::reject() {
    choice.cmdOpenCancel();
    QDialog::reject();
}

bool frmCmnDlg::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (watched == dirOpenList && IsEnter(key)) {
        OpenFolder();
        return true;
    }
    if (watched == filOpenList && key.key() == Qt::Key_Delete) {
        if (choice.DeleteSelected())
            ShowFolder();
        return true;
    }
    // A list that got the keyboard has a current row that is not picked: the first arrow picks it.
    if (watched == filOpenList && key.key() == Qt::Key_Down && filOpenList->selectedItems().isEmpty()) {
        filOpenList->setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace orva
