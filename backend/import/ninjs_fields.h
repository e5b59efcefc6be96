// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/result.h"

#include <QByteArrayView>
#include <QJsonObject>
#include <QJsonValue>
#include <QMap>
#include <QString>

#include <vector>

namespace wirepane {

// Whether a JSON object has a field by which a ninjs record is told from other JSON.
bool hasNinjsField(const QJsonObject& object);

// The fields of one ninjs record under the same names whatever its version: names are in lower case (version
// 3 writes "versionCreated"), and lists are found by the singular name of version 1.
class NinjsFields {
public:
    // Reads and checks a record: JSON, an object, texts where texts must be, lists where lists are read. The
    // error names the field.
    static Result<NinjsFields> read(QByteArrayView record);

    // The text of a field; empty where it is missing.
    QString text(QLatin1StringView name) const;

    // Whether a field says true; false where it is missing or says anything else.
    bool flag(QLatin1StringView name) const;

    // The objects of a list field, their names in lower case ("subject" also finds "subjects").
    std::vector<NinjsFields> list(QLatin1StringView name) const;

    // A text with what the record says about its form.
    struct Value {
        QString text;
        QString role;  // "text", "xhtml", "main", ...
        QString contentType;
    };
    // Every non-empty text of a family in the order of the record: "body" gives body_text, body_xhtml and the
    // entries of bodies; "description" and "headline" alike.
    std::vector<Value> family(QLatin1StringView name) const;

private:
    explicit NinjsFields(const QJsonObject& object);

    QMap<QString, QJsonValue> fields;
};

}  // namespace wirepane
