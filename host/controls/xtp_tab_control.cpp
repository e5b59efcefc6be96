// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/controls/xtp_tab_control.h"

#include "host/contract/colour_roles.h"
#include "host/controls/plain_caption.h"

#include <QPainter>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>

using namespace wirepane;

namespace {

// The count beside a tab's text, on a ground of its own with round ends.
class CountBadge : public QWidget {
public:
    CountBadge(const QString& count, QTabBar* strip) : QWidget(strip), text(count) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        adoptFont();
    }
    const QString& count() const { return text; }
    void showCount(const QString& count) {
        text = count;
        adoptFont();
        update();
    }
    QSize sizeHint() const override {
        const QFontMetrics metrics(badgeFont());
        return {std::max(metrics.horizontalAdvance(text) + 10, metrics.height()) + gap, metrics.height()};
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(roleColour(ColourRole::Press, palette().color(QPalette::Midlight)));
        const QRect ground = rect().adjusted(gap, 0, 0, 0);
        painter.drawRoundedRect(ground, height() / 2.0, height() / 2.0);
        painter.setFont(badgeFont());
        painter.setPen(palette().color(QPalette::Text));
        painter.drawText(ground, Qt::AlignCenter, text);
    }

private:
    static constexpr int gap = 6;  // from the tab's text
    QFont badgeFont() const {
        QFont smaller = parentWidget()->font();
        smaller.setPointSizeF(smaller.pointSizeF() * 0.8);
        smaller.setWeight(QFont::DemiBold);
        return smaller;
    }
    void adoptFont() { resize(sizeHint()); }

    QString text;
};

CountBadge* badgeOf(const QTabBar& strip, int index) {
    return dynamic_cast<CountBadge*>(strip.tabButton(index, QTabBar::RightSide));
}

}  // namespace

CXTPTabControl::CXTPTabControl(QWidget* parent) : QTabBar(parent) {
    setExpanding(false);
    setDrawBase(false);
    setUsesScrollButtons(true);
    setElideMode(Qt::ElideNone);
    connect(this, &QTabBar::currentChanged, this, [this](int index) {
        if (byUser)
            emit selChange(index);
    });
}

int CXTPTabControl::appendTab(const QString& text, int itemData) {
    const QSignalBlocker silent(this);
    const int index = addTab(captionOfName(text));
    setTabData(index, itemData);
    return index;
}

void CXTPTabControl::showTabText(int index, const QString& text) {
    setTabText(index, captionOfName(text));
}

QString CXTPTabControl::literalTabText(int index) const {
    return nameOfCaption(tabText(index));
}

void CXTPTabControl::setBadge(int index, const QString& badge, const QString& spoken) {
    setAccessibleTabName(index, spoken);
    if (badge == this->badge(index))
        return;
    CountBadge* shown = badgeOf(*this, index);
    if (badge.isEmpty()) {
        setTabButton(index, RightSide, nullptr);
        delete shown;
    } else if (shown == nullptr) {
        setTabButton(index, RightSide, new CountBadge(badge, this));
    } else {
        const int width = shown->width();
        shown->showCount(badge);
        // The tab takes the width of its button when it is set.
        if (shown->width() != width)
            setTabButton(index, RightSide, shown);
    }
    emit badgeChanged(index);
}

QString CXTPTabControl::badge(int index) const {
    const CountBadge* shown = badgeOf(*this, index);
    return shown != nullptr ? shown->count() : QString();
}

void CXTPTabControl::SetColorSet(const TRVTabColorSet& colours) {
    QPalette own;
    if (colours.background.isValid()) {
        own.setColor(QPalette::Window, colours.background);
        own.setColor(QPalette::Button, colours.background);
    }
    if (colours.text.isValid()) {
        own.setColor(QPalette::WindowText, colours.text);
        own.setColor(QPalette::ButtonText, colours.text);
    }
    setPalette(own);
}

int CXTPTabControl::itemData(int index) const {
    return tabData(index).toInt();
}

void CXTPTabControl::SetCurSel(int index) {
    const QScopedValueRollback quietly(byUser, false);
    setCurrentIndex(index);
}
