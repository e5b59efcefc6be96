// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/views/virtual_base_view.h"

#include <QColor>
#include <QFont>
#include <QRect>

class QPainter;

// The height in pixels of a line of text in this font.
WIREPANE_HOST_EXPORT int g_iGetFontHeight(const QFont& font);

// A view with the host's font and colours, a title band, a frame border and a picture for "not supported".
class WIREPANE_HOST_EXPORT RVComVirtualBaseView : public TRVVirtualBaseView {
    Q_OBJECT

public:
    explicit RVComVirtualBaseView(QWidget* parent = nullptr);

    // Takes the host's view font of this moment.
    void InitFont();
    const QFont& GetViewFont() const { return viewFont; }

    // The view's caption: what a host shows on tabs and title bars.
    virtual void GetCaption(QString& caption);

    // The title band at the top of the client area; off unless the host wants it.
    void setTitleShown(bool shown);
    bool isTitleShown() const { return titleShown; }
    // Height of the title band in pixels: the title font's height plus 5; 0 when it is not shown.
    int titleHeight() const;

    // A change of the host's colours or font: reads both again and repaints.
    virtual void vChangeCast();

protected:
    void OnTimer(int id) override;

    // Painting, as a whole: OnEraseBkgnd, then OnDraw.
    virtual bool OnEraseBkgnd(QPainter& painter);
    virtual void OnDraw(QPainter& painter);
    // Parts of it. The title is the caption on a band; the border frames the client area; the picture says
    // that the view has nothing to show for its symbol.
    void drawTitle(QPainter& painter);
    void drawFrameBorder(QPainter& painter);
    virtual void vNotSupportSymbol(QPainter& painter);
    // Asks for the pending layout to be done before painting.
    void SendPaintLayout();

    // The view's background, taken from the host's "COLOR_LISTCTL_BACKGROUND".
    QColor colBackground;
    QColor colText;

    void paintEvent(QPaintEvent* event) override;

private:
    void takeColours();

    QFont viewFont;
    bool titleShown = false;
};
