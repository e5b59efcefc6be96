// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "headline_list/headline_columns.h"
#include "headline_list/headline_list.h"
#include "headline_list/headline_lists.h"
#include "headline_list/headline_table.h"
#include "headline_list/service_entry.h"
#include "headline_list/table_reading.h"
#include "host/contract/fixed_services.h"
#include "tests/support/fake_back_end.h"

#include <QStringList>
#include <QWidget>

#include <gtest/gtest.h>
#include <vector>

namespace wirepane {

// Stands in for the view: services with the first two ticked, one known category.
class FakeOwner : public ListOwner {
public:
    const std::vector<ServiceEntry>& allServices() const override { return services; }
    NewsType GetNewsType() const override { return newsType; }
    QString categoryNameOf(unsigned char service, int id) override {
        if (id == 7 && service == warrantService)
            return QStringLiteral("Issue");
        if (id == 8)
            return QStringLiteral("新聞");
        return id == 7 ? QStringLiteral("Markets") : QStringLiteral("(recover)");
    }
    int categoryColourOf(unsigned char, const QString& name, QColor& text, QColor&) override {
        if (name != QStringLiteral("Markets") && name != QStringLiteral("新聞"))
            return 0;
        text = Qt::red;
        return 1;
    }
    void categoryStateAfterWriting() override { ++rowsWritten; }
    void rowsReplaced(ListIndex list) override { replaced.push_back(list); }

    std::vector<ServiceEntry> services{
        {1, true, 0, false}, {2, true, 0, false}, {16, false, 0, false}, {52, false, 0, false}};
    NewsType newsType = NewsType::Full;
    int rowsWritten = 0;
    std::vector<ListIndex> replaced;
};

class HeadlineListTest : public testing::Test {
protected:
    const int timeColumn = placeOf(HeadlineColumn::Time, NewsType::Full);
    const int categoryColumn = placeOf(HeadlineColumn::Category, NewsType::Full);
    const int titleColumn = placeOf(HeadlineColumn::Title, NewsType::Full);

    HeadlineListTest() {
        backEnd.texts[QStringLiteral("IDS_NEWSCTRLVIEW_STRING_RECOVER")] = QStringLiteral("...");
    }

    HeadlineList& list(ListIndex index, int height = 16 * 5 + 16 + 4) {
        HeadlineList& result = lists[index];
        if (result.grid() == nullptr) {
            result.setGrid(createHeadlineSheet(&window, QRect(0, 0, 600, height), owner.newsType, backEnd));
            window.resize(700, 900);
            window.show();
        }
        return result;
    }

    // The time, category and title of the rows as the grid shows them, " | " between the cells.
    QStringList rows(const HeadlineList& of) const {
        QStringList result;
        for (int row = 0; row < of.grid()->rowCount(); ++row) {
            QStringList cells;
            for (const QString& key :
                 {QStringLiteral("time"), QStringLiteral("category"), QStringLiteral("title")}) {
                if (const int column = of.grid()->column(key); column >= 0)
                    cells.append(of.text(row, column));
            }
            result.append(cells.join(QStringLiteral(" | ")));
        }
        return result;
    }

    FakeBackEnd backEnd;
    FakeOwner owner;
    QWidget window;
    HeadlineLists lists{backEnd, owner};
};

}  // namespace wirepane
