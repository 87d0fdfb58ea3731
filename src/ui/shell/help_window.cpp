// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shell/help_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QSettings>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "ui/place_window.h"
#include "ui/shell/help_hit_delegate.h"
#include "ui/shell/icons.h"
#include "ui/text.h"

namespace orva {

namespace {

constexpr QSize startSize(1240, 780);
constexpr int contentsWidth = 300;
constexpr int topicRole = Qt::UserRole;
constexpr int pageRole = Qt::UserRole;
constexpr int anchorRole = Qt::UserRole + 1;
constexpr double arrowScale = 1.3; // of the signs on the buttons
const QString geometryKey = QStringLiteral("helpWindow/geometry");
const QString splitterKey = QStringLiteral("helpWindow/splitter");
const QString languageKey = QStringLiteral("helpWindow/language");
const QString zoomKey = QStringLiteral("helpWindow/zoom");

struct WindowTexts {
    const char *title, *back, *forward, *home, *smaller, *larger, *search, *nothing, *language;
};

constexpr WindowTexts germanTexts = {"ORVA-Hilfe",        "Zurück",           "Vor",
                                     "Startseite",        "Kleinere Schrift", "Größere Schrift",
                                     "Hilfe durchsuchen", "Nichts gefunden.", "Sprache der Hilfe"};
constexpr WindowTexts englishTexts = {"ORVA Help",       "Back",           "Forward",
                                      "Start page",      "Smaller text",   "Larger text",
                                      "Search the help", "Nothing found.", "Language of the help"};

const WindowTexts& TextsOf(HelpLanguage language) {
    return language == HelpLanguage::German ? germanTexts : englishTexts;
}

} // namespace

HelpWindow::HelpWindow(const std::filesystem::path& folder)
    : library(folder), browser(new HelpBrowser(library, this)), search(new QLineEdit(this)),
      contents(new QTreeWidget(this)), results(new QListWidget(this)), left(new QStackedWidget(this)),
      splitter(new QSplitter(this)) {
    setObjectName(QStringLiteral("helpWindow"));
    setWindowIcon(ProgramIcon());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(6, 6, 6, 6);
    column->addLayout(ButtonRow());
    splitter->addWidget(LeftSide());
    splitter->addWidget(browser);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    column->addWidget(splitter, 1);
    connect(contents, &QTreeWidget::currentItemChanged, this, &HelpWindow::OpenItem);
    connect(results, &QListWidget::currentItemChanged, this, &HelpWindow::OpenHit);
    connect(search, &QLineEdit::textChanged, this, &HelpWindow::Search);
    connect(search, &QLineEdit::returnPressed, results, [this] {
        if (results->count() > 0)
            results->setCurrentRow(std::max(results->currentRow(), 0));
        results->setFocus();
    });
    connect(browser, &QTextBrowser::sourceChanged, this, &HelpWindow::FollowPage);
    AddKeys();
    RestoreSettings();
    ShowTexts();
    FillContents();
}

QToolButton* HelpWindow::AddButton(QLayout& row, const char* name, const QString& text) {
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setAutoRaise(true);
    QFont sign = button->font();
    sign.setPointSizeF(sign.pointSizeF() * arrowScale);
    button->setFont(sign);
    button->setFocusPolicy(Qt::TabFocus);
    row.addWidget(button);
    return button;
}

QLayout* HelpWindow::ButtonRow() {
    auto* row = new QHBoxLayout;
    back = AddButton(*row, "helpBack", QStringLiteral("←"));
    forward = AddButton(*row, "helpForward", QStringLiteral("→"));
    home = AddButton(*row, "helpHome", QStringLiteral("⌂"));
    row->addStretch(1);
    smaller = AddButton(*row, "helpSmaller", QStringLiteral("A−"));
    zoomShown = new QLabel(this);
    zoomShown->setObjectName(QStringLiteral("helpZoom"));
    row->addWidget(zoomShown);
    larger = AddButton(*row, "helpLarger", QStringLiteral("A+"));
    row->addSpacing(12);
    languages = new QComboBox(this);
    languages->setObjectName(QStringLiteral("helpLanguage"));
    languages->addItems({QStringLiteral("Deutsch"), QStringLiteral("English")});
    row->addWidget(languages);
    connect(back, &QToolButton::clicked, browser, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, browser, &QTextBrowser::forward);
    connect(browser, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(browser, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(home, &QToolButton::clicked, this, [this] { Open(HelpIndexTopic()); });
    connect(smaller, &QToolButton::clicked, this, [this] { browser->SetZoom(browser->Zoom() - 1); });
    connect(larger, &QToolButton::clicked, this, [this] { browser->SetZoom(browser->Zoom() + 1); });
    connect(browser, &HelpBrowser::Zoomed, this,
            [this] { zoomShown->setText(QStringLiteral("%1 %").arg(100 + 10 * browser->Zoom())); });
    connect(languages, &QComboBox::activated, this,
            [this](int chosen) { SetLanguage(chosen == 0 ? HelpLanguage::German : HelpLanguage::English); });
    return row;
}

QWidget* HelpWindow::LeftSide() {
    auto* side = new QWidget(this);
    search->setObjectName(QStringLiteral("helpSearch"));
    search->setClearButtonEnabled(true);
    contents->setObjectName(QStringLiteral("helpContents"));
    contents->setHeaderHidden(true);
    results->setObjectName(QStringLiteral("helpResults"));
    results->setItemDelegate(new HelpHitDelegate(results));
    results->setAlternatingRowColors(true);
    results->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    results->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn); // the height of a hit follows the width
    results->setResizeMode(QListView::Adjust);
    left->addWidget(contents);
    left->addWidget(results);
    auto* column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(search);
    column->addWidget(left, 1);
    return side;
}

void HelpWindow::AddKeys() {
    const auto add = [this](const QKeySequence& keys, auto action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    add(Qt::Key_Escape, [this] { close(); });
    add(QKeySequence::Find, [this] {
        search->setFocus();
        search->selectAll();
    });
    add(Qt::ALT | Qt::Key_Left, [this] { browser->backward(); });
    add(Qt::ALT | Qt::Key_Right, [this] { browser->forward(); });
    add(Qt::ALT | Qt::Key_Home, [this] { Open(HelpIndexTopic()); });
    add(QKeySequence::ZoomIn, [this] { browser->SetZoom(browser->Zoom() + 1); });
    add(QKeySequence::ZoomOut, [this] { browser->SetZoom(browser->Zoom() - 1); });
    add(Qt::CTRL | Qt::Key_0, [this] { browser->SetZoom(0); });
}

void HelpWindow::RestoreSettings() {
    const QSettings settings;
    resize(startSize);
    restoreGeometry(settings.value(geometryKey).toByteArray());
    if (!splitter->restoreState(settings.value(splitterKey).toByteArray()))
        splitter->setSizes({contentsWidth, startSize.width() - contentsWidth});
    const bool english = settings.value(languageKey).toString() == ToQt(HelpFolderOf(HelpLanguage::English));
    language = english ? HelpLanguage::English : HelpLanguage::German;
    languages->setCurrentIndex(english ? 1 : 0);
    browser->SetZoom(settings.value(zoomKey).toInt());
}

void HelpWindow::ShowTexts() {
    const WindowTexts& texts = TextsOf(language);
    setWindowTitle(QString::fromUtf8(texts.title));
    for (const auto& [button, text] : {std::pair{back, texts.back},
                                       {forward, texts.forward},
                                       {home, texts.home},
                                       {smaller, texts.smaller},
                                       {larger, texts.larger}}) {
        button->setToolTip(QString::fromUtf8(text));
        button->setAccessibleName(QString::fromUtf8(text));
    }
    search->setPlaceholderText(QString::fromUtf8(texts.search));
    search->setAccessibleName(QString::fromUtf8(texts.search));
    languages->setToolTip(QString::fromUtf8(texts.language));
    languages->setAccessibleName(QString::fromUtf8(texts.language));
}

void HelpWindow::FillContents() {
    const QSignalBlocker quiet(contents);
    contents->clear();
    QTreeWidgetItem *chapter = nullptr, *page = nullptr;
    HelpChapter filled{};
    for (const HelpTopic& topic : HelpTopics()) {
        if (chapter == nullptr || topic.chapter != filled) {
            filled = topic.chapter;
            chapter = new QTreeWidgetItem(contents, {ToQt(TitleOf(topic.chapter, language))});
            chapter->setFlags(Qt::ItemIsEnabled);
            QFont bold = contents->font();
            bold.setBold(true);
            chapter->setFont(0, bold);
        }
        auto* item =
            new QTreeWidgetItem(topic.anchor.empty() ? chapter : page, {ToQt(TitleOf(topic, language))});
        item->setData(0, topicRole, topic.number);
        if (topic.anchor.empty())
            page = item;
        chapter->setExpanded(true);
    }
}

void HelpWindow::SetLanguage(HelpLanguage chosen) {
    if (chosen == language)
        return;
    language = chosen;
    ShowTexts();
    FillContents();
    browser->ShowPage(language, browser->PageName(), browser->Anchor());
    Search(search->text());
}

void HelpWindow::Open(const HelpTopic& topic) {
    browser->ShowPage(language, topic.page, topic.anchor);
    FollowPage();
    JoinModalWindow();
    BringToFront(*this);
    browser->setFocus();
}

void HelpWindow::OpenItem(const QTreeWidgetItem* item) {
    const HelpTopic* topic = item == nullptr ? nullptr : FindHelpTopic(item->data(0, topicRole).toInt());
    if (topic != nullptr)
        browser->ShowPage(language, topic->page, topic->anchor);
}

void HelpWindow::OpenHit(const QListWidgetItem* item) {
    if (item == nullptr || item->data(pageRole).isNull())
        return;
    browser->ShowPage(language, FromQt(item->data(pageRole).toString()),
                      FromQt(item->data(anchorRole).toString()));
    browser->ShowFirstMark();
}

void HelpWindow::Search(const QString& query) {
    const QSignalBlocker quiet(results);
    results->clear();
    for (const HelpHit& hit : library.Search(language, FromQt(query))) {
        const std::string place = hit.title + (hit.heading.empty() ? "" : " › " + hit.heading);
        auto* item = new QListWidgetItem(ToQt(place), results);
        item->setData(HelpHitDelegate::snippetRole, ToQt(hit.snippet));
        item->setData(pageRole, ToQt(hit.page));
        item->setData(anchorRole, ToQt(hit.anchor));
    }
    const bool searching = !query.trimmed().isEmpty();
    if (searching && results->count() == 0)
        (new QListWidgetItem(QString::fromUtf8(TextsOf(language).nothing), results))
            ->setFlags(Qt::NoItemFlags);
    left->setCurrentWidget(searching ? static_cast<QWidget*>(results) : contents);
    browser->Mark(query);
}

// The contents show where the page stands, whatever way led to it.
void HelpWindow::FollowPage() {
    const HelpLanguage shown = browser->Language();
    if (shown != language) { // back to a page from before a change of the language
        language = shown;
        languages->setCurrentIndex(language == HelpLanguage::German ? 0 : 1);
        ShowTexts();
        FillContents();
    }
    const HelpTopic* topic = FindHelpTopic(browser->PageName(), browser->Anchor());
    const QSignalBlocker quiet(contents);
    for (QTreeWidgetItemIterator item(contents); *item != nullptr; ++item)
        if (topic != nullptr && (*item)->data(0, topicRole).toInt() == topic->number) {
            contents->setCurrentItem(*item);
            contents->scrollToItem(*item);
        }
}

// A modal window blocks all others but those that belong to it. So the help belongs to it for its lifetime.
void HelpWindow::JoinModalWindow() {
    create();
    QWindow* modal = QGuiApplication::modalWindow();
    QWindow* own = windowHandle();
    if (modal == own || own->transientParent() == modal)
        return;
    own->setTransientParent(modal);
    if (modal != nullptr)
        connect(modal, &QWindow::visibleChanged, this, &HelpWindow::JoinModalWindow,
                static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::UniqueConnection));
}

bool HelpWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowBlocked)
        QMetaObject::invokeMethod(this, &HelpWindow::JoinModalWindow, Qt::QueuedConnection);
    return QWidget::event(event);
}

void HelpWindow::closeEvent(QCloseEvent* event) {
    QSettings settings;
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(splitterKey, splitter->saveState());
    settings.setValue(languageKey, ToQt(HelpFolderOf(language)));
    settings.setValue(zoomKey, browser->Zoom());
    event->accept();
}

} // namespace orva
