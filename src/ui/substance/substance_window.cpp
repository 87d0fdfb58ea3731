// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/substance/substance_window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "shell/road.h"
#include "text/columns.h"
#include "ui/help_request.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

namespace {

constexpr int listColumns = 60;
constexpr int listLines = 18;
constexpr int longestNumber = 5; // one digit more than a number can have, so that a wrong one is seen

} // namespace

frmStoffWahl::frmStoffWahl(Session& ownSession, BusyCursor& cursor, QWidget* parent)
    : QDialog(parent), session(ownSession), busy(cursor),
      choice(session.database, session.state, session.dialogs, session.machine.InstallationFolder()),
      NameCombo(new QComboBox(this)), Text1(new QLineEdit(this)), Bez4(new QLabel(this)),
      StoffListe(new SubstanceListView(this)) {
    setObjectName(QStringLiteral("frmStoffWahl"));
    choice.Open();
    setWindowTitle(ToQt(choice.title));
    BuildControls();
    FillList();
    ShowChoice();
    connect(StoffListe, &SubstanceListView::RowSelected, this, [this](int row) {
        if (row == choice.selectedRow)
            return;
        choice.SelectRow(row);
        ShowChoice();
    });
    connect(StoffListe, &SubstanceListView::RowAccepted, this, &frmStoffWahl::AcceptChoice);
    connect(Text1, &QLineEdit::textEdited, this, [this](const QString& text) {
        choice.TypeNumber(FromQt(text));
        ShowChoice(false);
    });
    connect(NameCombo, &QComboBox::editTextChanged, this,
            [this](const QString& text) { choice.NameCombo = FromQt(text); });
    NameCombo->setFocus();
    NameCombo->lineEdit()->selectAll();
}

void frmStoffWahl::BuildControls() {
    auto* column = new QVBoxLayout(this);
    column->addLayout(NameFields());
    auto* heading = new QLabel(ToQt(SubstanceChoice::listHeading), this);
    heading->setFont(FixedPitchFont());
    heading->setContentsMargins(StoffListe->frameWidth() + 2, 6, 0, 0);
    heading->setBuddy(StoffListe);
    column->addWidget(heading);
    StoffListe->setObjectName(QStringLiteral("StoffListe"));
    StoffListe->setAccessibleName(QStringLiteral("Stoffliste"));
    const QFontMetrics metrics(StoffListe->font());
    StoffListe->setMinimumSize(metrics.horizontalAdvance(u'0') * listColumns + 30, metrics.lineSpacing() * 8);
    column->addWidget(StoffListe, 1);
    column->addLayout(ButtonRow());
    resize(sizeHint().width(), metrics.lineSpacing() * listLines + 220);
}

QLayout* frmStoffWahl::NameFields() {
    NameCombo->setObjectName(QStringLiteral("NameCombo"));
    NameCombo->setEditable(true);
    NameCombo->setInsertPolicy(QComboBox::NoInsert);
    NameCombo->setCompleter(nullptr);
    NameCombo->installEventFilter(this); // it has the keyboard, not the line in it
    Text1->setObjectName(QStringLiteral("Text1"));
    Text1->setMaxLength(longestNumber);
    Text1->setFixedWidth(Text1->fontMetrics().horizontalAdvance(QStringLiteral("000000")) + 16);
    Text1->installEventFilter(this);
    Bez4->setObjectName(QStringLiteral("Bez4"));
    Bez4->setTextInteractionFlags(Qt::TextSelectableByMouse);
    Bez4->setMinimumWidth(Bez4->fontMetrics().horizontalAdvance(QStringLiteral(" CASRN: 000000-00-0  ")));
    auto* nameLabel = new QLabel(QStringLiteral("&Name, Synonym oder CAS-Nr.:"), this);
    nameLabel->setBuddy(NameCombo);
    auto* numberLabel = new QLabel(QStringLiteral("N&ummer:"), this);
    numberLabel->setBuddy(Text1);
    auto* number = new QHBoxLayout;
    number->addWidget(Text1);
    number->addSpacing(12);
    number->addWidget(Bez4);
    number->addStretch(1);
    auto* grid = new QGridLayout;
    grid->addWidget(nameLabel, 0, 0);
    grid->addWidget(NameCombo, 0, 1);
    grid->addWidget(numberLabel, 1, 0);
    grid->addLayout(number, 1, 1);
    grid->setColumnStretch(1, 1);
    return grid;
}

