// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "backend/alerts/alert_entry.h"
#include "backend/call_queue.h"
#include "backend/diary/diary_writer.h"
#include "host/contract/news_diary.h"
#include "terminal/diary/screen_reading.h"
#include "terminal/settings/terminal_settings.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>
#include <map>
#include <memory>
#include <tuple>

namespace wirepane {
class Workspace;

// Keeps the diary of a session where the user wants one: what each view shows, as soon as it has been
// painted, and what he does. Rows and stories are written once; screens name them. Interface thread.
class DiaryKeeper : public QObject, public NewsDiary {
    Q_OBJECT

public:
    // The workspace outlives this.
    DiaryKeeper(QString storePath, Workspace& workspace);
    ~DiaryKeeper() override;

    // Takes the user's choices into force.
    void choose(const DiaryChoices& choices);
    bool isKept() const { return writer != nullptr; }
    // How far the diary goes on the medium, as far as this session knows.
    const DiaryHead& keptHead() const { return kept; }
    QString file() const { return diaryFileOf(storePath); }
    // Writes an entry of this kind with these facts, where a diary is kept.
    void add(const QString& kind, QJsonObject facts);
    void addAlert(const AlertEntry& alert);
    // Looks at what is on the screen now.
    void look();

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void failed(const wirepane::Error& error);

protected:
    void note(const QObject& view, const NewsAct& act) override;

private:
    using RowKey = std::tuple<std::int64_t, std::int32_t, unsigned char>;
    struct KnownRow {
        QStringList cells;
        std::int64_t id = 0;
    };

    void begin();
    void end();
    void write(int view, const SeenScreen& screen);
    std::int64_t idOf(const SeenRow& row);
    std::int64_t idOf(const SeenStory& story);
    int numberOf(const QObject& view) const;

    const QString storePath;
    Workspace& workspace;
    DiaryChoices present;
    QString session;  // tells it from others in the same diary
    DiaryHead kept = noEntries();
    std::map<int, SeenScreen> last;  // by the number of the view
    std::map<RowKey, KnownRow> rows;
    std::map<std::pair<QString, QString>, std::int64_t> stories;
    std::int64_t lastId = 0;
    QTimer soon;
    QElapsedTimer sinceLook;
    CallQueue told;                       // by the writer's thread
    std::unique_ptr<DiaryWriter> writer;  // last: it posts what it tells; null: none is kept
};

}  // namespace wirepane
