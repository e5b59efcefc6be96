// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace wirepane {

// What a user saw in one view from a moment on.
struct DiaryScreen {
    std::int64_t moment = 0;  // milliseconds since 1970, UTC
    QString user;
    QString machine;
    QString session;  // of the terminal
    int view = 0;
    QString title;
    QStringList columns;
    std::vector<QStringList> rows;  // cells, as they were drawn, from the top
    int focus = -1;                 // of the rows
    std::vector<QStringList>
        stories;  // title and text of each that is to be seen: the pane's, then the windows'

    bool operator==(const DiaryScreen&) const = default;
};

// What a diary keeps of rows and stories it keeps once: its screens name them by number. This puts screens
// together again from the entries, as they come.
class DiaryScreens {
public:
    // The screen that the entry is; nothing: it is none.
    std::optional<DiaryScreen> take(const QJsonObject& entry);

private:
    struct Session {
        std::map<std::int64_t, QStringList> rows;
        std::map<std::int64_t, QStringList> stories;
    };
    std::map<QString, Session> sessions;
};

// The names of what entries of screens have.
namespace diary_names {
inline constexpr QLatin1StringView session{"session"};
inline constexpr QLatin1StringView id{"id"};  // of a row or story, within the session
inline constexpr QLatin1StringView view{"view"};
inline constexpr QLatin1StringView title{"title"};
inline constexpr QLatin1StringView text{"text"};
inline constexpr QLatin1StringView cells{"cells"};
inline constexpr QLatin1StringView columns{"columns"};
inline constexpr QLatin1StringView rows{"rows"};
inline constexpr QLatin1StringView focus{"focus"};
inline constexpr QLatin1StringView stories{"stories"};
inline constexpr QLatin1StringView service{"service"};
inline constexpr QLatin1StringView time{"time"};
inline constexpr QLatin1StringView sequence{"sequence"};
inline constexpr QLatin1StringView received{"received"};
inline constexpr QLatin1StringView headlines{"headlines"};
}  // namespace diary_names

}  // namespace wirepane
