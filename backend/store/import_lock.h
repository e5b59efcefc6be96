// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace wirepane {

// Says that an import is under way in a store, to whoever would clear up what a killed one has left or wants
// to import as well. It is a lock of the system's on an empty file beside the store: one that is killed loses
// it.
class ImportLock {
public:
    explicit ImportLock(const QString& storePath);
    ~ImportLock() { release(); }
    ImportLock(const ImportLock&) = delete;
    ImportLock& operator=(const ImportLock&) = delete;

    enum class Taken {
        Yes,
        Busy,  // another import has it
        No,    // nothing can be made there
    };

    // Does not wait.
    Taken take();
    bool isHeld() const { return file >= 0; }
    void release();

private:
    const QByteArray path;
    int file = -1;
};

}  // namespace wirepane
