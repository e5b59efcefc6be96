// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/frame_commands.h"

#include "terminal/frame/read_as_of_dialog.h"
#include "terminal/session/session.h"
#include "terminal/translations/terminal_text.h"

#include <QMessageBox>
#include <QPointer>

namespace wirepane {

FrameCommands::FrameCommands(Session& terminal) : session(terminal) {
    MainFrame* frame = &session.frame();
    connect(frame, &MainFrame::readAsOfChosen, this, &FrameCommands::readAsOf);
    connect(frame, &MainFrame::closing, this, &FrameCommands::save);
    connect(frame, &MainFrame::activationChanged, this,
            [this](int active) { session.setActive(active != 0); });
    connect(frame, &MainFrame::schemeChosen, this, [this](const QString& name) {
        if (const auto scheme = schemeByName(name))
            session.setScheme(*scheme);
    });
    connect(frame, &MainFrame::languageChosen, this,
            [this](const QString& language) { session.setLanguage(language); });
    connect(frame, &MainFrame::fontStepChosen, this,
            [this](int step) { session.setFontSize(session.settings().fontSize() + step); });
}

void FrameCommands::readAsOf() {
    const QPointer<ReadAsOfDialog> dialog = new ReadAsOfDialog(&session.frame());
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (dialog.isNull())
        return;
    const std::int64_t moment = dialog->moment();
    delete dialog;
    if (!accepted)
        return;
    if (const Done done = session.readAsOf(moment); !done)
        warn(done.error());
}

void FrameCommands::save() {
    if (const Done done = session.saveLayout(); !done)
        warn(done.error());
}

void FrameCommands::warn(const QString& sentence) {
    auto* box = new QMessageBox(QMessageBox::Warning, terminalText(TextId::AppTitle), sentence,
                                QMessageBox::Ok, &session.frame());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    box->exec();
}

}  // namespace wirepane
