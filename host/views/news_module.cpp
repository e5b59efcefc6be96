// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/news_module.h"

#include "host/views/main_frame_window.h"

#include <QFileInfo>
#include <QObject>
#include <QPluginLoader>

using namespace wirepane;

// Their type information stands here alone, for the host as for the module.
CMainFrame::~CMainFrame() = default;

namespace wirepane {

NewsStoryWindow::~NewsStoryWindow() = default;
NewsModule::~NewsModule() = default;
NewsViewAccess::~NewsViewAccess() = default;

NewsModule* loadNewsModule(const QString& file, QString& error) {
    QPluginLoader loader(QFileInfo(file).absoluteFilePath());
    QObject* plugin = loader.instance();
    if (plugin == nullptr) {
        error = QStringLiteral("The news module %1 cannot be loaded: %2").arg(file, loader.errorString());
        return nullptr;
    }
    auto* module = qobject_cast<NewsModule*>(plugin);
    if (module == nullptr)
        error = QStringLiteral("%1 is not a news module of this version").arg(file);
    return module;
}

}  // namespace wirepane
