// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/controls/line_icon.h"

#include <QString>
#include <QStringList>
#include <QWidget>

#include <vector>

class SButton;

namespace wirepane {

// What a pane without content shows instead: an icon, a sentence, and what the user can do about it.
struct EmptyText {
    LineIcon icon = LineIcon::News;
    QString sentence;
    QString action;           // the button's text; empty: no button
    QStringList others = {};  // of more buttons, one below the other

    bool operator==(const EmptyText&) const = default;
};

// Covers its parent with such a text, and stays as large as that; a low one goes without the icon. Hidden at
// first.
class WIREPANE_HOST_EXPORT EmptyNote : public QWidget {
    Q_OBJECT

public:
    explicit EmptyNote(QWidget* parent);
    // With a frame that holds several, the notes of panes side by side stand on one line and in its font.
    EmptyNote(QWidget* parent, const QWidget& frame);

    // Shows the text over the whole parent.
    void tell(const EmptyText& text);
    const EmptyText& text() const { return told; }

Q_SIGNALS:
    // The button was pressed; one of the others.
    void acted();
    void otherChosen(int place);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void place();
    bool hasRoomForIcon() const;
    QRect iconPlace() const;
    QRect sentencePlace() const;
    int textHeight() const;  // of the sentence and the buttons
    void placeButton(SButton& which, int top) const;
    void tellOthers();

    EmptyText told;
    const QWidget* frame = nullptr;  // an ancestor
    SButton* button;                 // its child
    std::vector<SButton*> others;    // as well
};

}  // namespace wirepane
