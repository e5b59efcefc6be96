// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/network/answer_reading.h"

#include "backend/import/built_in_mappings.h"
#include "backend/import/import_errors.h"
#include "backend/import/mapped_table.h"
#include "backend/import/source_formats.h"
#include "backend/import/source_head.h"
#include "backend/import/text_encoding.h"
#include "backend/import/wire_form.h"
#include "backend/network/http_values.h"
#include "backend/network/network_errors.h"

#include <QBuffer>
#include <QDateTime>
#include <QFileInfo>
#include <QHash>
#include <QStringDecoder>
#include <QUrlQuery>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr std::int64_t secondsOfDay = 86'400;
constexpr std::int64_t apart = 300;  // seconds between two clocks that count as one

// Without what may stand before the first element of a page: a byte order mark, an XML declaration, comments.
QByteArrayView withoutProlog(QByteArrayView body) {
    body = withoutByteOrderMark(body).trimmed();
    for (const auto& [start, end] : {std::pair("<?", "?>"), std::pair("<!--", "-->")}) {
        const qsizetype behind = body.startsWith(start) ? body.indexOf(end) + qsizetype(qstrlen(end)) : 0;
        body = body.sliced(std::clamp<qsizetype>(behind, 0, body.size())).trimmed();
    }
    return body;
}

// A page for people instead of news; its title, which may be empty.
std::optional<QString> pageTitle(QByteArrayView body) {
    constexpr qsizetype looked = 16384;
    constexpr qsizetype shown = 80;
    const QByteArray head = body.first(std::min(body.size(), looked)).toByteArray();
    const QByteArray start = withoutProlog(head).toByteArray().left(16).toLower();
    if (!start.startsWith("<!doctype html") && !start.startsWith("<html"))
        return std::nullopt;
    const QByteArray lower = head.toLower();
    const qsizetype from = lower.indexOf('>', lower.indexOf("<title"));
    const qsizetype to = lower.indexOf("</title", from);
    if (!lower.contains("<title") || from < 0 || to < 0)
        return QString();
    return titleLine(QString::fromUtf8(head.mid(from + 1, to - from - 1))).left(shown);
}

// A text in an encoding that only the head of the answer names.
QByteArray asUtf8(const HttpAnswer& answer) {
    const QByteArray charset = charsetOf(answer.contentType);
    if (charset.isEmpty() || charset == "utf-8" || answer.body.left(200).contains("encoding="))
        return answer.body;
    if (QStringDecoder strict(QStringDecoder::Utf8);
        !QString(strict(answer.body)).isNull() && !strict.hasError())
        return answer.body;
    QStringDecoder decoder(charset.constData());
    if (!decoder.isValid())
        return answer.body;
    const QString text = decoder(answer.body);
    return decoder.hasError() ? answer.body : text.toUtf8();
}

bool isOfKind(NetworkKind kind, QStringView format) {
    switch (kind) {
        case NetworkKind::Feed:
            return format == u"RSS" || format == u"Atom";
        case NetworkKind::Ninjs:
            return format == u"ninjs";
        case NetworkKind::Newsml:
            return format == u"NewsML-G2";
        case NetworkKind::EventStream:
        case NetworkKind::WebSocket:
            return format == u"ninjs";
        default:
            return format != u"CSV";  // without a mapping a table holds no news
    }
}

Done readBody(QIODevice& body, const NetworkSource& source, const ItemVisitor& visit) {
    ReadOptions options;
    options.service = source.service;
    options.market = source.market;
    options.sourceName = source.title;
    if (source.kind == NetworkKind::Table ||
        (source.kind == NetworkKind::Auto && !source.mapping.isEmpty())) {
        const auto mapping = mappingNamed(source.mapping);
        if (!mapping)
            return makeError<network_errors::mappingMissing>(source.mapping, mapping.error());
        return readMappedTable(body, mapping.value(), options, visit);
    }
    const auto format = recognisedFormat(SourceHead(body.peek(recognisedFrom)));
    if (!format)
        return format.error();
    if (!isOfKind(source.kind, format.value()->name))
        return makeError<network_errors::otherFormat>(format.value()->name);
    return format.value()->read(body, options, visit);
}

void applyCategory(NewsItem& item, const NetworkSource& source) {
    const bool rules = source.categoryRule == CategoryRule::Always ||
                       (source.categoryRule == CategoryRule::Otherwise && item.category.isEmpty());
    if (rules)
        item.category = source.category;
}

// A link that several items of a list have names the list, not them.
void dropSharedLinks(std::vector<SourceItem>& items) {
    QHash<QString, int> uses;
    const auto eachNews = [&items](const auto& visit) {
        for (SourceItem& item : items) {
            if (item.content && std::holds_alternative<NewsItem>(item.content.value()))
                visit(std::get<NewsItem>(item.content.value()));
        }
    };
    eachNews([&uses](const NewsItem& news) { ++uses[news.link]; });
    eachNews([&uses](NewsItem& news) {
        if (uses.value(news.link) > 1)
            news.link.clear();
    });
}

