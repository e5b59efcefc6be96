// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/controls/s_button.h"

#include <QPointer>
#include <QString>

#include <vector>

namespace wirepane {

// What stands on a ChipLine.
struct ChipLineText {
    struct Chip {
        QString text;
        QString action;  // what a click does, as a tool tip and a screen reader tell it

        bool operator==(const Chip&) const = default;
    };
    QString lead;             // before the chips
    std::vector<Chip> chips;  // each is taken out by a click on it
    QString sum;              // at the right
    QString details;          // behind that; cut first where there is no room

    bool operator==(const ChipLineText&) const = default;
};

// A part that can be taken out: its text and a cross, pressed by a click, by Enter, Space and Delete.
class ChipButton : public SButton {
    Q_OBJECT

public:
    explicit ChipButton(QWidget* parent);

    void tell(const ChipLineText::Chip& chip);
    int neededWidth() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

// One line: a few words, chips, and figures at its right end. Chips without room are left out, which three
// dots tell; the tool tip has all of it. Interface thread only.
class WIREPANE_HOST_EXPORT ChipLine : public QWidget {
    Q_OBJECT

public:
    explicit ChipLine(QWidget* parent);

    void tell(const ChipLineText& text);
    // The control that the keyboard comes to the chips from, of the same window.
    void setKeyboardBefore(QWidget* control) { before = control; }
    const ChipLineText& told() const { return text; }

Q_SIGNALS:
    void taken(int chip);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void addChip();
    void place();
    QFont sumFont() const;

    ChipLineText text;
    std::vector<ChipButton*> chips;  // at least one for each part; the others are hidden
    QPointer<QWidget> before;
    QRect leadPlace, morePlace, sumPlace, detailsPlace;
};

}  // namespace wirepane
