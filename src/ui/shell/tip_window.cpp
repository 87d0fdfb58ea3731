// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/shell/tip_window.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/shell/icons.h"
#include "ui/text.h"

namespace orva {

namespace {

constexpr int pictureSize = 40;
constexpr int tipLines = 5;

} // namespace

frmTip::frmTip(Tips tips, QWidget* parent)
    : QDialog(parent), model(std::move(tips)), lblTip(new QLabel(this)) {
    setObjectName(QStringLiteral("frmTip"));
    setWindowTitle(QStringLiteral("   30 Tipps zur Arbeit mit ORVA"));
    auto* chkLoadTipsAtStartup =
        new QCheckBox(QStringLiteral("Dieses Fenster bei jedem Start anzeigen    (Das Fenster bleibt  immer "
                                     "über den Hauprmenüpunkt \"Hilfe\" erreichbar)"),
                      this);
    chkLoadTipsAtStartup->setObjectName(QStringLiteral("chkLoadTipsAtStartup"));
    chkLoadTipsAtStartup->setChecked(model.LoadTipsAtStartup());
    connect(chkLoadTipsAtStartup, &QCheckBox::clicked, this,
            [this](bool checked) { model.SetLoadTipsAtStartup(checked); });
    auto* column = new QVBoxLayout(this);
    column->setSpacing(12);
    column->addWidget(TipPanel(), 1);
    column->addWidget(chkLoadTipsAtStartup);
    column->addLayout(ButtonRow());
    ShowText();
}

QWidget* frmTip::TipPanel() {
    auto* panel = new QFrame(this);
    panel->setFrameShape(QFrame::StyledPanel);
    panel->setAutoFillBackground(true);
    panel->setBackgroundRole(QPalette::Base);
    auto* picture = new QLabel(panel);
    picture->setPixmap(DrawnIcon(Picture::Hint).pixmap(QSize(pictureSize, pictureSize), devicePixelRatioF()));
    auto* heading = new QLabel(QStringLiteral("Tipp des Tages:"), panel);
    heading->setForegroundRole(QPalette::Text);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    lblTip->setObjectName(QStringLiteral("lblTip"));
    lblTip->setTextFormat(Qt::PlainText);
    lblTip->setWordWrap(true);
    lblTip->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    lblTip->setForegroundRole(QPalette::Text);
    lblTip->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont readable = lblTip->font();
    readable.setPointSizeF(readable.pointSizeF() * 1.1);
    lblTip->setFont(readable);
    lblTip->setMinimumHeight(lblTip->fontMetrics().lineSpacing() * tipLines);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(8);
    texts->addWidget(heading);
    texts->addWidget(lblTip, 1);
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(16, 14, 16, 14);
    row->setSpacing(16);
    row->addWidget(picture, 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    return panel;
}

QPushButton* frmTip::AddButton(const char* name, const char* text) {
    auto* button = new QPushButton(QString::fromUtf8(text), this);
    button->setObjectName(QLatin1String(name));
    return button;
}

QLayout* frmTip::ButtonRow() {
    QPushButton* show = AddButton("cmdTipsZeigen", "Tipps zeigen");
    cmdNextTip = AddButton("cmdNextTip", "Nächster Tipp");
    QPushButton* close = AddButton("cmdOK", "Schließen");
    show->setDefault(true);
    show->setFocus();
    connect(show, &QPushButton::clicked, this, [this] {
        model.ShowTips();
        ShowText();
    });
    connect(cmdNextTip, &QPushButton::clicked, this, [this] {
        model.ShowNext();
        ShowText();
    });
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    auto* row = new QHBoxLayout;
    row->addWidget(show);
    row->addWidget(cmdNextTip);
    row->addStretch(1);
    row->addWidget(close);
    return row;
}

void frmTip::ShowText() {
    lblTip->setText(ToQt(model.Text()));
    cmdNextTip->setEnabled(model.HasTips());
}

} // namespace orva
