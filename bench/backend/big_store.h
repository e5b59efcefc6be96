// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDate>
#include <QString>
#include <QTemporaryDir>

namespace wirepane::bench {

inline constexpr int serviceCount = 8;
inline const QDate newsDay(2026, 3, 2);

// A store of headlines without stories, spread over one day and the services 1 to 8. Made in one statement,
// past the writer: the same rows in a fraction of the time.
class BigStore {
public:
    explicit BigStore(int headlines);

    // The store of that size, made once in a run.
    static const BigStore& of(int headlines);

    const QString& path() const { return file; }

private:
    QTemporaryDir folder;
    QString file;
};

}  // namespace wirepane::bench
