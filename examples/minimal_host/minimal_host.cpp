// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// A host of about a hundred lines: it loads the news module, gives it a back end of ten headlines held in
// memory, and shows the view. Run it with the module's file as the only argument; with --picture FILE behind
// it, it saves a picture of the view and ends.
#include "host/contract/cfg_io.h"
#include "host/views/news_module.h"
#include "host/views/quote_base_view.h"
#include "ten_headlines.h"

#include <QApplication>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>
#include <QVBoxLayout>

using namespace wirepane;

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QString error;
    NewsModule* module = arguments.size() > 1 ? loadNewsModule(arguments[1], error) : nullptr;
    if (module == nullptr) {
        QTextStream(stderr) << (error.isEmpty() ? QStringLiteral("usage: minimal_host MODULE") : error)
                            << '\n';
        return 2;
    }

    QTranslator texts;  // of the language keys: without one the view shows the keys
    if (texts.load(QStringLiteral(":/wirepane_en.qm")))
        QCoreApplication::installTranslator(&texts);

    TenHeadlines backEnd;
    BKQuoteInterface::setBKInterface(&backEnd);

    QWidget frame;
    frame.resize(900, 420);
    auto* layout = new QVBoxLayout(&frame);
    layout->setContentsMargins(0, 0, 0, 0);
    TRVQuoteBaseView* view = module->CreateView(QStringLiteral("TRVNewsCtrlView"), &frame);
    layout->addWidget(view);
    frame.show();

    MemoryCfgIO settings;  // this host keeps no settings: the view opens with its defaults
    view->OnInitialUpdate();
    view->InitialViewInfo(&settings, QStringLiteral("Layout"), 0, 0, {});

    if (arguments.size() > 3 && arguments[2] == QStringLiteral("--picture")) {
        QTimer::singleShot(500, &frame,
                           [&] { QCoreApplication::exit(frame.grab().save(arguments[3]) ? 0 : 1); });
    }
    return QApplication::exec();
}
