// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/controls/s_edit.h"

#include <QStringList>

#include <functional>

class QAction;
class QMenu;
class QRect;

namespace wirepane {

// Shows a short tip in the middle of a rectangle of the screen.
class ShortTips {
public:
    virtual ~ShortTips() = default;
    virtual void showTip(const QRect& rectangle, const QString& text) = 0;
};

}  // namespace wirepane

// The line in which a quick search is typed. It takes no blanks, typed or composed, and nothing pasted with
// Shift+Insert, and tells the user why. Other ways of pasting are open. One for queries takes all of it.
class SearchEdit2 : public SEdit {
    Q_OBJECT

public:
    explicit SearchEdit2(QWidget* parent = nullptr);

    void setTakesQueries(bool takes) { takesQueries = takes; }
    // From here on it drops down texts, in this order; the one that is picked is typed and Enter pressed.
    void offerTexts(std::function<QStringList()> texts);
    // Puts more into what drops down, behind the texts.
    void offerMore(std::function<void(QMenu&)> fill);
    // What they are called.
    void nameOffer(const QString& name);
    // Drops all of it down; nothing without any.
    void dropDown();
    // Who shows the tips; not owned, null: nobody.
    void setOwner(wirepane::ShortTips* view) { owner = view; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    void refuse(QLatin1StringView key);
    void showArrow();

    wirepane::ShortTips* owner = nullptr;
    bool takesQueries = false;
    std::function<QStringList()> offered;
    std::function<void(QMenu&)> fillMore;
    QAction* arrow = nullptr;  // null: it offers nothing
};
