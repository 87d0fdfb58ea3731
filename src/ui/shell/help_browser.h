// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>

#include "shell/help_library.h"

namespace orva {

// Shows help pages in the colours of the desktop, marks the words of a search, and zooms.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT
public:
    // The library must outlive the browser.
    explicit HelpBrowser(const HelpLibrary& library, QWidget* parent = nullptr);

    void ShowPage(HelpLanguage language, std::string_view page, std::string_view anchor);
    std::string PageName() const;
    std::string Anchor() const;
    HelpLanguage Language() const;

    // Marks the words from now on, also on the pages to come. An empty query marks nothing.
    void Mark(const QString& query);
    // Scrolls to the first marked word at or below the upper edge.
    void ShowFirstMark();

    // In steps of a tenth of the ordinary size, from -5 to 15.
    void SetZoom(int steps);
    int Zoom() const { return zoom; }

    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

signals:
    void Zoomed();

private:
    void MarkWords();
    QVariant FittingPicture(const QString& file) const;

    // QTextBrowser learns its source only after it has told of it, so the browser keeps its own.
    QUrl readPage;        // last page read, the base of its resources
    QList<QUrl> pictures; // of the page, as the document names them
    QUrl place;           // page and anchor shown
    const HelpLibrary& library;
    QString marked;
    int zoom = 0;
    double ordinarySize;
};

} // namespace orva
