// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/alerts/desktop_notices.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QStringList>
#include <QVariantMap>

#include <mutex>
#include <set>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString service = u"org.freedesktop.Notifications"_s;
const QString path = u"/org/freedesktop/Notifications"_s;
constexpr int patienceMs = 1000;
constexpr std::size_t mostKnown = 1000;
constexpr int asTheDesktopLikes = -1;  // how long one stays

}  // namespace

class DesktopNotices::Bus {
public:
    explicit Bus(DesktopNotices& notices) : owner(notices) {}
    ~Bus() { QDBusConnection::disconnectFromBus(name); }
    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;

    void tell(const QString& title, const QString& text) {
        if (!connectOnce())
            return;
        QDBusMessage message = QDBusMessage::createMethodCall(service, path, service, u"Notify"_s);
        message << u"Wirepane"_s << uint(0) << u"wirepane"_s << title
                << (capabilities.contains(u"body-markup"_s) ? text.toHtmlEscaped() : text)
                << (capabilities.contains(u"actions"_s) ? QStringList{u"default"_s, QString()}
                                                        : QStringList())
                << QVariantMap() << asTheDesktopLikes;
        const QDBusReply<uint> number = QDBusConnection(name).call(message, QDBus::Block, patienceMs);
        if (!number.isValid())
            return;
        const std::lock_guard lock(mutex);
        known.insert(number.value());
        if (known.size() > mostKnown)
            known.erase(known.begin());
    }
    // From any thread.
    bool isOurs(uint number) {
        const std::lock_guard lock(mutex);
        return known.contains(number);
    }

private:
    // A desktop that could not tell once is not asked again.
    bool connectOnce() {
        if (isTried)
            return isThere;
        isTried = true;
        QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
        if (!bus.isConnected())
            return false;
        const QDBusReply<QStringList> can =
            bus.call(QDBusMessage::createMethodCall(service, path, service, u"GetCapabilities"_s),
                     QDBus::Block, patienceMs);
        isThere = can.isValid();
        capabilities = can.value();
        bus.connect(service, path, service, u"ActionInvoked"_s, &owner, SLOT(invoked(uint, QString)));
        return isThere;
    }

    DesktopNotices& owner;
    const QString name = u"wirepane-notices-%1"_s.arg(reinterpret_cast<quintptr>(this));
    bool isTried = false;
    bool isThere = false;
    QStringList capabilities;
    std::mutex mutex;
    std::set<uint> known;
};

DesktopNotices::DesktopNotices() : bus(std::make_unique<Bus>(*this)) {}

DesktopNotices::~DesktopNotices() = default;

void DesktopNotices::tell(const QString& title, const QString& text) {
    if (!thread)
        thread = std::make_unique<WorkerThread>();
    thread->post([this, title, text] { bus->tell(title, text); });
}

void DesktopNotices::invoked(uint notice, const QString& action) {
    if (action == "default"_L1 && bus->isOurs(notice))
        emit opened();
}

}  // namespace wirepane
