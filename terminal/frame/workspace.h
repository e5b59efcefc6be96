// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"
#include "host/contract/cfg_io.h"
#include "host/views/news_module.h"
#include "host/views/quote_base_view.h"

#include <QObject>
#include <QSize>

#include <memory>
#include <vector>

namespace wirepane {

class ViewDesk;

// How a news view is to be opened.
struct ViewRequest {
    QSize size;        // of its client area; invalid: it fills the desk
    int newsType = 0;  // 0..3, see NewsViewAccess
    QString typeName;
    QString section = QStringLiteral("main");
    // Where the view reads its settings for as long as it lives: `settings` (not owned), or `ownSettings`
    // where it is set.
    TRVCfgIO2* settings = nullptr;
    std::unique_ptr<MemoryCfgIO> ownSettings;
};

// One open view. The view belongs to the desk.
struct OpenView {
    int number = 0;
    TRVQuoteBaseView* view = nullptr;
    NewsViewAccess* access = nullptr;
    QString section;
    TRVCfgIO2* settings = nullptr;
    std::unique_ptr<MemoryCfgIO> ownSettings;
};

// The open news views of the terminal, numbered from 1 on in the order in which they were opened.
class Workspace : public QObject {
    Q_OBJECT

public:
    // Neither is owned; both outlive the workspace.
    Workspace(NewsModule& module, ViewDesk& desk, QObject* parent = nullptr);

    // Opens a view, starts it up whole and shows it. Fails when the module cannot make one. The result
    // belongs to the workspace.
    Result<OpenView*> open(ViewRequest request);
    // Ends the view at once, with what it has open.
    void close(int number);
    // Has the view write its settings to where it read them from.
    void save(const OpenView& view);
    void resize(const OpenView& view, const QSize& size);

    // Null when there is no such view.
    OpenView* find(int number);
    // The view that was opened last; null when none is open.
    OpenView* newest();
    const std::vector<std::unique_ptr<OpenView>>& views() const { return openViews; }

signals:
    // The newest view has become another one, or has another size.
    void arranged();

private:
    NewsModule& module;
    ViewDesk& desk;
    std::vector<std::unique_ptr<OpenView>> openViews;
    int lastNumber = 0;
};

}  // namespace wirepane
