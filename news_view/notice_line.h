// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/controls/s_button.h"
#include "news_view/list_notices.h"

#include <QColor>
#include <QLabel>

#include <vector>

namespace wirepane {

// The colour of what comes late: amber that reads well on a background.
QColor lateColour(const QColor& background);

// A notice that can be acted on: it looks like the text beside it, underlined, and is pressed by a click, by
// Enter and by Space.
class NoticeButton : public SButton {
    Q_OBJECT

public:
    explicit NoticeButton(QWidget* parent);

    // `whole` is what it says and is called by; `shown` what of it has room.
    void setNotice(const QString& whole, const QString& shown);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString shownText;
};

// The line of notices in the control row. Those without an action it draws itself; the others are the
// NoticeButtons of its parent that have the numbers of their commands.
class NoticeLine : public QLabel {
    Q_OBJECT

public:
    explicit NoticeLine(QWidget* parent);

    // Texts, and those that tell of what comes late.
    void setColours(const QColor& plain, const QColor& late);
    // Shows the notices in an area of the parent, as far as they have room there. The keyboard goes to
    // `keyboardNext` (null: nowhere) when the notice that has it goes.
    void showNotices(const ListNotices& notices, const QRect& area, QWidget* keyboardNext);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::vector<PlacedNotice> placed;
    QColor plainColour;
    QColor colourOfLate;
};

}  // namespace wirepane
