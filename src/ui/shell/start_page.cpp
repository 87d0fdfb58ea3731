// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shell/start_page.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

#include "text/columns.h"
#include "ui/shell/icons.h"
#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

namespace {

constexpr int pageWidth = 760;
constexpr int pageMargin = 20;
constexpr int discSize = 34;
constexpr int iconSize = 56;

QFont Scaled(const QFont& font, double factor, bool bold) {
    QFont scaled = font;
    scaled.setPointSizeF(font.pointSizeF() * factor);
    scaled.setBold(bold);
    return scaled;
}

QWidget* Heading(QWidget* parent) {
    auto* heading = new QWidget(parent);
    auto* picture = new QLabel(heading);
    picture->setPixmap(ProgramIcon().pixmap(QSize(iconSize, iconSize), parent->devicePixelRatioF()));
    auto* name = new QLabel(QStringLiteral("ORVA-6"), heading);
    name->setFont(Scaled(name->font(), 2.0, true));
    auto* purpose = MutedLabel(QStringLiteral("Zustände und Prozesse reiner Stoffe: Zustandsgleichungen, "
                                              "Phasengleichgewicht, Diagramme"),
                               heading);
    purpose->setWordWrap(true);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(name);
    texts->addWidget(purpose);
    auto* layout = new QHBoxLayout(heading);
    layout->setContentsMargins(0, 0, 0, 12);
    layout->setSpacing(16);
    layout->addWidget(picture);
    layout->addLayout(texts, 1);
    return heading;
}

struct StepView {
    bool done;
    QString text;
};

StepView DatabaseStep(const Session& session) {
    const SessionState& state = session.state;
    if (state.databaseFile.empty())
        return {false, QStringLiteral("Öffnen Sie eine Stoffdatenbank.")};
    return {true, QStringLiteral("%1 mit %2 Stoff(en)")
                      .arg(QFileInfo(ToQt(state.databaseFile)).fileName())
                      .arg(state.substanceCount)};
}

StepView SubstanceStep(const Session& session) {
    const SubstanceData& substance = session.model.substance;
    // Another database, or missing critical data, ask for a substance again.
    if (session.state.substanceIndex == 0 || !session.commands.Allowed(FindCommand("mnuModel")))
        return {false, QStringLiteral("Wählen Sie einen Stoff nach Name, CAS-Nummer oder aus der Liste.")};
    return {true, ToQt(substance.name + "   " + substance.formulaCompact + "   CAS-Nr. "
                       + std::string(TrimRight(substance.cas)))};
}

StepView ModelStep(const Session& session) {
    if (!session.commands.Allowed(FindCommand("mnuCalcMain")))
        return {false,
                QStringLiteral("Legen Sie die Rechenmodelle fest (am besten: Voreinstellung bestätigen).")};
    return {true,
            ToQt(session.statusPanels[1]).simplified() + u'\n' + ToQt(session.statusPanels[2]).simplified()};
}

StepView CalculationStep(const Session&) {
    return {false, QStringLiteral("Berechnen Sie einzelne Zustandspunkte oder zeichnen Sie Diagramme.")};
}

using StepRule = StepView (*)(const Session&);
constexpr StepRule stepRules[] = {DatabaseStep, SubstanceStep, ModelStep, CalculationStep};

} // namespace

StepDisc::StepDisc(int shownNumber, QWidget* parent) : QWidget(parent), number(shownNumber) {
    setFixedSize(sizeHint());
}

QSize StepDisc::sizeHint() const {
    return {discSize, discSize};
}

void StepDisc::SetState(State shown) {
    state = shown;
    update();
}

