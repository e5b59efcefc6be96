// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/session/indexing_window.h"

#include <QCoreApplication>

#include <algorithm>

namespace wirepane {

namespace {
constexpr qint64 silentMs = 500;
constexpr int steps = 1000;

// It cannot be left: nothing else is there to see yet.
class StandingProgress final : public QProgressDialog {
public:
    using QProgressDialog::QProgressDialog;
    void reject() override {}
};
}  // namespace

void IndexingWindow::tell(std::int64_t done, std::int64_t total) {
    if (window == nullptr && (started.elapsed() < silentMs || done >= total))
        return;
    if (window == nullptr) {
        window = std::make_unique<StandingProgress>(terminalText(told), QString(), 0, steps);
        QObject::disconnect(window.get(), &QProgressDialog::canceled, window.get(), &QProgressDialog::cancel);
        window->setWindowTitle(terminalText(TextId::AppTitle));
        window->setAutoReset(false);
        window->show();
    }
    window->setValue(static_cast<int>(std::min(done, total) * steps / total));
    QCoreApplication::processEvents();
}

}  // namespace wirepane
