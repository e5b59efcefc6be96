// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/mapped_row.h"

#include "backend/import/import_errors.h"
#include "backend/import/item_rules.h"
#include "backend/import/plain_text.h"
#include "backend/import/wire_form.h"

#include <QRegularExpression>

namespace wirepane {

using namespace Qt::StringLiterals;

namespace {

QString firstValue(const MappedRow& row, const QStringList& columns) {
    for (const QString& column : columns) {
        if (QString value = row.value(column); !value.isEmpty())
            return value;
    }
    return {};
}

QString valueOf(const MappedRow& row, const MappedValue& mapped) {
    const QString value = firstValue(row, mapped.columns);
    return value.isEmpty() ? mapped.otherwise : mapped.names.value(value, value);
}

// The lines of a value as the paragraphs that the mapping says they are.
QString withParagraphs(QString text, MappedLines lines) {
    static const QRegularExpression anyLine(u"\\R"_s);
    static const QRegularExpression numberedLine(
        u"\\R(?=[ \t]*(?:\\d{1,3}[.．)、](?!\\d)|[(（](?:\\d{1,3}|[一二三四五六七八九十]{1,3})[)）]|[一二三四五六七八九十]{1,3}、))"_s);
    if (lines == MappedLines::Wrapped)
        return text;
    return text.replace(lines == MappedLines::Kept ? anyLine : numberedLine, u"\n\n"_s);
}

QString storyOf(const MappedRow& row, const Mapping& mapping) {
    QStringList parts;
    for (const QString& column : mapping.story) {
        if (const QString value = row.value(column); !value.isEmpty())
            parts += withParagraphs(textOfUnknownForm(value), mapping.lines);
    }
    return wireForm(parts.join(u"\n\n"_s));
}

// A subject broken into lines is joined as any text is.
QString titleOf(const MappedRow& row, const Mapping& mapping, const QString& story) {
    const QString text = wireForm(textOfUnknownForm(firstValue(row, mapping.title)));
    const QString title = titleLine(QString(text).replace("@@@@"_L1, " "_L1));
    return title.isEmpty() ? titleFromStory(story) : title;
}

// Empty when a column is missing from the row, which would make different items one.
QString identityOf(const MappedRow& row, const Mapping& mapping) {
    QStringList parts;
    bool anything = false;
    for (const QString& column : mapping.identity) {
        const QString value = cleanLine(row.value(column));
        anything = anything || !value.isEmpty();
        parts += value;
    }
    return anything ? mapping.identityPrefix + parts.join(u'|') : QString();
}

std::vector<CSymbolInfo> symbolsOf(const MappedRow& row, const MappedSymbols& mapped) {
    std::vector<CSymbolInfo> symbols;
    for (const QString& column : mapped.columns) {
        const QString value = row.value(column);
        const QStringList codes =
            mapped.separator.isEmpty() ? QStringList{value} : value.split(mapped.separator);
        for (const QString& code : codes)
            addSymbol(symbols, {mapped.market, cleanLine(code)});
    }
    return symbols;
}

Result<unsigned char> serviceOf(const MappedRow& row, const MappedValue& mapped, unsigned char otherwise) {
    const QString text = valueOf(row, mapped);
    if (text.isEmpty())
        return otherwise;
    bool isNumber = false;
    const uint number = text.toUInt(&isNumber);
    if (!isNumber || number < 1 || number > 255)
        return makeError<import_errors::rowWithoutService>(titleLine(text.left(60)));
    return static_cast<unsigned char>(number);
}

}  // namespace

Result<NewsItem> mappedItem(const Mapping& mapping, const MappedRow& row, unsigned char service) {
    NewsItem item;
    item.identity = identityOf(row, mapping);
    if (item.identity.isEmpty())
        return makeError<import_errors::rowWithoutIdentity>(mapping.identity.join(u", "_s));
    if (const auto fault = faultOfIdentity(item.identity, makeError<import_errors::identityOfRow>()))
        return *fault;
    const Result<unsigned char> owner = serviceOf(row, mapping.service, service);
    if (!owner)
        return owner.error();
    item.service = owner.value();
    const QString story = storyOf(row, mapping);
    item.story = story;
    item.title = titleOf(row, mapping, story);
    if (item.title.isEmpty())
        return makeError<import_errors::rowWithoutTitle>();
    const auto time =
        mapping.time.read(firstValue(row, mapping.time.dateColumns), row.value(mapping.time.clockColumn));
    if (!time)
        return time.error();
    item.time = time.value();
    item.version = versionOf({}, item.time);
    item.category = titleLine(valueOf(row, mapping.category));
    item.related = symbolsOf(row, mapping.symbols);
    return item;
}

}  // namespace wirepane
