// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/substance/model_window.h"

#include <QAbstractItemView>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "shell/road.h"
#include "text/columns.h"
#include "ui/number_field.h"
#include "ui/shell/busy_cursor.h"
#include "ui/substance/virial_input_window.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

namespace {

constexpr int longestRow = 30; // characters
constexpr int exponentLength = 6;

void FillCombo(QComboBox& combo, const ChoiceList& list) {
    const QSignalBlocker quiet(combo);
    combo.clear();
    for (const ChoiceRow& row : list.rows)
        combo.addItem(ToQt(Trim(row.text)));
    combo.setCurrentIndex(list.selected);
}

} // namespace

frmQModell::frmQModell(Session& ownSession, QWidget* parent)
    : QDialog(parent), session(ownSession), choice(MakeModelChoice(session)),
      EOSKombi(AddCombo("EOSKombi", QStringLiteral("Zustandsgleichung"))),
      pKombi(AddCombo("pKombi", QStringLiteral("Dampfdruckgleichung"))),
      HLVKombi(AddCombo("HLVKombi", QStringLiteral("Verdampfungsenthalpie"))),
      WatsonKombi(AddCombo("WatsonKombi", QStringLiteral("Exponent der Watson-Korrelation"), true)),
      cpKombi(AddCombo("cpKombi", QStringLiteral("Wärmekapazität im Idealgas-Zustand"))),
      Bz1(new QLabel(QStringLiteral("E&xponent:"), this)), Rx1(new QLabel(this)),
      Rx2(MutedLabel(QString(), this)) {
    setObjectName(QStringLiteral("frmQModell"));
    choice.Open();
    setWindowTitle(ToQt(choice.title));
    WatsonKombi->setInsertPolicy(QComboBox::NoInsert);
    WatsonKombi->setCompleter(nullptr);
    WatsonKombi->setValidator(new NumberValidator(WatsonKombi));
    WatsonKombi->setMinimumContentsLength(exponentLength);
    WatsonKombi->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    Bz1->setObjectName(QStringLiteral("Bz1"));
    Bz1->setBuddy(WatsonKombi);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(10);
    column->addWidget(Frame(QStringLiteral("&Zustandsgleichung (EOS)"), {EOSKombi}, "EOSHilfe"));
    column->addWidget(Frame(QStringLiteral("&Dampfdruckgleichung"), {pKombi}, "pHilfe"));
    column->addWidget(PriorityFrame());
    column->addWidget(
        Frame(QStringLiteral("&Verdampfungsenthalpie"), {HLVKombi, Bz1, WatsonKombi}, "HLVHilfe"));
    column->addWidget(Frame(QStringLiteral("&Wärmekapazität im Idealgas-Zustand"), {cpKombi}, "cpHilfe"));
    column->addWidget(DensityFrame());
    column->addStretch(1);
    column->addLayout(ButtonRow());
    ShowChoice();
    ConnectControls();
    OrderTabs();
    EOSKombi->setFocus();
}

QComboBox* frmQModell::AddCombo(const char* name, const QString& accessibleName, bool editable) {
    auto* combo = new QComboBox(this);
    combo->setEditable(editable); // at once, so that its line of text is next to it for Tab
    combo->setObjectName(QLatin1String(name));
    combo->setAccessibleName(accessibleName);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(longestRow);
    return combo;
}

QGroupBox* frmQModell::Frame(const QString& title, std::initializer_list<QWidget*> controls,
                             const char* helpName) {
    auto* frame = new QGroupBox(title, this);
    auto* row = new QHBoxLayout(frame);
    for (QWidget* control : controls)
        row->addWidget(control, control == *controls.begin() ? 1 : 0);
    row->addWidget(HelpButton(QLatin1String(helpName), frame));
    frame->setFocusProxy(*controls.begin());
    return frame;
}

QGroupBox* frmQModell::PriorityFrame() {
    const char* const texts[] = {"Zustandsgleichung", "Dampfdruckgleichung"};
    priorityFrame = new QGroupBox(QStringLiteral("&Priorität beim Phasengleichgewicht"), this);
    priorityFrame->setObjectName(QStringLiteral("fraPrior"));
    auto* row = new QHBoxLayout(priorityFrame);
    auto* group = new QButtonGroup(this);
    for (std::size_t i = 0; i < PriorOpt.size(); ++i) {
        PriorOpt[i] = new QRadioButton(QLatin1String(texts[i]), priorityFrame);
        PriorOpt[i]->setObjectName(ControlName("PriorOpt", static_cast<int>(i)));
        group->addButton(PriorOpt[i], static_cast<int>(i));
        row->addWidget(PriorOpt[i]);
    }
    connect(group, &QButtonGroup::idClicked, this, [this](int id) { choice.ChoosePriority(id); });
    row->addStretch(1);
    row->addWidget(HelpButton(QStringLiteral("PriorHilfe"), priorityFrame));
    return priorityFrame;
}

QGroupBox* frmQModell::DensityFrame() {
    Rx1->setObjectName(QStringLiteral("Rx1"));
    Rx2->setObjectName(QStringLiteral("Rx2"));
    auto* frame = new QGroupBox(QStringLiteral("Flüssigkeitsdichte rho(L) = Fu(T)"), this);
    auto* texts = new QVBoxLayout;
    texts->addWidget(Rx1);
    texts->addWidget(Rx2);
    auto* row = new QHBoxLayout(frame);
    row->addLayout(texts, 1);
    row->addWidget(HelpButton(QStringLiteral("RhoLHilfe"), frame));
    return frame;
}

