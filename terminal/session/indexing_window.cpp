// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/indexing_window.h"

#include "terminal/translations/terminal_text.h"

#include <QCoreApplication>

namespace wirepane {

namespace {
constexpr qint64 silentMs = 500;
constexpr int steps = 1000;
}  // namespace

void IndexingWindow::tell(std::int64_t done, std::int64_t total) {
    if (window == nullptr && (started.elapsed() < silentMs || done >= total))
        return;
    if (window == nullptr) {
        window = std::make_unique<QProgressDialog>(terminalText(TextId::IndexingStore), QString(), 0, steps);
        window->setWindowTitle(terminalText(TextId::AppTitle));
        window->setAutoReset(false);
        window->show();
    }
    window->setValue(static_cast<int>(done * steps / total));
    QCoreApplication::processEvents();
}

}  // namespace wirepane
