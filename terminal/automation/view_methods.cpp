// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/automation/view_methods.h"

#include "host/contract/view_options.h"
#include "host/views/news_explanation.h"
#include "terminal/automation/headline_params.h"
#include "terminal/automation/view_lookup.h"
#include "terminal/automation/window_report.h"
#include "terminal/session/session.h"
#include "terminal/settings/layout_store.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr QSize ordinaryViewSize(1000, 700);

std::unique_ptr<MemoryCfgIO> settingsFrom(Params& params) {
    auto settings = std::make_unique<MemoryCfgIO>();
    const QJsonObject given = params.optionalObject(u"settings"_s);
    for (auto setting = given.begin(); setting != given.end(); ++setting) {
        const QVariant value = settingFromJson(setting.value());
        if (!value.isValid())
            params.fail(u"the setting \"%1\" must be a boolean, a number, a text or a list of texts"_s.arg(
                setting.key()));
        settings->values.insert(setting.key(), value);
    }
    if (const auto mask = params.optionalNumber(u"mask"_s))
        settings->values.insert(u"EnabledFunctions"_s, static_cast<int>(*mask));
    if (params.optionalBool(u"own"_s).value_or(false))
        ViewOptions::writeMissing(*settings, {});
    return settings;
}

// What an explanation calls its checks.
QString checkName(StandingCheck check) {
    switch (check) {
        case StandingCheck::Told:
            return u"told"_s;
        case StandingCheck::Service:
            return u"service"_s;
        case StandingCheck::Day:
            return u"day"_s;
        case StandingCheck::Topic:
            return u"topic"_s;
        case StandingCheck::Symbol:
            return u"symbol"_s;
        case StandingCheck::KeySets:
            return u"keySets"_s;
        case StandingCheck::Filter:
            return u"filter"_s;
        case StandingCheck::Search:
            return u"search"_s;
    }
    return {};
}

NewsType newsTypeFrom(Params& params) {
    return static_cast<NewsType>(params.optionalNumber(u"newsType"_s, 0, lastNewsType).value_or(0));
}

QJsonObject standingReport(const HeadlineStanding& standing) {
    QJsonArray checks;
    for (const CheckedStanding& checked : standing.checks)
        checks.append(QJsonObject{{u"check"_s, checkName(checked.check)},
                                  {u"passed"_s, checked.passed},
                                  {u"wanted"_s, checked.wanted},
                                  {u"has"_s, checked.has}});
    return {{u"list"_s, standing.list},
            {u"row"_s, standing.row},
            {u"read"_s, standing.wasRead},
            {u"checks"_s, checks}};
}

}  // namespace

void ViewMethods::addTo(MethodTable& table) {
    table.add(u"view.open"_s, [this](Params& params) { return open(params); });
    table.add(u"view.close"_s, [this](Params& params) { return close(params); });
    table.add(u"view.resize"_s, [this](Params& params) { return resize(params); });
    table.add(u"view.state"_s, [this](Params& params) { return state(params); });
    table.add(u"view.explain"_s, [this](Params& params) { return explain(params); });
    table.addModal(u"view.command"_s, [this](Params& params) { return command(params); });
}

Answer ViewMethods::open(Params& params) {
    if (params.optionalBool(u"docked"_s).value_or(false))
        return openDocked(params);
    ViewRequest request;
    request.size = params.optionalSize(u"size"_s).value_or(ordinaryViewSize);
    request.newsType = newsTypeFrom(params);
    request.typeName = params.optionalText(u"typeName"_s).value_or(QString());
    request.section = params.optionalText(u"section"_s).value_or(request.section);
    request.ownSettings = settingsFrom(params);
    if (params.error())
        return {};
    const auto opened = session.openView(std::move(request));
    if (!opened)
        return RpcError{RpcCode::Refused, sentence(opened.error())};
    return QJsonObject{{u"view"_s, opened.value()->number}};
}

Answer ViewMethods::openDocked(Params& params) {
    for (const QString& name : {u"size"_s, u"mask"_s, u"typeName"_s, u"settings"_s, u"section"_s, u"own"_s}) {
        if (params.has(name))
            params.fail(u"a docked view takes no \"%1\""_s.arg(name));
    }
    const NewsType newsType = newsTypeFrom(params);
    if (params.error())
        return {};
    const auto opened = session.keeper().openNew(newsType);
    if (!opened)
        return RpcError{RpcCode::Refused, sentence(opened.error())};
    return QJsonObject{{u"view"_s, opened.value()->number}};
}

Answer ViewMethods::close(Params& params) {
    const OpenView* view = viewOf(params, session.workspace());
    const bool save = params.optionalBool(u"save"_s).value_or(false);
    if (view == nullptr || params.error())
        return {};
    if (save)
        session.workspace().save(*view);
    QJsonObject stored;
    if (view->ownSettings) {
        const auto& values = view->ownSettings->values;
        for (auto value = values.begin(); value != values.end(); ++value)
            stored.insert(value.key(), settingToJson(value.value()));
    }
    session.workspace().close(view->number);
    return QJsonObject{{u"settings"_s, stored}};
}

Answer ViewMethods::resize(Params& params) {
    const OpenView* view = viewOf(params, session.workspace());
    const QSize size = params.size(u"size"_s);
    if (view == nullptr || params.error())
        return {};
    if (!session.workspace().resize(*view, size))
        return RpcError{RpcCode::Refused,
                        u"view %1 stands in a dock, which gives it its size"_s.arg(view->number)};
    return {};
}

Answer ViewMethods::state(Params& params) {
    const OpenView* view = viewOf(params, session.workspace());
    return view != nullptr ? Answer(viewReport(*view)) : Answer();
}

Answer ViewMethods::explain(Params& params) {
    const OpenView* view = viewOf(params, session.workspace());
    const HeadlineKey key = headlineFrom(params);
    if (view == nullptr || params.error())
        return {};
    const auto* explainer = dynamic_cast<const HeadlineExplainer*>(view->view);
    if (explainer == nullptr)
        return RpcError{RpcCode::Refused, u"the news module does not explain its lists"_s};
    QJsonArray lists;
    for (const HeadlineStanding& standing : explainer->explain(key))
        lists.append(standingReport(standing));
    return QJsonObject{{u"lists"_s, lists}};
}

Answer ViewMethods::command(Params& params) {
    const OpenView* view = viewOf(params, session.workspace());
    const auto id = static_cast<int>(params.number(u"id"_s));
    if (view == nullptr || params.error())
        return {};
    const int number = view->number;
    if (!view->view->onCommand(id))
        return RpcError{RpcCode::NotFound, u"view %1 has no command %2"_s.arg(number).arg(id)};
    return {};
}

}  // namespace wirepane
