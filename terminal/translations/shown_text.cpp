// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/translations/shown_text.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace wirepane {

QString shownText(const Error& error) {
    return shownText(errorValue(error));
}

QString valueLine(const Error& error) {
    return QString::fromUtf8(QJsonDocument(errorValue(error)).toJson(QJsonDocument::Compact));
}

QJsonValue valueFrom(const QString& line) {
    const QJsonDocument document = QJsonDocument::fromJson(line.toUtf8());
    return document.object().value("code"_L1).isString() ? QJsonValue(document.object()) : QJsonValue(line);
}

QString shownText(const QJsonValue& value) {
    if (!value.isObject())
        return value.toString();
    QStringList arguments;
    for (const auto& argument : value["arguments"_L1].toArray())
        arguments += shownText(QJsonValue(argument));
    return filledIn(qtTrId(value["code"_L1].toString().toUtf8().constData()), arguments);
}

}  // namespace wirepane