QPushButton* frmStoffWahl::AddButton(const char* name, const QString& text) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    return button;
}

// The window behind `cmdDaten` is not there yet.
QLayout* frmStoffWahl::ButtonRow() {
    QPushButton* dataButton = AddButton("cmdDaten", QStringLiteral("&Stoffdaten zeigen"));
    dataButton->setToolTip(QStringLiteral("...hier aber nicht editierbar "));
    dataButton->setEnabled(false);
    QPushButton* help = AddButton("Hilfe", QStringLiteral("&Hilfe"));
    help->setAutoDefault(false);
    connect(help, &QPushButton::clicked, this, [this] { RequestHelp(*this, QStringLiteral("Hilfe")); });
    StoffOK = AddButton("StoffOK", ToQt(SubstanceChoice::acceptText));
    StoffOK->setDefault(true);
    QPushButton* cancel = AddButton("Esc", QStringLiteral("&Abbrechen"));
    connect(StoffOK, &QPushButton::clicked, this, &frmStoffWahl::AcceptChoice);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* row = new QHBoxLayout;
    row->addWidget(dataButton);
    row->addWidget(help);
    row->addStretch(1);
    row->addWidget(StoffOK);
    row->addWidget(cancel);
    for (QPushButton* button : {dataButton, help, cancel})
        button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::MinimumExpanding);
    return row;
}

void frmStoffWahl::FillList() {
    QStringList rows, names;
    for (const std::string& row : choice.StoffListe)
        rows << ToQt(row);
    for (const SubstanceListEntry& entry : session.List().entries)
        names << ToQt(Trim(entry.name));
    StoffListe->SetRows(rows, names);
}

// While a number is typed its field is left alone.
void frmStoffWahl::ShowChoice(bool withNumber) {
    const QSignalBlocker quietName(NameCombo);
    NameCombo->clear();
    for (const std::string& name : choice.nameHistory)
        NameCombo->addItem(ToQt(name));
    NameCombo->setEditText(ToQt(choice.NameCombo));
    if (NameCombo->hasFocus())
        NameCombo->lineEdit()->selectAll();
    else
        NameCombo->lineEdit()->setCursorPosition(0);
    if (withNumber)
        Text1->setText(ToQt(choice.Text1));
    Bez4->setText(ToQt(choice.Bez4));
    if (choice.selectedRow >= 0)
        StoffListe->SelectRow(choice.selectedRow);
    else
        StoffListe->clearSelection();
}

void frmStoffWahl::SearchName() {
    {
        const BusyScope scope(busy);
        choice.EnterName(FromQt(NameCombo->currentText()));
    }
    ShowChoice();
    StoffOK->setFocus();
}

void frmStoffWahl::AcceptChoice() {
    bool found = false;
    {
        const BusyScope scope(busy);
        found = choice.AcceptName();
    }
    ShowChoice();
    if (!found)
        return;
    const bool accepted = AcceptSubstance(session, session.state.substanceIndexPending);
    emit StateChanged();
    if (!accepted)
        return;
    accept();
    emit Accepted();
}

// However the window closes, a look at other substances leaves the current one as it was.
void frmStoffWahl::done(int result) {
    RestoreSubstance(session);
    QDialog::done(result);
}

bool frmStoffWahl::eventFilter(QObject* watched, QEvent* event) {
    if (watched == Text1 && event->type() == QEvent::FocusIn)
        QMetaObject::invokeMethod(Text1, &QLineEdit::selectAll, Qt::QueuedConnection);
    if (watched != NameCombo || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        SearchName();
        return true;
    }
    if (key == Qt::Key_Escape && choice.selectedRow >= 0) {
        choice.ClearSelection();
        StoffListe->clearSelection();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace orva
