// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/lines/socket_server.h"
#include "terminal/automation/alert_methods.h"
#include "terminal/automation/app_methods.h"
#include "terminal/automation/control_methods.h"
#include "terminal/automation/date_methods.h"
#include "terminal/automation/diary_methods.h"
#include "terminal/automation/feed_methods.h"
#include "terminal/automation/grid_methods.h"
#include "terminal/automation/host_methods.h"
#include "terminal/automation/input_methods.h"
#include "terminal/automation/link_methods.h"
#include "terminal/automation/mark_methods.h"
#include "terminal/automation/menu_methods.h"
#include "terminal/automation/output_methods.h"
#include "terminal/automation/request_queue.h"
#include "terminal/automation/search_methods.h"
#include "terminal/automation/source_methods.h"
#include "terminal/automation/story_methods.h"
#include "terminal/automation/view_methods.h"

#include <QObject>

namespace wirepane {
class StandardChannel;

// The automation interface of a session: its methods, the queue of requests, and the channels they come by.
class Automation : public QObject {
    Q_OBJECT

public:
    // The session is not owned and must outlive the automation.
    explicit Automation(Session& session);

    // Serves standard input and output. When the input has ended and all is answered, the program ends with
    // 0.
    void serve(StandardChannel& channel);
    // Serves a local socket.
    Done listen(const QString& socketName);

private:
    void endWhenIdle();

    ViewMethods views;
    GridMethods grids;
    ControlMethods controls;
    DateMethods dates;
    StoryMethods stories;
    OutputMethods output;
    FeedMethods feed;
    SourceMethods sources;
    SearchMethods searches;
    MarkMethods marks;
    AlertMethods alerts;
    DiaryMethods diary;
    HostMethods host;
    InputMethods input;
    LinkMethods links;
    MenuMethods menus;
    AppMethods app;
    MethodTable table;
    RequestQueue queue;
    SocketServer sockets;
};

}  // namespace wirepane
