// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/first_news.h"

#include "host/views/news_module.h"
#include "terminal/frame/frame_command.h"
#include "terminal/frame/main_frame.h"
#include "terminal/translations/terminal_text.h"

#include <QAction>

namespace wirepane {

namespace {

struct Offer {
    FrameCommand command;
    TextId text;
};

constexpr Offer offers[] = {
    {FrameCommand::ImportNews, TextId::ImportTitle},
    {FrameCommand::Sources, TextId::SourceAddTitle},
};

}  // namespace

void offerFirstNews(QWidget& view, MainFrame& frame) {
    for (const Offer& offer : offers) {
        auto* action = new QAction(terminalText(offer.text), &view);
        action->setProperty(offeredWithoutNews, true);
        QObject::connect(action, &QAction::triggered, &frame,
                         [&frame, command = offer.command] { emit frame.commanded(command); });
        QObject::connect(&frame, &MainFrame::languageChanged, action,
                         [action, text = offer.text] { action->setText(terminalText(text)); });
        view.addAction(action);
    }
}

}  // namespace wirepane
