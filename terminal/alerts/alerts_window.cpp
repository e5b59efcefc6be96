// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/alerts/alerts_window.h"

#include "backend/alerts/alert_desk.h"
#include "host/controls/line_icon.h"
#include "terminal/alerts/alert_model.h"
#include "terminal/alerts/alert_texts.h"
#include "terminal/frame/window_room.h"
#include "terminal/translations/terminal_text.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <vector>

namespace wirepane {

namespace {

constexpr QSize startSize{900, 560};
constexpr int timeWidthInCharacters = 17;
constexpr int ruleWidthInCharacters = 22;
constexpr int outcomeWidthInCharacters = 36;

}  // namespace

AlertsWindow::AlertsWindow(AlertDesk& alertDesk, StoryOf findStory, QWidget* parent)
    : QDialog(parent, Qt::Window),
      desk(alertDesk),
      storyOf(std::move(findStory)),
      model(new AlertModel(this)),
      list(new QTreeView),
      reason(new QLabel),
      story(new QPlainTextEdit),
      rules(new QPushButton) {
    resize(startSize.boundedTo(windowRoom(*this)));
    list->setModel(model);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAlternatingRowColors(true);
    const int character = fontMetrics().averageCharWidth();
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(AlertModel::Title, QHeaderView::Stretch);
    list->setColumnWidth(AlertModel::Time, character * timeWidthInCharacters);
    list->setColumnWidth(AlertModel::Rule, character * ruleWidthInCharacters);
    list->setColumnWidth(AlertModel::Outcome, character * outcomeWidthInCharacters);
    reason->setTextFormat(Qt::PlainText);
    reason->setWordWrap(true);
    story->setReadOnly(true);
    story->setTabChangesFocus(true);
    rules->setIcon(lineIcon(LineIcon::Edit));
    rules->setAutoDefault(false);
    auto* foot = new QHBoxLayout;
    foot->addWidget(reason, 1);
    foot->addWidget(rules, 0, Qt::AlignTop);
    auto* column = new QVBoxLayout(this);
    column->addWidget(list, 3);
    column->addLayout(foot);
    column->addWidget(story, 2);
    connect(rules, &QPushButton::clicked, this, &AlertsWindow::rulesAsked);
    connect(list->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &AlertsWindow::showCurrent);
    connect(&desk, &AlertDesk::changed, this, &AlertsWindow::showList);
    retranslate();
    showList();
    list->setFocus();
}

void AlertsWindow::retranslate() {
    setWindowTitle(terminalText(TextId::AlertsTitle));
    list->setAccessibleName(windowTitle());
    story->setAccessibleName(terminalText(TextId::AlertStory));
    rules->setText(terminalText(TextId::AlertRules));
}

void AlertsWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        showList();
    } else if (event->type() == QEvent::ActivationChange) {
        seeIfActive();
    }
    QDialog::changeEvent(event);
}

void AlertsWindow::seeIfActive() {
    if (isActiveWindow())
        desk.see();
}

// The entry that the user is on stays current; without one it is the newest.
void AlertsWindow::showList() {
    const QModelIndex before = list->currentIndex();
    const std::int64_t number = before.isValid() ? model->at(before.row()).number : 0;
    model->show(std::vector<AlertEntry>(desk.entries().rbegin(), desk.entries().rend()));
    const int row = std::max(model->rowOf(number), 0);
    if (row < model->rowCount())
        list->setCurrentIndex(model->index(row, 0));
    showCurrent();
    seeIfActive();
}

void AlertsWindow::showCurrent() {
    const QModelIndex current = list->currentIndex();
    if (!current.isValid()) {
        reason->setText(terminalText(TextId::AlertNone));
        story->clear();
        return;
    }
    const AlertEntry& entry = model->at(current.row());
    reason->setText(reasonText(entry));
    const QString text = storyOf(entry.headline);
    story->setPlainText(text.isEmpty() ? entry.title : entry.title + QLatin1StringView("\n\n") + text);
}

}  // namespace wirepane
