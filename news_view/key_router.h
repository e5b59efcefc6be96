// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

class QKeyEvent;
class QWidget;

namespace wirepane {

// Brings the keys of a window's part before their receivers, whichever of its controls they are meant for.
// Keys of other windows, such as dialogs, menus and drop-downs, are not its own.
class KeyRouter : public QObject {
    Q_OBJECT

public:
    // Takes a key; true: its receiver does not get it.
    using Taker = std::function<bool(const QKeyEvent&)>;

    // `part` outlives the router.
    KeyRouter(const QWidget& part, Taker taker);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const QWidget& part;
    Taker take;
};

}  // namespace wirepane
