// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QStringList>

#include <optional>

namespace wirepane {

// Texts by a key, each in every language, as a file has them: "#" begins a note, the first line names the
// columns, the key stands before the languages in the order of Languages::codes().
class TextTable {
public:
    // A file that cannot be read has no texts.
    explicit TextTable(const QString& fileName);

    // The text in the language in force.
    std::optional<QString> find(const QString& key) const;

private:
    QHash<QString, QStringList> rows;
};

}  // namespace wirepane
