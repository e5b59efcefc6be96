// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "wire/postgres/postgres_server.h"
#include "wire/postgres/postgres_tail.h"
#include "wire/wire_driver.h"

namespace wirepane {

class PostgresDriver : public QObject, public WireDriver {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID WIREPANE_WIRE_DRIVER)
    Q_INTERFACES(wirepane::WireDriver)

public:
    std::unique_ptr<WireServer> server(const QString& service) override {
        return std::make_unique<PostgresServer>(service);
    }
    std::unique_ptr<WireTail> tail(const QString& service, WireTail::Listener listener) override {
        return std::make_unique<PostgresTail>(service, std::move(listener));
    }
};

}  // namespace wirepane

#include "postgres_driver.moc"
