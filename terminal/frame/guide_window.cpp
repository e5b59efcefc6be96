// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/guide_window.h"

#include "terminal/translations/terminal_text.h"

#include <QDir>
#include <QEvent>
#include <QImage>
#include <QLocale>
#include <QTextBrowser>
#include <QTextTable>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

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

GuideWindow::GuideWindow(const QString& guideFolder, QWidget* parent)
    : QDialog(parent, Qt::Window), folder(guideFolder), text(new GuideText) {
    resize(startSize);
    text->setFrameShape(QFrame::NoFrame);
    text->document()->setDocumentMargin(16);
    text->setOpenExternalLinks(true);
    connect(text, &QTextBrowser::sourceChanged, text, [this] { layOutTables(*text->document()); });
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(text);
    read();
}

void GuideWindow::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        read();
}

void GuideWindow::read() {
    setWindowTitle(terminalText(TextId::GuideTitle));
    text->setAccessibleName(windowTitle());
    const QDir guides(folder);
    const QString own = u"guide_%1.md"_s.arg(QLocale().name());
    text->setSource(QUrl::fromLocalFile(guides.filePath(guides.exists(own) ? own : u"guide.md"_s)));
}

}  // namespace wirepane
