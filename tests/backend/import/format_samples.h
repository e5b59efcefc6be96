// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>

#include <vector>

namespace wirepane {

// A small sound source of a format. What holds for every format is tried on these: each format has one at
// least.
struct FormatSample {
    QStringView format;  // the name in the table of formats
    QByteArray source;   // of two items
    // What it gives, an item on each line: "identity|title|story" of news, "market/code|name" of symbols.
    QString items;
    bool isOfLines = false;  // a record is a line: nobody can know of lines that are missing as a whole
};

const std::vector<FormatSample>& formatSamples();

}  // namespace wirepane
