// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "news_view/saved_search_menu.h"

#include "headline_list/language_keys.h"
#include "host/contract/bk_quote_interface.h"
#include "host/contract/headline_looks.h"
#include "host/contract/query/search_counts.h"
#include "host/contract/whole_file.h"
#include "host/controls/heap_dialog.h"
#include "host/controls/plain_caption.h"
#include "host/views/news_control_ids.h"
#include "news_view/application_switches.h"
#include "news_view/control_set.h"
#include "news_view/news_services.h"
#include "news_view/view_settings.h"
#include "search/alert_query.h"
#include "search/dialog_controls.h"
#include "search/query_entry.h"
#include "search/search_desk.h"
#include "search/search_edit2.h"
#include "search/search_keys.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QList>
#include <QLocale>
#include <QMenu>
#include <QPointer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr qint64 largestFile = 4 * 1024 * 1024;

}  // namespace

SavedSearchMenu::SavedSearchMenu(const CommonParts& commonParts, const SearchDesk& searchDesk, Calls given)
    : parts(commonParts), desk(searchDesk), calls(std::move(given)) {}

void SavedSearchMenu::connectEdit() {
    auto* edit = parts.controls.find<SearchEdit2>(ids::searchEdit);
    if (edit != nullptr && parts.settings.options[ViewOption::NamedSearches])
        edit->offerMore([this](QMenu& menu) { fill(menu); });
}

void SavedSearchMenu::showWaiting() {
    const QString name = std::exchange(waiting, {});
    if (name.isEmpty())
        return;
    const SavedSearches searches = kept();
    const int place = savedSearchNamed(searches, name);
    if (place >= 0)
        calls.show(searches[std::size_t(place)].condition);
}

QString SavedSearchMenu::shownName() const {
    if (!waiting.isEmpty())
        return waiting;
    const CSearch present = presentSearch();
    for (const SavedSearch& search : kept()) {
        CSearch sent = search.condition;
        SearchDesk::completeMethod(sent);
        if (sent == present)
            return search.name;
    }
    return {};
}

SavedSearches SavedSearchMenu::kept() const {
    const TRVCfgIO2* store = parts.settings.options[ViewOption::NamedSearches] ? calls.settings() : nullptr;
    return store != nullptr ? storedSavedSearches(*store) : SavedSearches();
}

void SavedSearchMenu::keep(const SavedSearches& searches) {
    if (TRVCfgIO2* store = calls.settings())
        storeSavedSearches(*store, searches);
}

QString SavedSearchMenu::text(QLatin1StringView key) const {
    return langText(parts.backEnd, key);
}

// --- The menu ---

void SavedSearchMenu::fill(QMenu& menu) {
    const SavedSearches searches = kept();
    if (!menu.isEmpty())
        menu.addSeparator();
    for (const SavedSearch& search : searches)
        menu.addAction(captionOfName(search.name), &parts.window,
                       [this, condition = search.condition] { calls.show(condition); })
            ->setData(search.name);
    if (!searches.empty())
        menu.addSeparator();
    const CSearch present = presentSearch();
    menu.addAction(text(keys::saveSearch), &parts.window, [this, present] { askForName(present); })
        ->setEnabled(!present.keywords.empty());
    QMenu* manage = menu.addMenu(text(keys::savedManage));
    for (const SavedSearch& search : searches)
        fillChoices(*manage->addMenu(captionOfName(search.name)), search);
    manage->addSeparator();
    manage->addAction(text(keys::savedImport), &parts.window, [this] { askForImport(); });
    manage->addAction(text(keys::savedExport), &parts.window, [this] { askForExport(); })
        ->setEnabled(!searches.empty());
    count(menu, searches);
}

void SavedSearchMenu::fillChoices(QMenu& menu, const SavedSearch& search) {
    const CSearch& condition = search.condition;
    // What has no tab could not be seen.
    if (parts.switches.showNormalSearch)
        menu.addAction(text(keys::savedAsKeySet), &parts.window,
                       [this, condition] { makeKeySet(condition); });
    if (parts.switches.showWarningSearch)
        menu.addAction(text(keys::savedAsWarning), &parts.window,
                       [this, condition] { calls.addWarningTerm(condition); });
    auto* const host = dynamic_cast<HeadlineLooks*>(&parts.backEnd);
    if (host != nullptr && parts.settings.options[ViewOption::AlertLooks])
        menu.addAction(text(keys::savedAsAlert), &parts.window,
                       [host, search] { host->proposeAlert(search.name, alertQuery(search.condition)); });
    menu.addAction(text(keys::savedDelete), &parts.window, [this, name = search.name] { remove(name); });
}

