// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/app_methods.h"

#include "terminal/automation/view_lookup.h"
#include "terminal/frame/frame_picture.h"
#include "terminal/session/session.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int longestWaitMs = 600000;
constexpr int quietRounds = 3;
constexpr int roundMs = 5;

}  // namespace

void AppMethods::addTo(MethodTable& table) {
    table.add(u"screenshot"_s, [this](Params& params) { return screenshot(params); });
    table.addDeferred(u"wait"_s, [this](Params& params, const Reply& reply) { wait(params, reply); });
    table.addDeferred(u"idle"_s, [this](Params&, const Reply& reply) { answerWhenIdle(reply, quietRounds); });
    table.add(u"app.quit"_s, [](Params&) {
        // After the answer is out; ends the loops of dialogs, too.
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(0); });
        return Answer();
    });
}

Answer AppMethods::screenshot(Params& params) {
    const QString path = params.text(u"path"_s);
    const OpenView* view = params.has(u"view"_s) ? viewOf(params, session.workspace()) : nullptr;
    if (params.error())
        return {};
    const QPixmap picture = view != nullptr ? view->view->grab() : pictureWithWindowsAbove(session.frame());
    if (!picture.save(path))
        return RpcError{RpcCode::Refused,
                        u"the picture cannot be written to %1"_s.arg(QDir::toNativeSeparators(path))};
    return QJsonObject{{u"size"_s, QJsonArray{picture.width(), picture.height()}}};
}

void AppMethods::wait(Params& params, const Reply& reply) {
    const auto ms = params.number(u"ms"_s, 0, longestWaitMs);
    if (params.error())
        reply(*params.error());
    else
        QTimer::singleShot(static_cast<int>(ms), this, [reply] { reply({}); });
}

void AppMethods::answerWhenIdle(const Reply& reply, int rounds) {
    if (rounds == 0) {
        reply({});
        return;
    }
    QTimer::singleShot(rounds == quietRounds ? 0 : roundMs, this, [this, reply, rounds] {
        const bool isBusy = refreshIsDue() || !session.feed().isIdle();
        answerWhenIdle(reply, isBusy ? quietRounds - 1 : rounds - 1);
    });
}

bool AppMethods::refreshIsDue() const {
    constexpr int refreshTimer = 1;
    for (const auto& open : session.workspace().views()) {
        const std::vector<int> timers = open->view->runningTimers();
        if (std::find(timers.begin(), timers.end(), refreshTimer) != timers.end())
            return true;
    }
    return false;
}

}  // namespace wirepane
