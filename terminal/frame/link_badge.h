// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QToolButton>

class QMenu;

namespace wirepane {

// A button that shows a link group as a letter on the group's colour, and offers the groups in a menu.
class LinkBadge : public QToolButton {
    Q_OBJECT

public:
    explicit LinkBadge(QWidget* parent = nullptr);

    unsigned char group() const { return shownGroup; }
    void setGroup(unsigned char group);
    // Whether the menu offers "not linked", too.
    void setOffersNone(bool offers) { offersNone = offers; }

    QSize sizeHint() const override;

signals:
    // The user picked a group.
    void groupChosen(unsigned char group);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void fillMenu();

    QMenu* groups;
    unsigned char shownGroup = 0;
    bool offersNone = true;
};

// Fills a menu with the link groups, the present one checked; `chosen` gets the group that is picked. With
// `shortcuts`, Ctrl+0 to Ctrl+6 pick them.
void addLinkGroups(QMenu& menu, unsigned char present, bool withNone, bool shortcuts,
                   const std::function<void(unsigned char)>& chosen);

}  // namespace wirepane
