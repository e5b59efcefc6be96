// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/query/key_set_rehearsal.h"

#include <QDialog>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QLabel;
class QLayout;
class QSpinBox;

namespace wirepane {
class ReportList;

// Shows how often a key set would have spoken: on each of the last 30 days and in the busiest hour, which of
// its words bring it, what an exclusion would save, its newest hits, and how many hours were over a budget.
class RehearsalDlg : public QDialog {
    Q_OBJECT

public:
    // The titles of the headlines, in their order; empty where one is not at hand.
    using TitlesOf = std::function<QStringList(const std::vector<HeadlineKey>&)>;

    RehearsalDlg(KeySetRehearsal& rehearsals, KeySetRehearsal::KeySet keySet, TitlesOf titlesOf,
                 QWidget* parent);

private:
    QLayout* createBudget();
    QLayout* createFigures();
    ReportList* createList(int id, QLatin1StringView what, QLatin1StringView count);
    void show(const std::optional<Rehearsal>& outcome);
    void warn();

    const TitlesOf titlesOf;
    std::optional<Rehearsal> rehearsal;
    QLabel* summary = nullptr;
    QLabel* warning = nullptr;
    QSpinBox* budget = nullptr;
    ReportList* days = nullptr;
    ReportList* words = nullptr;
    ReportList* exclusions = nullptr;
    ReportList* hits = nullptr;
    std::shared_ptr<const void> running;  // last: it tells all of the above
};

}  // namespace wirepane
