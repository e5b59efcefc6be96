// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "backend/import/table_columns.h"

#include <QStringView>

namespace wirepane {

namespace {

// One name that a header may hold for a column. Where a table has two names for one column, the one that
// stands earlier here goes before the other.
struct HeaderName {
    QStringView name;
    Column column;
    unsigned char market = unknownMarket;  // the market of lists that use this name
};

constexpr std::array headerNames{
    HeaderName{u"market", Column::Market},
    HeaderName{u"code", Column::Code},
    HeaderName{u"公司代號", Column::Code, stockExchangeService},
    HeaderName{u"Symbol", Column::Code, usMarket},
    HeaderName{u"name", Column::Name},
    HeaderName{u"公司簡稱", Column::Name},
    HeaderName{u"公司名稱", Column::Name},
    HeaderName{u"Security Name", Column::Name},
    HeaderName{u"Company Name", Column::Name},
    HeaderName{u"english", Column::EnglishName},
    HeaderName{u"英文簡稱", Column::EnglishName},
    HeaderName{u"category", Column::Category},
    HeaderName{u"service", Column::Service},
    HeaderName{u"id", Column::Id},
    HeaderName{u"colour", Column::Colour},
    HeaderName{u"color", Column::Colour},
    HeaderName{u"last", Column::Last},
    HeaderName{u"change", Column::Change},
    HeaderName{u"volume", Column::Volume},
};

}  // namespace

TableColumns::TableColumns(const QStringList& header) {
    indexes.fill(-1);
    for (const HeaderName& known : headerNames) {
        qsizetype& index = indexes.at(std::size_t(known.column));
        for (qsizetype i = 0; i < header.size() && index < 0; ++i) {
            if (QStringView(header.at(i)).trimmed().compare(known.name, Qt::CaseInsensitive) != 0)
                continue;
            index = i;
            if (known.market != unknownMarket)
                listMarket = known.market;
        }
    }
}

QString TableColumns::field(const QStringList& row, Column column) const {
    return row.value(index(column)).trimmed();
}

}  // namespace wirepane
