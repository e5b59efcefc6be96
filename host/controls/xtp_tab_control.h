// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"

#include <QColor>
#include <QTabBar>

// The colours of a strip of tabs; an invalid one means the palette's.
struct TRVTabColorSet {
    QColor background;
    QColor text;
};

// A strip of tabs with a number each. Texts are data: their '&' is shown.
class WIREPANE_HOST_EXPORT CXTPTabControl : public QTabBar {
    Q_OBJECT

public:
    explicit CXTPTabControl(QWidget* parent = nullptr);

    // Appends a tab and returns its index; the first one becomes the selected one.
    int appendTab(const QString& text, int itemData);
    void showTabText(int index, const QString& text);
    QString literalTabText(int index) const;
    // 0 for an index out of range.
    int itemData(int index) const;

    // A count beside a tab's text, and what a screen reader says of the tab; an empty one takes it away.
    void setBadge(int index, const QString& badge, const QString& spoken);
    QString badge(int index) const;

    void SetColorSet(const TRVTabColorSet& colours);

    // The selected tab; -1 when there is none.
    int curSel() const { return currentIndex(); }
    // Selects a tab: currentChanged tells of it, SelChange does not. An index out of range is ignored.
    void SetCurSel(int index);

Q_SIGNALS:
    // The user selected another tab, by mouse, wheel or keys.
    void selChange(int index);
    // The tab has another count.
    void badgeChanged(int index);

private:
    bool byUser = true;
};
