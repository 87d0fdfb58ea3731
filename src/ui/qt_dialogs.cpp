// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt_dialogs.h"

#include <algorithm>

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>

#include "ui/text.h"

namespace orva {

namespace {

QMessageBox::Icon BoxIcon(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Stop:
        return QMessageBox::Critical;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

// The hourglass of a calculation does not belong on a box that waits for the user.
class ArrowScope {
public:
    ArrowScope() {
        if (shown)
            QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~ArrowScope() {
        if (shown)
            QApplication::restoreOverrideCursor();
    }
    ArrowScope(const ArrowScope&) = delete;
    ArrowScope& operator=(const ArrowScope&) = delete;

private:
    bool shown = QApplication::overrideCursor() != nullptr;
};

// The texts bring their own line breaks; others in between would spoil them as long as the lines are not
// unduly long.
void KeepLines(QMessageBox& box) {
    constexpr int longestLine = 90; // characters
    auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    if (label == nullptr)
        return;
    const QFontMetrics metrics(label->font());
    const int width = metrics.size(0, label->text()).width();
    label->setMinimumWidth(std::min(width + 2, metrics.averageCharWidth() * longestLine));
}

void FillBox(QMessageBox& box, const std::string& title, const std::string& text, MessageIcon icon) {
    box.setWindowTitle(ToQt(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    box.setIcon(BoxIcon(icon));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    KeepLines(box);
}

} // namespace

void QtDialogs::Show(const Message& message) {
    const ArrowScope arrow;
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("messageBox"));
    FillBox(box, message.title, message.text, message.icon);
    box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    box.exec();
}

bool QtDialogs::Ask(const Question& question) {
    const ArrowScope arrow;
    QMessageBox box(QApplication::activeWindow());
    box.setObjectName(QStringLiteral("questionBox"));
    FillBox(box, question.title, question.text, question.icon);
    QPushButton* yes = box.addButton(QStringLiteral("&Ja"), QMessageBox::YesRole);
    QPushButton* no = box.addButton(QStringLiteral("&Nein"), QMessageBox::NoRole);
    box.setDefaultButton(question.yesIsDefault ? yes : no);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
}

std::optional<std::string> QtDialogs::ChooseFile(const FileRequest& request) {
    QFileDialog dialog(QApplication::activeWindow(), ToQt(request.title), ToQt(request.folder),
                       FileDialogFilter(request.filter));
    dialog.setObjectName(QStringLiteral("fileDialog"));
    dialog.setAcceptMode(request.saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(request.saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.setDefaultSuffix(FileDialogSuffix(request.defaultExtension));
    dialog.setLabelText(QFileDialog::Accept,
                        request.saving ? QStringLiteral("&Speichern") : QStringLiteral("Ö&ffnen"));
    dialog.setLabelText(QFileDialog::Reject, QStringLiteral("&Abbrechen"));
    dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("Ordner:"));
    dialog.setLabelText(QFileDialog::FileName, QStringLiteral("&Dateiname:"));
    dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Dateityp:"));
    if (!request.fileName.empty())
        dialog.selectFile(ToQt(request.fileName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return FromQt(dialog.selectedFiles().constFirst());
}

std::optional<std::string> QtDialogs::InputText(const TextRequest& request) {
    QInputDialog dialog(QApplication::activeWindow());
    dialog.setObjectName(QStringLiteral("inputDialog"));
    dialog.setWindowTitle(ToQt(request.title));
    dialog.setLabelText(ToQt(request.prompt));
    dialog.setTextValue(ToQt(request.text));
    dialog.setOkButtonText(QStringLiteral("OK"));
    dialog.setCancelButtonText(QStringLiteral("Abbrechen"));
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return FromQt(dialog.textValue());
}

QString FileDialogFilter(const std::string& filter) {
    const QStringList fields = ToQt(filter).split(u'|', Qt::SkipEmptyParts);
    QStringList filters;
    for (qsizetype i = 0; i + 1 < fields.size(); i += 2) {
        QString name = fields[i];
        if (const qsizetype bracket = name.indexOf(u'('); bracket >= 0)
            name.truncate(bracket);
        QStringList patterns;
        for (const QString& pattern : fields[i + 1].split(u';', Qt::SkipEmptyParts)) {
            patterns << pattern.trimmed();
            if (const QString lower = pattern.trimmed().toLower(); lower != patterns.constLast())
                patterns << lower;
        }
        filters << QStringLiteral("%1 (%2)").arg(name.trimmed(), patterns.join(u' '));
    }
    return filters.join(QStringLiteral(";;"));
}

QString FileDialogSuffix(const std::string& extension) {
    QString suffix = ToQt(extension);
    return suffix.remove(u'*').remove(u'.');
}

} // namespace orva
