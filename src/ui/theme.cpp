// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/theme.h"

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QFontDatabase>
#include <QFontMetricsF>

#include "shell/help_topics.h"
#include "ui/help_request.h"
#include "ui/text.h"

namespace orva {

namespace {

constexpr int ordinaryResultSize = 8;
constexpr int darkLightness = 128;
constexpr double narrowestDifference = 0.01; // pixels between two characters of one width

// Mixes its text colour from the palette each time it is painted.
class MutedTextLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void changeEvent(QEvent* event) override {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::PaletteChange && !mixing)
            Mix();
    }
    void showEvent(QShowEvent* event) override {
        Mix();
        QLabel::showEvent(event);
    }

private:
    void Mix() {
        mixing = true;
        QPalette own = QApplication::palette(this);
        const QColor muted = MutedColour(own);
        own.setColor(QPalette::WindowText, muted);
        own.setColor(QPalette::Text, muted); // the role on a ground like that of a list
        setPalette(own);
        mixing = false;
    }

    bool mixing = false;
};

} // namespace

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < darkLightness;
}

QColor ReportColour(TextColour colour, const QPalette& palette) {
    const bool dark = IsDark(palette);
    switch (colour) {
    case TextColour::Red:
        return dark ? QColor(255, 138, 128) : QColor(128, 0, 0);
    case TextColour::Blue:
        return dark ? QColor(140, 180, 255) : QColor(0, 0, 255);
    case TextColour::Black:
        break;
    }
    return palette.color(QPalette::Text);
}

QColor MutedColour(const QPalette& palette) {
    constexpr float share = 0.65F;
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    const auto mix = [](float a, float b) { return share * a + (1 - share) * b; };
    return QColor::fromRgbF(mix(text.redF(), ground.redF()), mix(text.greenF(), ground.greenF()),
                            mix(text.blueF(), ground.blueF()));
}

bool IsFixedPitch(const QFont& font) {
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(u'0');
    const QString others = QStringLiteral("iWä=*.");
    return std::all_of(others.begin(), others.end(), [&](QChar character) {
        return std::abs(metrics.horizontalAdvance(character) - width) < narrowestDifference;
    });
}

QFont FixedPitchFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setStyleHint(QFont::Monospace);
    font.setPointSizeF(QApplication::font().pointSizeF());
    for (const char* family : {"DejaVu Sans Mono", "Liberation Mono", "Courier New"}) {
        if (IsFixedPitch(font))
            break;
        font.setFamily(QLatin1String(family));
    }
    return font;
}

void ShowResultLabel(QLabel& label, const ResultLabel& content) {
    label.setText(ToQt(content.text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    QFont font = QApplication::font();
    font.setBold(content.bold);
    font.setPointSizeF(font.pointSizeF() + content.size - ordinaryResultSize);
    label.setFont(font);
    QPalette palette = QApplication::palette(&label);
    palette.setColor(QPalette::WindowText, ReportColour(content.colour, palette));
    label.setPalette(palette);
}

QLabel* MutedLabel(const QString& text, QWidget* parent) {
    auto* label = new MutedTextLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setContentsMargins(0, 2, 0, 0); // the dots of capital umlauts reach above the line
    return label;
}

QToolButton* HelpButton(const QString& name, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setText(QStringLiteral("?"));
    button->setObjectName(name);
    button->setToolTip(QStringLiteral("Hilfe"));
    button->setAccessibleName(QStringLiteral("Hilfe"));
    button->setEnabled(HelpTopicOf("", FromQt(name)) != nullptr);
    button->setFocusPolicy(Qt::TabFocus);
    QObject::connect(button, &QToolButton::clicked, button,
                     [button] { RequestHelp(*button, button->objectName()); });
    return button;
}

} // namespace orva
