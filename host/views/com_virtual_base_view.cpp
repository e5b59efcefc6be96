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

namespace {

constexpr int titleMargin = 5;
constexpr int textMargin = 4;

}  // namespace

int g_iGetFontHeight(const QFont& font) {
    return QFontMetrics(font).height();
}

RVComVirtualBaseView::RVComVirtualBaseView(QWidget* parent) : TRVVirtualBaseView(parent) {
    InitFont();
    vTakeColours();
}

void RVComVirtualBaseView::InitFont() {
    viewFont = CSyncInfo::GetSettingCFG()->SYS_fntGetViewFont();
}

void RVComVirtualBaseView::vTakeColours() {
    colBackground = HostColour(u"COLOR_LISTCTL_BACKGROUND"_s, QApplication::palette().color(QPalette::Base));
    colText = HostColour(u"COLOR_LISTCTL_NORMALTEXT"_s, QApplication::palette().color(QPalette::Text));
}

void RVComVirtualBaseView::GetCaption(QString& caption) {
    caption.clear();
}

void RVComVirtualBaseView::vSetTitleShown(bool shown) {
    titleShown = shown;
    update();
}

int RVComVirtualBaseView::iGetTitleHeight() const {
    return titleShown ? g_iGetFontHeight(viewFont) + titleMargin : 0;
}

void RVComVirtualBaseView::vChangeCast() {
    InitFont();
    vTakeColours();
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
    vDrawTitle(painter);
    vDrawFrameBorder(painter);
}

void RVComVirtualBaseView::vDrawTitle(QPainter& painter) {
    if (!titleShown)
        return;
    QString caption;
    GetCaption(caption);
    const QRect band(0, 0, width(), iGetTitleHeight());
    painter.fillRect(band, HostColour(u"COLOR_LISTCTL_HDBkCOLOR1"_s, palette().color(QPalette::Button)));
    painter.setFont(viewFont);
    painter.setPen(HostColour(u"COLOR_LISTCTL_HDTEXTCOLOR1"_s, palette().color(QPalette::ButtonText)));
    painter.drawText(band.adjusted(textMargin, 0, -textMargin, 0), Qt::AlignVCenter | Qt::TextSingleLine,
                     caption);
}

void RVComVirtualBaseView::vDrawFrameBorder(QPainter& painter) {
    painter.setPen(HostColour(u"COLOR_LISTCTL_HDBkCOLOR1"_s, palette().color(QPalette::Mid)));
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
