// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shell/main_window.h"

#include <algorithm>

#include <QApplication>
#include <QCloseEvent>
#include <QMenu>
#include <QScrollArea>
#include <QShortcut>
#include <QStatusBar>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

#include "shell/exit.h"
#include "ui/place_window.h"
#include "ui/shell/help_desk.h"
#include "ui/shell/icons.h"
#include "ui/text.h"
#include "ui/window_places.h"

namespace orva {

namespace {

constexpr int spacerWidth = 5; // of a toolbar index without a button
constexpr QSize startSize(1120, 760);
constexpr int smallestHeight = 420;

struct ToolbarPicture {
    int index;
    Picture picture;
};

constexpr ToolbarPicture toolbarPictures[] = {
    {2, Picture::NewProject},  {4, Picture::LastSession}, {6, Picture::OpenProject},
    {7, Picture::SaveProject}, {11, Picture::Reference},  {15, Picture::Vessel},
};

QIcon ToolbarIcon(int index) {
    for (const ToolbarPicture& row : toolbarPictures)
        if (row.index == index)
            return DrawnIcon(row.picture);
    return {};
}

} // namespace

mdiORVA::mdiORVA(Session& ownSession, QWidget* parent)
    : QMainWindow(parent), session(ownSession), menu(new CommandMenu(menuBar())),
      helpDesk(new HelpDesk(session.machine.InstallationFolder() / "help", this)) {
    setObjectName(QStringLiteral("mdiORVA"));
    setWindowTitle(QStringLiteral("ORVA-6   Zustands- und Prozessberechnungen für reine Stoffe"));
    setWindowIcon(ProgramIcon());
    setContextMenuPolicy(Qt::NoContextMenu);
    BuildCentre();
    BuildToolbar();
    BuildStatusBar();
    connect(menu, &CommandMenu::Chosen, this, &mdiORVA::RunCommand);
    connect(menu, &CommandMenu::Opening, this, &mdiORVA::MenuOpening);
    connect(new QShortcut(QKeySequence(Qt::ALT | Qt::Key_F4), this), &QShortcut::activated, this,
            &QWidget::close);
    const int pageWidth =
        startPage->minimumSizeHint().width() + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    setMinimumSize(std::max(pageWidth, menuBar()->sizeHint().width()), smallestHeight);
    resize(startSize);
    new WindowPlaces(this);
    Refresh();
    startPage->FocusCurrentStep();
}

mdiORVA::~mdiORVA() = default;

void mdiORVA::BuildCentre() {
    auto* centre = new QWidget(this);
    hint = new FirstUserHint(centre);
    startPage = new StartPage(*menu, centre);
    auto* scroll = new QScrollArea(centre); // for screens that are smaller than the page
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(startPage);
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(hint);
    column->addWidget(scroll, 1);
    setCentralWidget(centre);
}

void mdiORVA::BuildToolbar() {
    auto* bar = addToolBar(QStringLiteral("Symbolleiste"));
    bar->setObjectName(QStringLiteral("toolbar"));
    bar->setMovable(false);
    const auto addSpacer = [bar](QSizePolicy::Policy policy) {
        auto* spacer = new QWidget(bar);
        spacer->setFixedHeight(1);
        spacer->setMinimumWidth(spacerWidth);
        spacer->setSizePolicy(policy, QSizePolicy::Fixed);
        bar->addWidget(spacer);
    };
    int next = 1;
    for (const ToolbarRow& row : ToolbarTable()) {
        for (; next < row.index; ++next)
            addSpacer(QSizePolicy::Minimum);
        next = row.index + 1;
        QAction* button = bar->addAction(ToolbarIcon(row.index), ToQt(row.toolTip).trimmed());
        button->setObjectName(ControlName("toolbar", row.index));
        button->setToolTip(ToQt(row.toolTip));
        connect(button, &QAction::triggered, this, [this, &row] { RunToolbarButton(row); });
        toolbarButtons.emplace_back(row.index, button);
    }
    addSpacer(QSizePolicy::Expanding);
    auto* hintButton = new QToolButton(bar);
    hintButton->setObjectName(QStringLiteral("cmdErstnutzer"));
    hintButton->setIcon(DrawnIcon(Picture::Hint));
    hintButton->setText(QStringLiteral("Tip für Erstnutzer          (ein/aus)"));
    hintButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    hintButton->setFocusPolicy(Qt::TabFocus);
    connect(hintButton, &QToolButton::clicked, this, &mdiORVA::SwitchHint);
    bar->addWidget(hintButton);
}

void mdiORVA::BuildStatusBar() {
    for (std::size_t i = 0; i < panels.size(); ++i) {
        panels[i] = new QLabel(this);
        panels[i]->setObjectName(ControlName("statusPanel", static_cast<int>(i) + 1));
        panels[i]->setContentsMargins(6, 0, 6, 0);
        if (i < panels.size() - 1) {
            panels[i]->setMinimumWidth(1); // a long name must not widen the window
            statusBar()->addWidget(panels[i]);
            continue;
        }
        // The contact text takes what substance and models leave.
        panels[i]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        panels[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        statusBar()->addPermanentWidget(panels[i], 1);
    }
}

void mdiORVA::Refresh() {
    menu->Refresh(session.commands);
    for (const auto& [index, button] : toolbarButtons)
        button->setEnabled(session.commands.ToolbarEnabled(index, session.model.selection));
    for (std::size_t i = 0; i < panels.size(); ++i) {
        const QString text = ToQt(session.statusPanels[i]).simplified();
        panels[i]->setText(text);
        panels[i]->setToolTip(text);
    }
    startPage->Refresh(session);
}

QList<QWidget*> mdiORVA::OpenForms() const {
    QList<QWidget*> forms;
    for (QWidget* form : findChildren<QWidget*>())
        if (form->isWindow() && form->isVisible() && (form->windowFlags() & Qt::WindowType_Mask) != Qt::Popup
            && (form->windowFlags() & Qt::WindowType_Mask) != Qt::ToolTip)
            forms << form;
    if (HelpWindow* help = helpDesk->Window(); help != nullptr && help->isVisible())
        forms << help;
    return forms;
}

bool mdiORVA::IsFormOpen(const QString& name) const {
    if (name == startPage->objectName() || name == objectName())
        return isVisible();
    const auto forms = OpenForms();
    return std::any_of(forms.begin(), forms.end(),
                       [&](const QWidget* form) { return form->objectName() == name; });
}

void mdiORVA::CloseForms(std::initializer_list<const char*> names) {
    for (const char* name : names)
        for (QWidget* form : OpenForms())
            if (form->objectName() == QLatin1String(name))
                form->close();
}

void mdiORVA::ListWindows() {
    QMenu* windows = menu->Menu(FindCommand("mnuWindow"));
    windows->clear();
    const auto add = [&](QWidget* form, const QString& title) {
        QAction* entry = windows->addAction(QString(title).replace(u'&', QStringLiteral("&&")).trimmed());
        connect(entry, &QAction::triggered, form, [form] { BringToFront(*form); });
    };
    for (QWidget* form : OpenForms())
        add(form, form->windowTitle());
    if (!windows->isEmpty())
        windows->addSeparator();
    QAction* main = windows->addAction(startPage->windowTitle());
    connect(main, &QAction::triggered, this, [this] { BringToFront(*this); });
}

void mdiORVA::closeEvent(QCloseEvent* event) {
    EndSession(session, [this] {
        for (QWidget* form : OpenForms())
            form->close();
    });
    event->accept();
}

} // namespace orva
