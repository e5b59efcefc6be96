// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QKeyEvent;
class TRVNewsCtrlView;

// Brings the keys of a view before the view, whichever of its controls they are meant for. Keys of other
// windows, such as dialogs, menus and drop-downs, are not the view's.
class KeyRouter : public QObject {
    Q_OBJECT

public:
    // The view owns the router.
    explicit KeyRouter(TRVNewsCtrlView& newsView);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    TRVNewsCtrlView& view;
};
