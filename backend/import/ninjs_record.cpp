// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/ninjs_record.h"

#include "backend/import/import_errors.h"
#include "backend/import/item_rules.h"
#include "backend/import/markets.h"
#include "backend/import/news_time.h"
#include "backend/import/ninjs_fields.h"
#include "backend/import/plain_text.h"
#include "backend/import/wire_form.h"

#include <algorithm>
#include <array>
#include <optional>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

using Value = NinjsFields::Value;

// How well a value suits as text: the lower the better.
enum class Form { Text, Markup, Unknown };

Form formOf(const Value& value) {
    const QString says = (value.contentType.isEmpty() ? value.role : value.contentType).toLower();
    if (says.contains("html"_L1) || says.contains("xml"_L1) || says.contains("nitf"_L1))
        return Form::Markup;
    const bool text = says.startsWith("text/plain"_L1) || says == "text"_L1 || says.endsWith("_text"_L1);
    return text ? Form::Text : Form::Unknown;
}

QString plain(const Value& value) {
    switch (formOf(value)) {
        case Form::Text:
            return value.text;
        case Form::Markup:
            return plainText(value.text);
        default:
            return textOfUnknownForm(value.text);
    }
}

// In wire form, from the value that comes closest to text; empty when there is none.
QString bestText(const std::vector<Value>& values) {
    const auto best =
        std::min_element(values.begin(), values.end(),
                         [](const Value& one, const Value& other) { return formOf(one) < formOf(other); });
    return best == values.end() ? QString() : wireForm(plain(*best));
}

// The value of the main role, else the first, as one line.
QString mainLine(const std::vector<Value>& values) {
    if (values.empty())
        return {};
    const auto main = std::find_if(values.begin(), values.end(),
                                   [](const Value& value) { return value.role == "main"_L1; });
    return titleLine(plain(main == values.end() ? values.front() : *main));
}

struct Times {
    std::optional<std::int64_t> time;
    QLatin1StringView notUnderstood;  // the first field that holds something else
    QString holds;
};

Times timesOf(const NinjsFields& fields) {
    constexpr std::array names{QLatin1StringView("versioncreated"), QLatin1StringView("firstcreated"),
                               QLatin1StringView("contentcreated")};
    Times times;
    for (const QLatin1StringView name : names) {
        const QString text = fields.text(name);
        if (text.isEmpty())
            continue;
        times.time = newsTime(text);
        if (times.time)
            break;
        if (times.notUnderstood.isEmpty()) {
            times.notUnderstood = name;
            times.holds = titleLine(text.left(60));
        }
    }
    return times;
}

Result<std::int64_t> timeOf(const NinjsFields& fields) {
    const Times times = timesOf(fields);
    if (times.time)
        return *times.time;
    if (!times.notUnderstood.isEmpty())
        return makeError<import_errors::recordTimeUnread>(times.notUnderstood, times.holds);
    return makeError<import_errors::recordWithoutTime>();
}

// Why the record may not be shown, or nothing.
std::optional<Error> heldBack(const NinjsFields& fields) {
    if (const auto reason = notForPublication(fields.text("pubstatus"_L1), "pubstatus"_L1))
        return reason;
    for (const QLatin1StringView name : {"embargoed"_L1, "embargoeduntil"_L1}) {
        const QString until = fields.text(name);
        const auto reason = until.isEmpty() ? std::nullopt : underEmbargo(until, name);
        if (reason)
            return reason;
    }
    return std::nullopt;
}

std::vector<CSymbolInfo> symbolsOf(const NinjsFields& fields) {
    std::vector<CSymbolInfo> symbols;
    for (const NinjsFields& organisation : fields.list("organisation"_L1)) {
        for (const NinjsFields& symbol : organisation.list("symbols"_L1)) {
            addSymbol(symbols,
                      {marketOfExchange(symbol.text("exchange"_L1)), cleanLine(symbol.text("ticker"_L1))});
        }
    }
    return symbols;
}

QString categoryOf(const NinjsFields& fields) {
    for (const NinjsFields& subject : fields.list("subject"_L1)) {
        const QString name = titleLine(subject.text("name"_L1));
        if (!name.isEmpty())
            return name;
    }
    return {};
}

QString firstOf(std::initializer_list<QString> texts) {
    const auto* found =
        std::find_if(texts.begin(), texts.end(), [](const QString& text) { return !text.isEmpty(); });
    return found == texts.end() ? QString() : *found;
}

}  // namespace

Result<NewsItem> ninjsItem(QByteArrayView record, unsigned char service) {
    const Result<NinjsFields> read = NinjsFields::read(record);
    if (!read)
        return read.error();
    const NinjsFields& fields = read.value();

    NewsItem item;
    item.service = service;
    item.identity = cleanLine(fields.text("uri"_L1));
    if (item.identity.isEmpty())
        return makeError<import_errors::recordWithoutUri>();
    if (const auto fault = faultOfIdentity(item.identity, makeError<import_errors::uriOfRecord>()))
        return *fault;
    if (const auto reason = heldBack(fields))
        return *reason;

    const QString body = bestText(fields.family("body"_L1));
    const QString description = bestText(fields.family("description"_L1));
    item.title = firstOf({titleLine(fields.text("headline"_L1)), mainLine(fields.family("headline"_L1)),
                          titleLine(fields.text("title"_L1))});
    if (isWithdrawal(fields.text("pubstatus"_L1)))
        item.withdrawn = titleLine(fields.text("ednote"_L1));
    const QString type = fields.text("type"_L1);
    if (item.title.isEmpty() && !item.withdrawn && (type.isEmpty() || type == "text"_L1))
        item.title = firstOf(
            {titleFromStory(body), titleFromStory(description), titleLine(fields.text("slugline"_L1))});
    if (item.title.isEmpty() && !item.withdrawn)
        return makeError<import_errors::recordWithoutTitle>();

    const Result<std::int64_t> time = timeOf(fields);
    if (!time)
        return time.error();
    item.time = time.value();
    item.version = versionOf(fields.text("version"_L1), item.time);
    item.story = firstOf({body, description});
    if (item.story->isEmpty() && fields.flag("storyfollows"_L1))
        item.story.reset();
    item.category = categoryOf(fields);
    item.related = symbolsOf(fields);
    return item;
}

}  // namespace wirepane
