// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/diary/diary_head.h"

#include <QByteArray>
#include <QJsonObject>

#include <optional>

namespace wirepane {

// The names of what every entry has.
namespace diary_names {
inline constexpr QLatin1StringView number{"n"};   // from 1 on
inline constexpr QLatin1StringView moment{"at"};  // milliseconds since 1970, UTC
inline constexpr QLatin1StringView kind{"kind"};  // "screen", "story", ...
inline constexpr QLatin1StringView user{"user"};
inline constexpr QLatin1StringView machine{"machine"};
}  // namespace diary_names

// A line of the diary: its seal, a blank, the entry as JSON. The seal is the SHA-256 of the seal of the line
// before and the JSON, so that no byte of any line can change without the lines behind it.

// The next line, with its end, for an entry without its number; `head` is that of the line then.
QByteArray nextDiaryLine(DiaryHead& head, QJsonObject entry);

// What a line without its end says; nothing where it is not of that form. Whether it follows is not looked
// at.
struct DiaryLine {
    QByteArrayView seal;
    QByteArrayView json;
};
std::optional<DiaryLine> diaryLine(QByteArrayView line);

// The seal of an entry behind another.
QByteArray sealOf(QByteArrayView before, QByteArrayView json);

}  // namespace wirepane
