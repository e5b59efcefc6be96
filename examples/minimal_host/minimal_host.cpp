// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// A host of about a hundred lines: it loads the news module, gives it a back end of ten headlines held in
// memory, and shows the view. Run it with the module's file as the only argument; with --picture FILE behind
// it, it saves a picture of the view and ends.
#include "host/contract/bk_quote_interface.h"
#include "host/contract/cfg_io.h"
#include "host/contract/clock.h"
#include "host/views/news_module.h"
#include "host/views/quote_base_view.h"

#include <QApplication>
#include <QDateTime>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace {

constexpr unsigned char newsService = 1;
constexpr int minutesBetweenHeadlines = 7;

const std::array titles{"Harbour Cranes wins order for four container bridges",
                        "Tea exporters see a record first quarter",
                        "Central bank leaves its key rate unchanged",
                        "Copper slips as inventories rise",
                        "Lantern Foods to open two plants in the south",
                        "Shipping rates firm on the Pacific routes",
                        "Aster Chemical names a new chairman",
                        "Rice futures close higher on late buying",
                        "Northgate Rail plans a bond of 300 million",
                        "Opening bell: shares little changed"};

// Ten headlines of this morning, the newest first.
class TenHeadlines : public BKQuoteInterface {
public:
    bool BKQNEWS_bGetAllNewsService(std::vector<unsigned char>& services) override {
        services = {newsService};
        return true;
    }
    bool BKQNEWS_bGetFullNameByService(QString& name, unsigned char) override {
        name = QStringLiteral("Morning wire");
        return true;
    }
    QString BKQNEWS_cszGetCurrDateByService(unsigned char) override {
        return host_clock::today().toString(QStringLiteral("yyyyMMdd"));
    }
    int bIsConnect() override { return 1; }

    using BKQuoteInterface::BKQNEWS_iGetHeadlineTable;  // the form by symbol stays as it is
    int BKQNEWS_iGetHeadlineTable(unsigned char service, std::vector<CHeadlineTable>& table, int kind,
                                  const QString& key) override {
        const bool today = key == BKQNEWS_cszGetCurrDateByService(service);
        if (kind != static_cast<int>(TableKind::ByDate) || !today)
            return 0;
        for (int i = 0; i < static_cast<int>(titles.size()); ++i)
            table.push_back(entryOf(i));
        return static_cast<int>(titles.size());
    }

    int BKQNEWS_iGetHeadline(unsigned char service, std::vector<CHeadline>& headlines,
                             const std::vector<CHeadlineTable>& entries) override {
        int count = 0;
        for (const CHeadlineTable& entry : entries) {
            const int i = static_cast<int>(titles.size()) - entry.sequence;
            if (entry.service != service || i < 0 || i >= static_cast<int>(titles.size()))
                continue;
            headlines.push_back(
                {service, entry.time, entry.sequence, QString::fromLatin1(titles[std::size_t(i)])});
            ++count;
        }
        return count;
    }

    bool BKQNEWS_bGetStory(CStory& story, const CHeadlineTable& entry) override {
        story = {entry.time, QStringLiteral("A story of one line.@@@@And another one."), entry};
        return true;
    }

private:
    CHeadlineTable entryOf(int i) const {
        CHeadlineTable entry;
        entry.service = newsService;
        entry.sequence = static_cast<std::int32_t>(titles.size()) - i;
        entry.time = std::max(start - i * minutesBetweenHeadlines * 60, midnight);
        return entry;
    }

    const std::int64_t start = host_clock::now();
    const std::int64_t midnight = host_clock::today().startOfDay().toSecsSinceEpoch();
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QString error;
    NewsModule* module = arguments.size() > 1 ? LoadNewsModule(arguments[1], error) : nullptr;
    if (module == nullptr) {
        QTextStream(stderr) << (error.isEmpty() ? QStringLiteral("usage: minimal_host MODULE") : error)
                            << '\n';
        return 2;
    }

    QTranslator texts;  // of the language keys: without one the view shows the keys
    if (texts.load(QStringLiteral(":/wirepane_en.qm")))
        QCoreApplication::installTranslator(&texts);

    TenHeadlines backEnd;
    BKQuoteInterface::SetBKInterface(&backEnd);

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
