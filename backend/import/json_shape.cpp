// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/json_shape.h"

#include "backend/import/json_list.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QJsonParseError>

#include <optional>

namespace wirepane {

namespace {

std::optional<QJsonDocument> parsed(QByteArrayView text) {
    QJsonParseError problem;
    auto document = QJsonDocument::fromJson(QByteArray::fromRawData(text.data(), text.size()), &problem);
    return problem.error == QJsonParseError::NoError ? std::optional(document) : std::nullopt;
}

// Whether what opens the text goes on as JSON does: "{" stands before much else, and so does "[".
bool goesOnWith(QByteArrayView text, QByteArrayView characters) {
    const QByteArrayView rest = text.sliced(1).trimmed();
    return rest.isEmpty() || characters.contains(rest.front());
}

// A record that goes over several lines does not end on its first, and its second starts with a name, not
// with "{".
JsonShape shapeOfObject(QByteArrayView text) {
    const qsizetype lineEnd = text.indexOf('\n');
    if (lineEnd < 0 || parsed(text.first(lineEnd).trimmed()))
        return JsonShape::Lines;
    return text.sliced(lineEnd).trimmed().startsWith('{') ? JsonShape::Lines : JsonShape::Document;
}

}  // namespace

JsonShape jsonShape(const SourceHead& head) {
    const QByteArrayView text = head.text();
    if (text.startsWith('[') && goesOnWith(text, "{]"))
        return JsonShape::List;
    return text.startsWith('{') && goesOnWith(text, "\"}") ? shapeOfObject(text) : JsonShape::None;
}

std::vector<QJsonObject> recordsInHead(const SourceHead& head) {
    std::vector<QJsonObject> records;
    const auto add = [&](QByteArrayView text) {
        const auto document = parsed(text);
        if (document && document->isObject())
            records.push_back(document->object());
    };
    const JsonShape shape = jsonShape(head);
    if (shape == JsonShape::Document) {
        add(head.text());
    } else if (shape == JsonShape::List) {
        QBuffer text;
        text.setData(head.text().toByteArray());
        text.open(QIODevice::ReadOnly);
        JsonList list(text);
        while (const auto entry = list.next())
            add(*entry);
    } else if (shape == JsonShape::Lines) {
        qsizetype start = 0;
        while (start < head.text().size()) {
            const qsizetype found = head.text().indexOf('\n', start);
            const qsizetype end = found < 0 ? head.text().size() : found;
            add(head.text().sliced(start, end - start));
            start = end + 1;
        }
    }
    return records;
}

}  // namespace wirepane
