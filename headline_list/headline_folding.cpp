// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
// How the rows of a burst fold in a headline list: they are out of sight, and rows like all others.
#include "headline_list/burst_folds.h"
#include "headline_list/headline_list.h"
#include "headline_list/headline_table.h"
#include "headline_list/language_keys.h"
#include "headline_list/list_state.h"
#include "host/contract/clock.h"

#include <QItemSelectionModel>

#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

void HeadlineList::watchFolds() {
    QObject::connect(sheet, &CSuperSheetWnd::rowsTakenUp, &afterPainting, [this] {
        if (!sheet->isHeld())
            showFolds();
    });
    // Whoever goes to a row sees it, for as long as he stands there.
    QObject::connect(sheet->selectionModel(), &QItemSelectionModel::currentRowChanged, &afterPainting,
                     [this](const QModelIndex& current) {
                         const int row = current.row();
                         if (sheet->isTakingUpRows() || (sheet->isHeld() && sheet->isInSight(row)))
                             return;
                         if (!sheet->isInSight(row) && row < table.size())
                             state->folds.open(keyOf(table.at(row)));
                         showFolds();
                     });
}

void HeadlineList::noteBurst(const CHeadline& headline, const QString& symbol) {
    const int most = state->options.value(ViewOption::FoldBursts);
    if (most > 0 && Arrivals::isNew(headline.time, host_clock::now()))
        state->folds.note({keyOf(headline), headline.categoryId, symbol, headline.title},
                          state->clock.elapsed(), most);
}

void HeadlineList::showFolds() {
    const BurstFolds::Changes changes = state->folds.takeChanges();
    if (changes.hide.empty() && changes.show.empty())
        return;
    const int current = sheet->cptGetFocusNdx().y();
    std::vector<int> hide;
    for (const HeadlineKey& key : changes.hide) {
        const int row = table.rowOf(key);
        if (row >= 0 && row == current)
            state->folds.hideLater(key);
        else
            hide.push_back(row);
    }
    std::vector<int> show;
    for (const HeadlineKey& key : changes.show)
        show.push_back(table.rowOf(key));
    sheet->changeSight(std::move(hide), std::move(show));
}

void HeadlineList::hold(bool on) {
    if (sheet == nullptr)
        return;
    sheet->setHeld(on);
    if (!on)
        showFolds();
}

bool HeadlineList::isFold(int row) const {
    return row >= 0 && row < table.size() && state->folds.foldAt(keyOf(table.at(row))).count > 0;
}

bool HeadlineList::turnFold(int row) {
    if (sheet == nullptr || row < 0 || row >= table.size() || !state->folds.turn(keyOf(table.at(row))))
        return false;
    showFolds();
    return true;
}

QString HeadlineList::foldMark(int row) const {
    const BurstFolds::Fold fold = state->folds.foldAt(keyOf(table.at(row)));
    return fold.count == 0 ? QString() : (fold.isOpen ? u"\u2212%1"_s : u"+%1"_s).arg(fold.count);
}

QString HeadlineList::foldWords(int row) const {
    const BurstFolds::Fold fold = state->folds.foldAt(keyOf(table.at(row)));
    return fold.count == 0
               ? QString()
               : langText(backEnd, fold.isOpen ? keys::unfoldedState : keys::foldedState).arg(fold.count);
}

}  // namespace wirepane
