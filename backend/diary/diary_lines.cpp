// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/diary/diary_lines.h"

#include <QCryptographicHash>
#include <QJsonDocument>

namespace wirepane {

namespace {
constexpr qsizetype digits = 64;
}

QByteArray sealOf(QByteArrayView before, QByteArrayView json) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(before);
    hash.addData(json);
    return hash.result().toHex();
}

QByteArray nextDiaryLine(DiaryHead& head, QJsonObject entry) {
    entry.insert(diary_names::number, static_cast<qint64>(++head.count));
    const QByteArray json = QJsonDocument(entry).toJson(QJsonDocument::Compact);
    head.seal = sealOf(head.seal, json);
    return head.seal + ' ' + json + '\n';
}

std::optional<DiaryLine> diaryLine(QByteArrayView line) {
    if (line.size() <= digits || line[digits] != ' ')
        return std::nullopt;
    return DiaryLine{line.first(digits), line.sliced(digits + 1)};
}

}  // namespace wirepane
