// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>

namespace wirepane {

// A modal dialog for the time of a function. While it is run its parent may go, and the dialog with it;
// otherwise it goes with this.
template <class Dialog>
class HeapDialog {
public:
    explicit HeapDialog(Dialog* made) : dialog(made) {}
    ~HeapDialog() { delete dialog; }
    HeapDialog(const HeapDialog&) = delete;
    HeapDialog& operator=(const HeapDialog&) = delete;

    // Deletes it before its time: as long as it is there it may count as the active window.
    void destroy() { delete dialog; }
    // False when it has gone.
    explicit operator bool() const { return !dialog.isNull(); }
    Dialog* operator->() const { return dialog; }
    Dialog* get() const { return dialog; }

private:
    QPointer<Dialog> dialog;
};

}  // namespace wirepane