QLayout* frmQModell::ButtonRow() {
    auto* editor = new QPushButton(QStringLiteral("&Stoffdaten-Editor"), this);
    editor->setObjectName(QStringLiteral("cmdData"));
    editor->setEnabled(false);
    auto* ok = new QPushButton(QStringLiteral("&OK"), this);
    ok->setObjectName(QStringLiteral("OKModell"));
    ok->setDefault(true);
    auto* cancel = new QPushButton(QStringLiteral("&Abbrechen"), this);
    cancel->setObjectName(QStringLiteral("cmdEsc"));
    connect(ok, &QPushButton::clicked, this, &frmQModell::AcceptChoice);
    connect(cancel, &QPushButton::clicked, this, &frmQModell::reject);
    auto* row = new QHBoxLayout;
    row->addWidget(editor);
    row->addStretch(1);
    row->addWidget(ok);
    row->addWidget(cancel);
    return row;
}

// The lists were made before their frames; Tab goes from frame to frame all the same. A frame stands in the
// way of Tab as its first control, so it moves with it.
void frmQModell::OrderTabs() {
    QWidget* before = nullptr;
    for (QGroupBox* frame : findChildren<QGroupBox*>()) {
        QWidget* first = frame->focusProxy();
        if (before != nullptr && first != nullptr)
            setTabOrder(before, frame);
        before = first != nullptr ? first : before;
        for (int i = 0; i < frame->layout()->count(); ++i) {
            QWidget* control = frame->layout()->itemAt(i)->widget();
            if (control == nullptr || control == first || control->focusPolicy() == Qt::NoFocus)
                continue;
            setTabOrder(before, control);
            before = control;
        }
    }
}

// Walking over the closed list would choose every row on the way, each with its consequences. So the keys
// open the list, and the row that is accepted there is the only one chosen.
bool frmQModell::eventFilter(QObject* watched, QEvent* event) {
    if (watched != EOSKombi)
        return QDialog::eventFilter(watched, event);
    if (event->type() == QEvent::Wheel)
        return true;
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    static const QList<int> walking{Qt::Key_Up,       Qt::Key_Down, Qt::Key_PageUp,
                                    Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
    const bool letter =
        key->modifiers() == Qt::NoModifier && !key->text().isEmpty() && key->text().front().isLetter();
    if (!letter && !walking.contains(key->key()))
        return false;
    EOSKombi->showPopup();
    if (letter)
        EOSKombi->view()->keyboardSearch(key->text());
    return true;
}

void frmQModell::ConnectControls() {
    EOSKombi->installEventFilter(this);
    connect(EOSKombi, &QComboBox::activated, this, [this](int row) {
        const bool byHand = choice.SelectEos(row);
        ShowChoice();
        if (byHand)
            AskVirialConstants();
    });
    connect(pKombi, &QComboBox::activated, this, [this](int row) { choice.SelectVaporPressure(row); });
    connect(HLVKombi, &QComboBox::activated, this, [this](int row) {
        choice.SelectVaporization(row);
        ShowChoice();
    });
    connect(cpKombi, &QComboBox::activated, this, [this](int row) { choice.SelectCpModel(row); });
    connect(WatsonKombi, &QComboBox::activated, this, [this](int row) { choice.SelectWatsonExponent(row); });
    connect(WatsonKombi, &QComboBox::editTextChanged, this,
            [this](const QString& text) { choice.TypeWatsonExponent(FromQt(text)); });
}

void frmQModell::ShowChoice() {
    FillCombo(*EOSKombi, choice.EOSKombi);
    FillCombo(*pKombi, choice.pKombi);
    FillCombo(*HLVKombi, choice.HLVKombi);
    FillCombo(*cpKombi, choice.cpKombi);
    const std::string exponent = choice.watsonText;
    FillCombo(*WatsonKombi, choice.WatsonKombi);
    const QSignalBlocker quiet(WatsonKombi);
    WatsonKombi->setEditText(ToQt(exponent));
    WatsonKombi->setVisible(choice.watsonVisible);
    Bz1->setVisible(choice.watsonVisible);
    priorityFrame->setEnabled(choice.priorityEnabled);
    for (std::size_t i = 0; i < PriorOpt.size(); ++i)
        PriorOpt[i]->setChecked(choice.PriorOpt == static_cast<int>(i));
    Rx1->setText(ToQt(choice.Rx1));
    Rx2->setText(ToQt(choice.Rx2));
}

// The constants wait for the acceptance of the window, so that cmdEsc leaves those in force alone.
void frmQModell::AskVirialConstants() {
    auto* input = new frmBParInput(choice.VirialConstants(), session.dialogs, this);
    input->setAttribute(Qt::WA_DeleteOnClose);
    connect(input, &QDialog::accepted, this,
            [this, input] { choice.EnterVirialConstants(input->Constants()); });
    input->open();
}

void frmQModell::AcceptChoice() {
    BusyCursor hourglass; // a helper program may take its time
    {
        const BusyScope busy(hourglass);
        if (!choice.OKModell(session.dialogs))
            return;
    }
    emit Accepted(choice.Panels());
    accept();
}

void frmQModell::reject() {
    choice.cmdEsc();
    QDialog::reject();
}

} // namespace orva
