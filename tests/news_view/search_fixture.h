// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/controls/my_rich_edit.h"
#include "host/views/news_control_ids.h"
#include "search/adv_search_dlg.h"
#include "search/search_ids.h"
#include "story/story_ids.h"
#include "tests/news_view/view_fixture.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <functional>

namespace wirepane {

using namespace Qt::StringLiterals;

inline CHeadlineTable entryOf(unsigned char service, int hour, int minute, std::int32_t sequence) {
    return {localTime(2026, 3, 2, hour, minute), sequence, service, 0, 0};
}

class SearchesOfTheView : public NewsViewTest {
protected:
    SearchesOfTheView() {
        backEnd.texts[u"IDS_NEWSCTRLVIEW_NOTICE_NARROWED"_s] = u"only %1"_s;
        addNews(1, 9, 0, 1);
        addNews(2, 9, 10, 1);
        addNews(22, 9, 5, 4);
    }

    // The search mode with services 1 and 2 ticked.
    void openSearch(QMap<QString, QVariant> stored = {}, int mode = 3) {
        stored[u"Sheet0ServiceCheck1"_s] = true;
        stored[u"Sheet0ServiceCheck2"_s] = true;
        openActive(stored, mode);
    }

    // The texts of the message boxes that `work` puts in front of the user, each of which is closed.
    QStringList boxesOver(const std::function<void()>& work) {
        QStringList texts;
        QTimer closing;
        QObject::connect(&closing, &QTimer::timeout, view.get(), [&] {
            auto* over = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (over == nullptr)
                return;
            const auto* box = qobject_cast<QMessageBox*>(over);
            texts.append(box != nullptr ? box->text() : QString());
            over->reject();
        });
        closing.start(0);
        work();
        return texts;
    }
    QStringList sent() { return asked(u"search "_s); }
    QList<int> pending() const {
        QList<int> result;
        for (const QVariant& service : state(u"services"_s).toList()) {
            if (service.toMap()[u"pending"_s].toBool())
                result.append(service.toMap()[u"id"_s].toInt());
        }
        return result;
    }
    QString shortTip() const {
        const QVariantMap shown = state(u"shortTip"_s).toMap();
        return shown[u"visible"_s].toBool() ? shown[u"text"_s].toString() : QString();
    }
    MyRichEdit& story() const {
        auto* pane = dlgItem(view.get(), ids::firstChildView + ids::storyPane);
        return *static_cast<MyRichEdit*>(dlgItem(pane, story_ids::storyText));
    }
    void compose(const std::function<void(CAdvSearchDlg&)>& work) {
        runDialog<CAdvSearchDlg>(ids::dealsSearchButton, work);
    }
    static void addKeyword(const CAdvSearchDlg& dialog, const QString& keyword) {
        auto* edit = qobject_cast<QLineEdit*>(dlgItem(&dialog, search_ids::keywordEdit));
        edit->setText(keyword);
        QTest::keyClick(edit, Qt::Key_Return);
    }
};

}  // namespace wirepane
