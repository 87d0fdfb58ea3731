// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <memory>

#include <QObject>

#include "shell/help_topics.h"
#include "ui/shell/help_window.h"

namespace orva {

// Opens the help: for the help buttons and F1 of every window that belongs to the owner.
class HelpDesk : public QObject {
    Q_OBJECT
public:
    // `folder` is the folder "help" of the installation.
    HelpDesk(std::filesystem::path folder, QWidget* owner);
    ~HelpDesk() override;

    void Open(const HelpTopic& topic);

    // Null as long as the help has not been opened.
    HelpWindow* Window() const { return window.get(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool BelongsToOwner(const QWidget* widget) const;
    const HelpTopic* TopicOf(const QWidget* widget) const;

    std::filesystem::path folder;
    QWidget* owner;
    std::unique_ptr<HelpWindow> window;
};

} // namespace orva