void SavedSearchMenu::count(QMenu& menu, const SavedSearches& searches) {
    auto* counts = dynamic_cast<SearchCounts*>(&parts.backEnd);
    if (counts == nullptr || searches.empty())
        return;
    std::vector<unsigned char> services;
    for (const ServiceEntry& entry : parts.services.currentServices()) {
        if (entry.selected)
            services.push_back(entry.service);
    }
    std::vector<CountedSearch> wanted;
    for (const SavedSearch& search : searches)
        wanted.push_back({ofToday(search.condition), services});
    counting = counts->countFound(
        std::move(wanted), [this, shown = QPointer(&menu), searches](const std::vector<int>& found) {
            const QList<QAction*> lines = shown ? shown->actions() : QList<QAction*>();
            for (QAction* line : lines) {
                const int place = savedSearchNamed(searches, line->data().toString());
                if (place < 0 || static_cast<std::size_t>(place) >= found.size())
                    continue;
                const QString number = QLocale(QLocale::English).toString(found[std::size_t(place)]);
                line->setText(captionOfName(searches[std::size_t(place)].name) + u'\t' +
                              text(keys::savedToday).arg(number));
            }
        });
}

// --- What becomes of them ---

CSearch SavedSearchMenu::presentSearch() const {
    return desk.foundUnder(ListIndex::Search);
}

void SavedSearchMenu::askForName(const CSearch& condition) {
    const HeapDialog dialog(new QInputDialog(&parts.window));
    dialog->setWindowTitle(captionWithoutKey(text(keys::saveSearch)));
    dialog->setLabelText(text(keys::savedName));
    dialog->setOkButtonText(text(search_keys::ok));
    dialog->setCancelButtonText(text(search_keys::cancel));
    dialog->setTextValue(
        nameOfSavedSearch(QStringList(condition.keywords.begin(), condition.keywords.end()).join(u' ')));
    if (runOver(&parts.window, dialog.get()) != QDialog::Accepted || !dialog)
        return;
    const QString name = nameOfSavedSearch(dialog->textValue());
    SavedSearches searches = kept();
    const bool isKnown = savedSearchNamed(searches, name) >= 0;
    if (name.isEmpty() || (isKnown && !askYesNo(&parts.window, text(keys::savedReplace).arg(name))))
        return;
    if (saveSearch(searches, {name, condition}))
        keep(searches);
    else
        tellError(&parts.window, text(keys::savedFull).arg(mostSavedSearches));
}

void SavedSearchMenu::remove(const QString& name) {
    if (!askYesNo(&parts.window, text(keys::savedAskDelete).arg(name)))
        return;
    SavedSearches searches = kept();
    std::erase_if(searches, [&](const SavedSearch& search) { return search.name == name; });
    keep(searches);
}

void SavedSearchMenu::makeKeySet(const CSearch& condition) {
    if (const auto fault = calls.addKeySet(condition))
        tellError(&parts.window, textOf(*fault));
}

// --- Files ---

void SavedSearchMenu::askForImport() {
    const QPointer<QWidget> alive(&parts.window);
    const QString file = QFileDialog::getOpenFileName(
        &parts.window, captionWithoutKey(text(keys::savedImport)), {}, text(keys::savedFiles));
    if (alive && !file.isEmpty())
        importFile(file);
}

void SavedSearchMenu::importFile(const QString& name) {
    const auto refuse = [&](const QString& why) {
        tellError(&parts.window, text(keys::savedFileFailed).arg(QDir::toNativeSeparators(name), why));
    };
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        refuse(file.errorString());
        return;
    }
    const auto read = readSavedSearches(file.read(largestFile));
    if (const auto* fault = std::get_if<SavedSearchesFault>(&read)) {
        refuse(textOf(*fault));
        return;
    }
    const QPointer<QWidget> alive(&parts.window);
    SavedSearches searches = kept();
    for (const SavedSearch& search : std::get<SavedSearches>(read)) {
        const int place = savedSearchNamed(searches, search.name);
        const bool isOther = place >= 0 && !(searches[std::size_t(place)].condition == search.condition);
        const bool isWanted = !isOther || askYesNo(&parts.window, text(keys::savedReplace).arg(search.name));
        if (!alive)
            return;
        if (isWanted && !saveSearch(searches, search)) {
            refuse(text(keys::savedFull).arg(mostSavedSearches));
            return;
        }
    }
    keep(searches);
}

void SavedSearchMenu::askForExport() {
    const QPointer<QWidget> alive(&parts.window);
    const QString file = QFileDialog::getSaveFileName(
        &parts.window, captionWithoutKey(text(keys::savedExport)), u"searches.txt"_s, text(keys::savedFiles));
    if (!alive || file.isEmpty())
        return;
    if (const auto why = writeWholeFile(file, fileOfSavedSearches(kept())))
        tellError(&parts.window, text(keys::savedFileFailed).arg(QDir::toNativeSeparators(file), *why));
}

}  // namespace wirepane
