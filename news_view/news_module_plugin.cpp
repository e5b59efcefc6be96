// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/bk_quote_interface.h"
#include "host/views/news_module.h"
#include "news_view/trv_news_ctrl_view.h"

#include <QObject>

#include <array>

namespace {

// The classes that a host may create by name.
const std::array viewClasses{&TRVNewsCtrlView::staticMetaObject};

}  // namespace

// The entry point of the module.
class NewsModulePlugin : public QObject, public NewsModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID WIREPANE_NEWS_MODULE_IID)
    Q_INTERFACES(NewsModule)

public:
    QStringList ViewClasses() const override {
        QStringList names;
        for (const QMetaObject* viewClass : viewClasses)
            names.append(QString::fromLatin1(viewClass->className()));
        return names;
    }

    TRVQuoteBaseView* CreateView(const QString& className, QWidget* parent) override {
        if (BKQuoteInterface::GetBKInterface() == nullptr)
            return nullptr;
        for (const QMetaObject* viewClass : viewClasses) {
            if (className == QLatin1String(viewClass->className()))
                return qobject_cast<TRVQuoteBaseView*>(viewClass->newInstance(Q_ARG(QWidget*, parent)));
        }
        return nullptr;
    }
};

#include "news_module_plugin.moc"
