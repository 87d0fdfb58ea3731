// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shell/help_browser.h"

#include <algorithm>

#include <QApplication>
#include <QFileInfo>
#include <QImage>
#include <QWheelEvent>

#include "ui/text.h"
#include "ui/theme.h"

namespace orva {

namespace {

constexpr int smallestZoom = -5;
constexpr int largestZoom = 15;
constexpr double zoomStep = 0.1;
constexpr int pageMargin = 18;
constexpr int smallestPicture = 200; // a narrower page shows pictures whole

// Positions of a document count in units of UTF-16.
int UnitsOf(const std::u32string& text, std::size_t begin, std::size_t end) {
    int units = 0;
    for (std::size_t i = begin; i < end; ++i)
        units += text[i] > 0xFFFF ? 2 : 1;
    return units;
}

HelpLanguage LanguageOf(const QUrl& url) {
    const bool english = QFileInfo(url.path()).dir().dirName() == ToQt(HelpFolderOf(HelpLanguage::English));
    return english ? HelpLanguage::English : HelpLanguage::German;
}

} // namespace

HelpBrowser::HelpBrowser(const HelpLibrary& pages, QWidget* parent)
    : QTextBrowser(parent), library(pages), ordinarySize(QApplication::font().pointSizeF()) {
    setObjectName(QStringLiteral("helpPage"));
    document()->setDocumentMargin(pageMargin);
    setUndoRedoEnabled(false);
    connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& source) {
        place = source;
        MarkWords();
    });
}

void HelpBrowser::ShowPage(HelpLanguage language, std::string_view page, std::string_view anchor) {
    QUrl url = QUrl::fromLocalFile(QString::fromStdU16String(library.PagePath(language, page).u16string()));
    url.setFragment(ToQt(anchor));
    setSource(url);
}

std::string HelpBrowser::PageName() const {
    return FromQt(QFileInfo(place.path()).fileName());
}

HelpLanguage HelpBrowser::Language() const {
    return LanguageOf(place);
}

std::string HelpBrowser::Anchor() const {
    return FromQt(place.fragment());
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
    const QUrl url = readPage.resolved(name);
    if (type == QTextDocument::StyleSheetResource)
        return ToQt(library.StyleSheet(IsDark(palette())));
    if (type == QTextDocument::ImageResource) {
        if (!pictures.contains(name))
            pictures << name;
        return FittingPicture(url.toLocalFile());
    }
    if (type != QTextDocument::HtmlResource)
        return QTextBrowser::loadResource(type, url);
    readPage = url;
    pictures.clear();
    return ToQt(library.Page(LanguageOf(url), FromQt(QFileInfo(url.path()).fileName())));
}

// No wider than the page, so that nobody has to scroll sideways.
QVariant HelpBrowser::FittingPicture(const QString& file) const {
    const QImage picture(file);
    const int room = viewport()->width() - 2 * pageMargin;
    if (picture.isNull() || picture.width() <= room || room < smallestPicture)
        return picture;
    return picture.scaledToWidth(room, Qt::SmoothTransformation);
}

void HelpBrowser::Mark(const QString& query) {
    marked = query;
    MarkWords();
}

void HelpBrowser::MarkWords() {
    QList<ExtraSelection> selections;
    const std::u32string text = document()->toPlainText().toStdU32String();
    QTextCharFormat format;
    format.setBackground(IsDark(palette()) ? QColor(122, 98, 0) : QColor(255, 232, 128));
    std::size_t counted = 0;
    int position = 0;
    for (const TextRange& range : FindWords(text, FromQt(marked))) {
        position += UnitsOf(text, counted, range.begin);
        QTextCursor cursor(document());
        cursor.setPosition(position);
        position += UnitsOf(text, range.begin, range.end);
        counted = range.end;
        cursor.setPosition(position, QTextCursor::KeepAnchor);
        selections.push_back({cursor, format});
    }
    setExtraSelections(selections);
}

void HelpBrowser::ShowFirstMark() {
    const int top = cursorForPosition(QPoint(1, 1)).position();
    for (const ExtraSelection& selection : extraSelections()) {
        if (selection.cursor.selectionStart() < top)
            continue;
        QTextCursor cursor = selection.cursor;
        cursor.setPosition(cursor.selectionStart());
        setTextCursor(cursor);
        return;
    }
}

void HelpBrowser::SetZoom(int steps) {
    zoom = std::clamp(steps, smallestZoom, largestZoom);
    QFont sized = font();
    sized.setPointSizeF(ordinarySize * (1 + zoomStep * zoom));
    setFont(sized);
    emit Zoomed();
}

void HelpBrowser::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() != Qt::ControlModifier) {
        QTextBrowser::wheelEvent(event);
        return;
    }
    if (event->angleDelta().y() != 0)
        SetZoom(zoom + (event->angleDelta().y() > 0 ? 1 : -1));
    event->accept();
}

void HelpBrowser::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    for (const QUrl& name : pictures)
        document()->addResource(QTextDocument::ImageResource, name,
                                FittingPicture(readPage.resolved(name).toLocalFile()));
    if (!pictures.isEmpty())
        document()->markContentsDirty(0, document()->characterCount());
}

// The colours of a page come from the stylesheet that it was read with.
void HelpBrowser::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !source().isEmpty()) {
        reload();
        MarkWords();
    }
}

} // namespace orva
