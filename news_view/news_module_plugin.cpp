// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/contract/bk_quote_interface.h"
#include "host/contract/misuse.h"
#include "host/views/news_module.h"
#include "news_view/trv_news_ctrl_view.h"
#include "output/left_out.h"
#include "output/page_printing.h"
#include "output/printable_story.h"
#include "output/trv_save_to_file.h"
#include "story/trv_news_story.h"

#include <QObject>

#include <array>
#include <set>

namespace wirepane {

namespace {

// Puts the complete ones among the news of these entries out.
template <class PutOut>
NewsOutcome putOutAtHand(const std::vector<CHeadlineTable>& entries, StoryForm form,
                         const OutputTarget& target, PutOut putOut) {
    requireInterfaceThread("NewsModule::printEntries or saveEntries");
    requireOfHost(BKQuoteInterface::GetBKInterface() != nullptr,
                  "NewsModule::printEntries or saveEntries was called before a back end was installed "
                  "(BKQuoteInterface::SetBKInterface).");
    BKQuoteInterface& backEnd = *BKQuoteInterface::GetBKInterface();
    std::set<unsigned char> services;
    for (const CHeadlineTable& entry : entries)
        services.insert(entry.service);
    OutputItems items = completeItems(gatherNews(backEnd, entries, {services.begin(), services.end()}, form));
    if (items.empty())
        return nothingToPutOut(backEnd);
    for (OutputItem& item : items)
        item.wholeTitle = target.wholeTitles;
    NewsOutcome outcome = putOut(target, backEnd, items);
    tellLeftOut(backEnd, entries.size() - items.size(), outcome);
    return outcome;
}

// The classes that a host may create by name.
const std::array viewClasses{&TRVNewsCtrlView::staticMetaObject};

}  // namespace

// The entry point of the module.
class NewsModulePlugin : public QObject, public NewsModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID WIREPANE_NEWS_MODULE_IID)
    Q_INTERFACES(wirepane::NewsModule)

public:
    QStringList viewClassNames() const override {
        QStringList names;
        for (const QMetaObject* viewClass : viewClasses)
            names.append(QString::fromLatin1(viewClass->className()));
        return names;
    }

    TRVQuoteBaseView* CreateView(const QString& className, QWidget* parent) override {
        requireInterfaceThread("NewsModule::CreateView");
        if (BKQuoteInterface::GetBKInterface() == nullptr)
            return nullptr;
        for (const QMetaObject* viewClass : viewClasses) {
            if (className == QLatin1String(viewClass->className()))
                return qobject_cast<TRVQuoteBaseView*>(viewClass->newInstance(Q_ARG(QWidget*, parent)));
        }
        return nullptr;
    }

    NewsStoryWindow* createStoryWindow(CMainFrame* mainFrame) override {
        return BKQuoteInterface::GetBKInterface() != nullptr ? new TRVNewsStory(mainFrame) : nullptr;
    }

    NewsOutcome printEntries(const std::vector<CHeadlineTable>& entries,
                             const OutputTarget& target) override {
        return putOutAtHand(entries, &printedStory, target, &printItemsToPdf);
    }

    NewsOutcome saveEntries(const std::vector<CHeadlineTable>& entries, const OutputTarget& target) override {
        return putOutAtHand(entries, &savedStory, target, &saveItemsTo);
    }
};

}  // namespace wirepane

#include "news_module_plugin.moc"
