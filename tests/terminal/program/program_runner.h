// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTemporaryDir>

namespace wirepane::test {

// The path of the program under test.
QString programFile();

struct ProgramOutcome {
    int status = -1;  // -1: it crashed or did not end in time
    QString out;
    QString err;
};

// Runs the program to its end, without a display. Standard output goes to the file `output`, where one is
// named.
ProgramOutcome runProgram(const QStringList& arguments, const QString& output = {});

// A folder of its own for a test's files.
class Scratch {
public:
    QString path(const QString& name) const { return folder.filePath(name); }
    // Writes a file and returns its path.
    QString write(const QString& name, const QByteArray& content) const;

private:
    QTemporaryDir folder;
};

// One ninjs item. `when` is an ISO moment.
QByteArray ninjsItem(const QString& uri, const QString& headline, const QString& body, const QString& when);

}  // namespace wirepane::test
