// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "tests/support/painted_texts.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

namespace wirepane {

namespace {

// Of all that is drawn, keeps the texts.
class TextRecorder : public QPaintEngine {
public:
    TextRecorder() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    Type type() const override { return User; }

    void drawTextItem(const QPointF& origin, const QTextItem& item) override {
        const QString text = item.text();
        if (text.trimmed().isEmpty())
            return;
        QPainterPath ink;
        ink.addText(origin, item.font(), text);
        const QTransform& placing = painter()->deviceTransform();
        QRectF room(systemClip().boundingRect());
        if (painter()->hasClipping())
            room &= placing.mapRect(painter()->clipBoundingRect());
        texts.push_back({text, placing.mapRect(ink.boundingRect()), room});
    }

    std::vector<PaintedText> texts;
};

class RecordingDevice : public QPaintDevice {
public:
    explicit RecordingDevice(const QWidget& painted) : widget(painted) {}

    QPaintEngine* paintEngine() const override { return &recorder; }

    mutable TextRecorder recorder;

protected:
    int metric(PaintDeviceMetric wanted) const override {
        switch (wanted) {
            case PdmWidth:
                return qRound(widget.width() * widget.devicePixelRatioF());
            case PdmHeight:
                return qRound(widget.height() * widget.devicePixelRatioF());
            case PdmDpiX:
            case PdmPhysicalDpiX:
                return widget.logicalDpiX();
            case PdmDpiY:
            case PdmPhysicalDpiY:
                return widget.logicalDpiY();
            case PdmDevicePixelRatio:
                return qRound(widget.devicePixelRatioF());
            case PdmDevicePixelRatioScaled:
                return qRound(widget.devicePixelRatioF() * devicePixelRatioFScale());
            default:
                return QPaintDevice::metric(wanted);
        }
    }

private:
    const QWidget& widget;
};

}  // namespace

std::vector<PaintedText> paintedTexts(QWidget& widget) {
    RecordingDevice device(widget);
    widget.render(&device, {}, {}, {});
    return device.recorder.texts;
}

}  // namespace wirepane