void StepDisc::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF disc = QRectF(rect()).adjusted(2, 2, -2, -2);
    const QColor accent = palette().color(QPalette::Active, QPalette::Highlight);
    const QColor muted = MutedColour(palette());
    const bool current = state == State::Current;
    painter.setPen(QPen(state == State::Ahead ? muted : accent, 1.6));
    painter.setBrush(current ? QBrush(accent) : QBrush(Qt::NoBrush));
    painter.drawEllipse(disc);
    if (state == State::Done) {
        QPainterPath tick;
        tick.moveTo(discSize * 0.30, discSize * 0.52);
        tick.lineTo(discSize * 0.45, discSize * 0.66);
        tick.lineTo(discSize * 0.71, discSize * 0.36);
        painter.setPen(QPen(accent, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(tick);
        return;
    }
    painter.setFont(Scaled(font(), 1.1, current));
    painter.setPen(current ? palette().color(QPalette::Active, QPalette::HighlightedText) : muted);
    painter.drawText(rect(), Qt::AlignCenter, QString::number(number));
}

StartPage::StartPage(CommandMenu& commandMenu, QWidget* parent)
    : QWidget(parent), menu(commandMenu), page(new QWidget(this)) {
    setObjectName(QStringLiteral("frmPhantom"));
    setWindowTitle(QStringLiteral("Hauptfenster"));
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    page->setMaximumWidth(pageWidth);
    auto* column = new QVBoxLayout(page);
    column->setSpacing(10);
    column->addWidget(Heading(page));
    auto* outer = new QHBoxLayout(this);
    outer->setContentsMargins(pageMargin, pageMargin, pageMargin, pageMargin);
    outer->addStretch(1);
    outer->addWidget(page, 100);
    outer->addStretch(1);
    AddStep(1, QStringLiteral("Datenbank"), {"mnuData_OpenBank"});
    AddStep(2, QStringLiteral("Stoff"), {"mnuStoff"});
    AddStep(3, QStringLiteral("Rechenmodelle"), {"mnuModel"});
    AddStep(4, QStringLiteral("Berechnungen und Diagramme"), {"mnuCalcMain", "mnu2D", "mnu3D"});
    column->addStretch(1);
}

void StartPage::AddStep(int number, const QString& title, std::initializer_list<const char*> commands) {
    auto* row = new QFrame(page);
    row->setObjectName(ControlName("step", number));
    row->setBackgroundRole(QPalette::AlternateBase);
    row->setAutoFillBackground(true);
    Step step{new StepDisc(number, row), new QLabel(title, row), MutedLabel(QString(), row), {}};
    step.title->setFont(Scaled(font(), 1.15, true));
    step.title->setWordWrap(true);
    step.text->setWordWrap(true);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(3);
    texts->addWidget(step.title);
    texts->addWidget(step.text);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->setSpacing(16);
    layout->addWidget(step.disc);
    layout->addLayout(texts, 1);
    for (const char* command : commands) {
        const int commandRow = FindCommand(command);
        auto* button =
            new QPushButton(WithoutMnemonic(CommandTable()[static_cast<std::size_t>(commandRow)].text), row);
        button->setObjectName(QStringLiteral("cmd_") + QLatin1String(command));
        if (QMenu* entries = menu.Menu(commandRow))
            button->setMenu(entries);
        else
            connect(button, &QPushButton::clicked, menu.Action(commandRow), &QAction::trigger);
        button->setAutoDefault(true);
        step.buttons.emplace_back(button, menu.Action(commandRow));
        layout->addWidget(button);
    }
    static_cast<QVBoxLayout*>(page->layout())->addWidget(row);
    steps.push_back(std::move(step));
}

void StartPage::Refresh(const Session& session) {
    bool allDone = true;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const StepView view = stepRules[i](session);
        Step& step = steps[i];
        step.text->setText(view.text);
        const bool current = allDone && !view.done;
        step.disc->SetState(view.done && allDone ? StepDisc::State::Done
                            : current            ? StepDisc::State::Current
                                                 : StepDisc::State::Ahead);
        for (auto& [button, action] : step.buttons) {
            button->setEnabled(action->isEnabled());
        }
        allDone = allDone && view.done;
    }
}

void StartPage::FocusCurrentStep() {
    for (const Step& step : steps)
        if (step.disc->Shown() == StepDisc::State::Current)
            step.buttons.front().first->setFocus();
}

} // namespace orva
