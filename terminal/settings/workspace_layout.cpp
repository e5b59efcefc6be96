// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/settings/workspace_layout.h"

#include "terminal/settings/settings_file.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString group = u"workspace"_s;

constexpr int lastByte = 255;
constexpr int nothing = -1;

// A whole number within the bounds; `nothing` for anything else.
int numberOf(const QJsonValue& value, int most) {
    const int number = value.toInt(nothing);
    return number >= 0 && number <= most ? number : nothing;
}

std::optional<StoredView> viewOf(const QJsonObject& stored) {
    StoredView view;
    view.place = numberOf(stored[u"place"_s], WorkspaceLayout::lastPlace);
    if (view.place == nothing)
        return std::nullopt;
    view.newsType = static_cast<NewsType>(std::max(0, numberOf(stored[u"newsType"_s], lastNewsType)));
    view.typeName = stored[u"typeName"_s].toString();
    view.title = stored[u"title"_s].toString();
    view.linkGroup = static_cast<unsigned char>(std::max(0, numberOf(stored[u"linkGroup"_s], lastByte)));
    return view;
}

QJsonObject objectOf(const StoredView& view) {
    return {{u"place"_s, view.place},
            {u"newsType"_s, static_cast<int>(view.newsType)},
            {u"typeName"_s, view.typeName},
            {u"title"_s, view.title},
            {u"linkGroup"_s, view.linkGroup}};
}

void readViews(const QJsonArray& stored, std::vector<StoredView>& views) {
    for (const auto& value : stored) {
        const auto view = viewOf(value.toObject());
        const bool taken = view && std::any_of(views.begin(), views.end(), [&view](const StoredView& other) {
                               return other.place == view->place;
                           });
        if (view && !taken && views.size() < WorkspaceLayout::mostViews)
            views.push_back(*view);
    }
}

void readSymbols(const QJsonArray& stored, std::map<unsigned char, SymbolItem>& symbols) {
    for (const auto& value : stored) {
        const QJsonObject object = value.toObject();
        const int linkGroup = numberOf(object[u"linkGroup"_s], lastByte);
        const int market = numberOf(object[u"service"_s], lastByte);
        const QString code = object[u"code"_s].toString();
        if (linkGroup > 0 && market > 0 && !code.isEmpty())
            symbols[static_cast<unsigned char>(linkGroup)] = {static_cast<unsigned char>(market), code,
                                                              object[u"name"_s].toString()};
    }
}

}  // namespace

WorkspaceLayout WorkspaceLayout::read(const SettingsFile& file) {
    WorkspaceLayout layout;
    readViews(file.value(group, u"views"_s).toArray(), layout.views);
    readSymbols(file.value(group, u"symbols"_s).toArray(), layout.symbols);
    layout.arrangement = QByteArray::fromBase64(file.value(group, u"arrangement"_s).toString().toLatin1());
    layout.activePlace = std::max(0, numberOf(file.value(group, u"activePlace"_s), lastPlace));
    return layout;
}

void WorkspaceLayout::write(SettingsFile& file) const {
    QJsonArray storedViews;
    for (const StoredView& view : views)
        storedViews.append(objectOf(view));
    QJsonArray storedSymbols;
    for (const auto& [linkGroup, symbol] : symbols)
        storedSymbols.append(QJsonObject{{u"linkGroup"_s, linkGroup},
                                         {u"service"_s, symbol.market},
                                         {u"code"_s, symbol.code},
                                         {u"name"_s, symbol.name}});
    file.setValue(group, u"views"_s, storedViews);
    file.setValue(group, u"symbols"_s, storedSymbols);
    file.setValue(group, u"arrangement"_s, QString::fromLatin1(arrangement.toBase64()));
    file.setValue(group, u"activePlace"_s, activePlace);
}

}  // namespace wirepane