// Adds the items of a body that are not too old.
Done appendItems(const NetworkSource& source, QByteArray content, std::int64_t now, SourceAnswer& read) {
    QBuffer body(&content);
    body.open(QIODevice::ReadOnly);
    const std::int64_t oldest =
        source.greatestAge == 0 ? firstNewsTime : now - source.greatestAge * secondsOfDay;
    return readBody(body, source, [&](SourceItem&& item) {
        NewsItem* const news = item.content ? std::get_if<NewsItem>(&item.content.value()) : nullptr;
        if (news != nullptr && news->time < oldest) {
            ++read.left;
            return true;
        }
        if (news != nullptr) {
            applyCategory(*news, source);
            news->link = canonicalLink(news->link);
        }
        read.items.push_back(std::move(item));
        return true;
    });
}

void readItems(const NetworkSource& source, const HttpAnswer& answer, std::int64_t now, SourceAnswer& read) {
    const Done done = appendItems(source, asUtf8(answer), now, read);
    if (!done) {
        read.fault = done.error();
        read.items.clear();
        return;
    }
    dropSharedLinks(read.items);
    read.isRead = true;
    // What is not sound is asked for again, as it may have been mended.
    const auto isTaken = [](const SourceItem& item) { return bool(item.content); };
    if (std::all_of(read.items.begin(), read.items.end(), isTaken))
        read.validators = answer.validators;
    if (!read.items.empty() && read.left == 0 && std::none_of(read.items.begin(), read.items.end(), isTaken))
        read.fault =
            makeError<network_errors::nothingTaken>(read.items.size(), read.items.front().content.error());
}

}  // namespace

void readRecords(const NetworkSource& source, const QByteArray& records, std::int64_t now,
                 SourceAnswer& read) {
    const Done done = appendItems(source, records, now, read);
    read.isRead = read.isRead && done;
    if (!done)
        read.fault = done.error();
}

SourceAnswer readAnswer(const NetworkSource& source, const HttpAnswer& answer, std::int64_t now) {
    SourceAnswer read;
    read.fault = answer.fault;
    read.isAlive = answer.isAlive;
    read.wish = answer.wish;
    read.milliseconds = answer.milliseconds;
    if (answer.fault)
        return read;
    const QString host = source.address.isLocalFile() ? source.address.fileName() : source.address.host();
    if (answer.isUnchanged) {
        read.isRead = read.isUnchanged = true;
        read.validators = answer.validators;
    } else if (const auto title = pageTitle(answer.body)) {
        const QString other = answer.address.host();
        read.fault = other.isEmpty() || other == source.address.host()
                         ? makeError<network_errors::pageInstead>(host, *title)
                         : makeError<network_errors::portalInstead>(host, other);
    } else if (answer.body.trimmed().isEmpty()) {
        read.fault = makeError<network_errors::emptyAnswer>(host);
    } else {
        readItems(source, answer, now, read);
    }
    if (!read.fault && answer.date && std::abs(*answer.date - now) > apart)
        read.fault = makeError<network_errors::clockOff>(host, std::abs(*answer.date - now) / 60);
    return read;
}

HttpAnswer answerOfFile(const QString& path, const Validators& known, qint64 largest) {
    HttpAnswer answer;
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) {
        answer.fault = info.exists() ? makeError<import_errors::fileNotOpened>(file.errorString())
                                     : makeError<import_errors::fileMissing>();
        return answer;
    }
    answer.isAlive = true;
    const auto changed = info.lastModified().toMSecsSinceEpoch();
    answer.validators.etag = QByteArray::number(changed) + '-' + QByteArray::number(info.size());
    answer.isUnchanged = answer.validators == known;
    answer.body = answer.isUnchanged ? QByteArray() : file.read(largest + 1);
    if (answer.body.size() > largest)
        answer.fault = makeError<network_errors::bodyTooLarge>(largest >> 20);
    return answer;
}

QString canonicalLink(const QString& link) {
    QUrl address(link, QUrl::StrictMode);
    const bool isOfWeb = address.scheme() == "http"_L1 || address.scheme() == "https"_L1;
    if (!address.isValid() || !isOfWeb || address.host().isEmpty())
        return {};
    address.setScheme(u"https"_s);
    QUrlQuery query(address);
    for (const auto& [name, value] : query.queryItems()) {
        if (name.startsWith("utm_"_L1) || name == "fbclid"_L1 || name == "gclid"_L1)
            query.removeAllQueryItems(name);
    }
    address.setQuery(query.isEmpty() ? QString() : query.query(QUrl::FullyEncoded));
    return address.toString(QUrl::FullyEncoded | QUrl::RemoveFragment | QUrl::RemoveUserInfo |
                            QUrl::StripTrailingSlash);
}

}  // namespace wirepane
