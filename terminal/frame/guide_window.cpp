// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/guide_window.h"

#include "terminal/translations/terminal_text.h"

#include <QImage>
#include <QTextBrowser>
#include <QTextTable>
#include <QUrl>
#include <QVBoxLayout>

namespace wirepane {

namespace {

constexpr QSize startSize{1040, 800};
constexpr int pictureWidth = 480;  // two stand side by side

class GuideText : public QTextBrowser {
public:
    // A document scales pictures without smoothing them.
    QVariant loadResource(int type, const QUrl& name) override {
        QVariant found = QTextBrowser::loadResource(type, name);
        if (type != QTextDocument::ImageResource)
            return found;
        QImage picture = QImage::fromData(found.toByteArray());
        const int widest = qRound(pictureWidth * devicePixelRatioF());
        if (picture.width() > widest)
            picture = picture.scaledToWidth(widest, Qt::SmoothTransformation);
        picture.setDevicePixelRatio(devicePixelRatioF());
        return picture;
    }
};

// Room stands between the cells instead of lines.
void layOutTables(const QTextDocument& document) {
    for (QTextFrame* frame : document.rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(frame);
        if (table == nullptr)
            continue;
        QTextTableFormat format = table->format();
        format.setBorder(0);
        format.setCellPadding(3);
        table->setFormat(format);
    }
}

}  // namespace

GuideWindow::GuideWindow(const QString& file, QWidget* parent) : QDialog(parent, Qt::Window) {
    setWindowTitle(terminalText(TextId::GuideTitle));
    resize(startSize);
    auto* text = new GuideText;
    text->setAccessibleName(windowTitle());
    text->setFrameShape(QFrame::NoFrame);
    text->document()->setDocumentMargin(16);
    text->setOpenExternalLinks(true);
    connect(text, &QTextBrowser::sourceChanged, text, [text] { layOutTables(*text->document()); });
    text->setSource(QUrl::fromLocalFile(file));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(text);
}

}  // namespace wirepane
