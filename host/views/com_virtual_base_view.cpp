// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "host/views/com_virtual_base_view.h"

#include "host/contract/sync_info.h"
#include "host/views/sheet_scheme.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLayout>
#include <QPainter>
#include <QPalette>

using namespace Qt::StringLiterals;
using namespace wirepane;

namespace {

constexpr int titleMargin = 5;
constexpr int textMargin = 4;

}  // namespace

int g_iGetFontHeight(const QFont& font) {
    return QFontMetrics(font).height();
}

RVComVirtualBaseView::RVComVirtualBaseView(QWidget* parent) : TRVVirtualBaseView(parent) {
    InitFont();
    takeColours();
}

void RVComVirtualBaseView::InitFont() {
    viewFont = CSyncInfo::GetSettingCFG()->SYS_fntGetViewFont();
}

void RVComVirtualBaseView::takeColours() {
    colBackground = hostColour(u"COLOR_LISTCTL_BACKGROUND"_s, QApplication::palette().color(QPalette::Base));
    colText = hostColour(u"COLOR_LISTCTL_NORMALTEXT"_s, QApplication::palette().color(QPalette::Text));
}

void RVComVirtualBaseView::GetCaption(QString& caption) {
    caption.clear();
}

void RVComVirtualBaseView::setTitleShown(bool shown) {
    titleShown = shown;
    update();
}

int RVComVirtualBaseView::titleHeight() const {
    return titleShown ? g_iGetFontHeight(viewFont) + titleMargin : 0;
}

void RVComVirtualBaseView::vChangeCast() {
    InitFont();
    takeColours();
    update();
}

void RVComVirtualBaseView::OnTimer(int id) {
    TRVVirtualBaseView::OnTimer(id);
}

bool RVComVirtualBaseView::OnEraseBkgnd(QPainter& painter) {
    painter.fillRect(rect(), colBackground);
    return true;
}

void RVComVirtualBaseView::OnDraw(QPainter& painter) {
    drawTitle(painter);
    drawFrameBorder(painter);
}

void RVComVirtualBaseView::drawTitle(QPainter& painter) {
    if (!titleShown)
        return;
    QString caption;
    GetCaption(caption);
    const QRect band(0, 0, width(), titleHeight());
    painter.fillRect(band, hostColour(u"COLOR_LISTCTL_HDBkCOLOR1"_s, palette().color(QPalette::Button)));
    painter.setFont(viewFont);
    painter.setPen(hostColour(u"COLOR_LISTCTL_HDTEXTCOLOR1"_s, palette().color(QPalette::ButtonText)));
    painter.drawText(band.adjusted(textMargin, 0, -textMargin, 0), Qt::AlignVCenter | Qt::TextSingleLine,
                     caption);
}

void RVComVirtualBaseView::drawFrameBorder(QPainter& painter) {
    painter.setPen(hostColour(u"COLOR_LISTCTL_HDBkCOLOR1"_s, palette().color(QPalette::Mid)));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void RVComVirtualBaseView::vNotSupportSymbol(QPainter&) {}

void RVComVirtualBaseView::SendPaintLayout() {
    if (layout() != nullptr)
        layout()->activate();
}

void RVComVirtualBaseView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    OnEraseBkgnd(painter);
    OnDraw(painter);
}
