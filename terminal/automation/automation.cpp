// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/automation.h"

#include "backend/lines/standard_channel.h"
#include "terminal/automation/dialog_methods.h"

#include <QCoreApplication>

namespace wirepane {

Automation::Automation(Session& session)
    : views(session),
      grids(session),
      controls(session),
      dates(session),
      stories(session),
      output(session),
      feed(session),
      sources(session),
      searches(session),
      marks(session),
      alerts(session),
      diary(session),
      host(session),
      input(session),
      links(session),
      menus(session),
      app(session),
      queue(table) {
    views.addTo(table);
    grids.addTo(table);
    controls.addTo(table);
    dates.addTo(table);
    stories.addTo(table);
    output.addTo(table);
    feed.addTo(table);
    sources.addTo(table);
    searches.addTo(table);
    marks.addTo(table);
    alerts.addTo(table);
    diary.addTo(table);
    host.addTo(table);
    input.addTo(table);
    links.addTo(table);
    menus.addTo(table);
    DialogMethods::addTo(table);
    app.addTo(table);
}

void Automation::serve(StandardChannel& channel) {
    queue.listenTo(&channel);
    connect(&channel, &LineChannel::ended, this, &Automation::endWhenIdle);
}

void Automation::endWhenIdle() {
    if (queue.isIdle())
        QCoreApplication::exit(0);
    else
        connect(&queue, &RequestQueue::becameIdle, qApp, [] { QCoreApplication::exit(0); });
}

Done Automation::listen(const QString& socketName) {
    connect(&sockets, &SocketServer::connected, &queue, &RequestQueue::listenTo);
    return sockets.listen(socketName);
}

}  // namespace wirepane
