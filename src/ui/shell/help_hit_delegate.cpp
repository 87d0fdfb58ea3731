// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shell/help_hit_delegate.h"

#include <QApplication>
#include <QListView>
#include <QPainter>

#include "ui/theme.h"

namespace orva {

namespace {

constexpr int margin = 5;
constexpr int wrapped = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

struct HitLayout {
    QString place, snippet;
    QFont placeFont, snippetFont;
    QRect placeRect, snippetRect;
};

HitLayout LayOut(const QStyleOptionViewItem& option, const QModelIndex& index) {
    HitLayout layout;
    layout.place = index.data(Qt::DisplayRole).toString();
    layout.snippet = index.data(HelpHitDelegate::snippetRole).toString();
    layout.placeFont = layout.snippetFont = option.font;
    layout.placeFont.setBold(!layout.snippet.isEmpty());
    const auto* view = qobject_cast<const QListView*>(option.widget);
    const int width = (view == nullptr ? option.rect.width() : view->viewport()->width()) - 2 * margin;
    const QRect room(option.rect.left() + margin, option.rect.top() + margin, width, 10000);
    layout.placeRect = QFontMetrics(layout.placeFont).boundingRect(room, wrapped, layout.place);
    layout.snippetRect =
        QFontMetrics(layout.snippetFont)
            .boundingRect(room.translated(0, layout.placeRect.height()), wrapped, layout.snippet);
    return layout;
}

} // namespace

void HelpHitDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
    QStyleOptionViewItem ground = option;
    initStyleOption(&ground, index);
    ground.text.clear();
    const QStyle* style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &ground, painter, option.widget);
    const HitLayout layout = LayOut(option, index);
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->setFont(layout.placeFont);
    painter->drawText(layout.placeRect, wrapped, layout.place);
    if (!selected)
        painter->setPen(MutedColour(option.palette));
    painter->setFont(layout.snippetFont);
    painter->drawText(layout.snippetRect, wrapped, layout.snippet);
    painter->restore();
}

QSize HelpHitDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const HitLayout layout = LayOut(option, index);
    const int snippetHeight = layout.snippet.isEmpty() ? 0 : layout.snippetRect.height();
    return {layout.placeRect.width() + 2 * margin, layout.placeRect.height() + snippetHeight + 2 * margin};
}

} // namespace orva
