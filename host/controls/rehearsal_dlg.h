// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "host/contract/export.h"
#include "host/contract/query/key_set_rehearsal.h"

#include <QDialog>

#include <memory>
#include <optional>

class QLabel;
class QLayout;
class QSpinBox;

namespace wirepane {
class ReportList;

// The numbers of its controls.
namespace rehearsal_ids {

inline constexpr int close = 1;
inline constexpr int dialog = 9006;
inline constexpr int summary = 9007;
inline constexpr int budget = 9008;
inline constexpr int warning = 9009;
inline constexpr int days = 9010;
inline constexpr int words = 9011;
inline constexpr int exclusions = 9012;
inline constexpr int hits = 9013;

}  // namespace rehearsal_ids

// Shows how often a key set would have spoken: on each of the last 30 days and in the busiest hour, which of
// its words bring it, what an exclusion would save, its newest hits, and how many hours were over a budget.
class WIREPANE_HOST_EXPORT RehearsalDlg : public QDialog {
    Q_OBJECT

public:
    static constexpr int usualBudget = 20;
    static constexpr int largestBudget = 100'000;

    // `rehearsals` outlives it. `budget`: hits an hour, from 1 to `largestBudget`.
    RehearsalDlg(KeySetRehearsal& rehearsals, KeySetRehearsal::KeySet keySet, int budget, QWidget* parent);

    // As the user has left it.
    int hitsAnHour() const;

private:
    QLayout* createBudget(int present);
    QLayout* createFigures();
    ReportList* createList(int id, QLatin1StringView what, QLatin1StringView count);
    void show(const std::optional<Rehearsal>& outcome);
    void warn();

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
