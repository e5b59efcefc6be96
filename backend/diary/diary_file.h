// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/diary/diary_head.h"
#include "backend/result.h"

#include <QFile>
#include <QString>

#include <functional>

namespace wirepane {

// Where the diary of a store stands.
QString diaryFileOf(const QString& storePath);

// The file of a diary while one writes to it. Several terminals may write to one file, in turns; each takes
// it up where the last one ended.
class DiaryFile {
public:
    explicit DiaryFile(QString path) : name(std::move(path)) {}

    // Holds the file for the writer alone while `writeOn` is called, which is given where the diary ends. It
    // is made where there is none, for its owner alone. A last line without an end, which a program that was
    // killed has left and nobody was told of, goes before.
    Done inTurn(const std::function<Done(const DiaryHead& head)>& writeOn);
    // Within a turn: writes whole lines, behind which the diary ends so, and returns when the medium has
    // them.
    Done append(const QByteArray& lines, const DiaryHead& head);

    const QString& path() const { return name; }

private:
    Done open();
    Result<DiaryHead> headOfFile();

    const QString name;
    QFile file;
    DiaryHead last;      // where the diary ended when it was
    qint64 length = -1;  // bytes long
};

}  // namespace wirepane
