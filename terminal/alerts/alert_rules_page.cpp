// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/alerts/alert_rules_page.h"

#include "backend/search/query_errors.h"
#include "host/contract/colour_roles.h"
#include "host/contract/headline_looks.h"
#include "host/contract/query/search_query.h"
#include "host/controls/line_icon.h"
#include "host/controls/row_tints.h"
#include "terminal/frame/window_room.h"
#include "terminal/translations/shown_text.h"
#include "terminal/translations/terminal_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTimeEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>
#include <variant>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int widthInCharacters = 120;
constexpr int margin = 100;  // pixels, of the dialog and its frame

enum Column { Name, QueryText, Toast, Sound, OnlyConnected, Pause, Tint, Tag, ColumnCount };

QTime timeOf(int minutes) {
    return {minutes / 60, minutes % 60};
}

int minutesOf(const QTime& time) {
    return time.hour() * 60 + time.minute();
}

QTableWidgetItem* ticked(bool on) {
    auto* item = new QTableWidgetItem;
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(on ? Qt::Checked : Qt::Unchecked);
    return item;
}

QComboBox* tintChoice(int chosen) {
    constexpr std::array<TextId, HeadlineLook::tints + 1> names{
        TextId::TintNone, TextId::TintRed,  TextId::TintOrange, TextId::TintGreen,
        TextId::TintCyan, TextId::TintBlue, TextId::TintViolet};
    constexpr int side = 12;
    auto* choice = new QComboBox;
    for (int tint = 0; tint <= HeadlineLook::tints; ++tint) {
        QPixmap sample(side, side);
        sample.fill(tint == 0 ? Qt::transparent : sampleOfTint(tint));
        choice->addItem(sample, terminalText(names[std::size_t(tint)]));
    }
    choice->setCurrentIndex(chosen);
    choice->setAccessibleName(terminalText(TextId::AlertTint));
    return choice;
}

}  // namespace

AlertRulesPage::AlertRulesPage(const AlertSettings& present, std::function<void(const AlertRule&)> tell)
    : test(std::move(tell)),
      table(new QTableWidget(0, ColumnCount)),
      fault(new QLabel),
      hasQuietHours(new QCheckBox(terminalText(TextId::AlertQuietFrom))),
      quietFrom(new QTimeEdit),
      quietTo(new QTimeEdit) {
    table->setHorizontalHeaderLabels(
        {terminalText(TextId::AlertColumnRule), terminalText(TextId::AlertLooksFor),
         terminalText(TextId::AlertToast), terminalText(TextId::AlertSound),
         terminalText(TextId::AlertOnlyConnected), terminalText(TextId::AlertPauseOf),
         terminalText(TextId::AlertTint), terminalText(TextId::AlertTag)});
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(QueryText, QHeaderView::Stretch);
    table->verticalHeader()->hide();
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setTabKeyNavigation(false);
    table->setAccessibleName(terminalText(TextId::AlertRules));
    for (const AlertRule& rule : present.rules)
        addRow(rule);
    table->setCurrentCell(0, 0);
    fault->setTextFormat(Qt::PlainText);
    fault->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    auto* help = new QLabel(terminalText(TextId::AlertRulesHelp));
    help->setTextFormat(Qt::PlainText);
    help->setWordWrap(true);
    column->addWidget(help);
    column->addWidget(table, 1);
    column->addWidget(fault);
    column->addLayout(buttonRow());
    column->addLayout(quietRow(present));
    setMinimumWidth(
        std::min(fontMetrics().averageCharWidth() * widthInCharacters, windowRoom(*this).width() - margin));
    connect(table, &QTableWidget::itemChanged, this, [this] { fault->clear(); });
}

QLayout* AlertRulesPage::buttonRow() {
    auto* row = new QHBoxLayout;
    const std::tuple<TextId, LineIcon, void (AlertRulesPage::*)()> buttons[] = {
        {TextId::AlertAdd, LineIcon::Add, &AlertRulesPage::addNew},
        {TextId::AlertRemove, LineIcon::Remove, &AlertRulesPage::removeCurrent},
        {TextId::AlertTest, LineIcon::Bell, &AlertRulesPage::testCurrent},
    };
    for (const auto& [text, icon, action] : buttons) {
        auto* button = new QPushButton(lineIcon(icon), terminalText(text));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, action);
        row->addWidget(button);
    }
    row->addStretch(1);
    return row;
}

QLayout* AlertRulesPage::quietRow(const AlertSettings& present) {
    hasQuietHours->setChecked(present.quietFrom != present.quietTo);
    quietFrom->setTime(hasQuietHours->isChecked() ? timeOf(present.quietFrom) : QTime(22, 0));
    quietTo->setTime(hasQuietHours->isChecked() ? timeOf(present.quietTo) : QTime(7, 0));
    auto* row = new QHBoxLayout;
    row->addWidget(hasQuietHours);
    row->addWidget(quietFrom);
    row->addWidget(new QLabel(terminalText(TextId::AlertQuietTo)));
    row->addWidget(quietTo);
    row->addStretch(1);
    for (QTimeEdit* edit : {quietFrom, quietTo}) {
        edit->setDisplayFormat(u"HH:mm"_s);
        edit->setAccessibleName(hasQuietHours->text());
        edit->setEnabled(hasQuietHours->isChecked());
        connect(hasQuietHours, &QCheckBox::toggled, edit, &QWidget::setEnabled);
    }
    return row;
}

void AlertRulesPage::addRow(const AlertRule& rule) {
    const int row = table->rowCount();
    table->insertRow(row);
    auto* name = ticked(rule.isOn);
    name->setFlags(name->flags() | Qt::ItemIsEditable);
    name->setText(rule.name);
    table->setItem(row, Name, name);
    table->setItem(row, QueryText, new QTableWidgetItem(rule.query));
    table->setItem(row, Toast, ticked(rule.hasToast));
    table->setItem(row, Sound, ticked(rule.hasSound));
    table->setItem(row, OnlyConnected, ticked(rule.onlyConnected));
    table->setItem(row, Pause, new QTableWidgetItem(QString::number(rule.pauseSeconds)));
    table->setCellWidget(row, Tint, tintChoice(rule.tint));
    table->setItem(row, Tag, new QTableWidgetItem(rule.tag));
}

void AlertRulesPage::propose(AlertRule rule) {
    QStringList names;
    for (int row = 0; row < table->rowCount(); ++row) {
        const AlertRule known = ruleAt(row);
        names << known.name;
        if (known.query == rule.query) {
            table->setCurrentCell(row, Name);
            return;
        }
    }
    const QString name = rule.name;
    for (int number = 2; names.contains(rule.name); ++number)
        rule.name = u"%1 (%2)"_s.arg(name).arg(number);
    addRow(rule);
    table->setCurrentCell(table->rowCount() - 1, Name);
}

void AlertRulesPage::addNew() {
    addRow({});
    table->setCurrentCell(table->rowCount() - 1, Name);
    table->editItem(table->currentItem());
}

void AlertRulesPage::removeCurrent() {
    table->removeRow(table->currentRow());
    fault->clear();
}

void AlertRulesPage::testCurrent() {
    if (table->currentRow() >= 0)
        test(ruleAt(table->currentRow()));
}

AlertRule AlertRulesPage::ruleAt(int row) const {
    const auto isTicked = [&](Column column) {
        return table->item(row, column)->checkState() == Qt::Checked;
    };
    AlertRule rule;
    rule.name = table->item(row, Name)->text().trimmed();
    rule.query = table->item(row, QueryText)->text().trimmed();
    rule.isOn = isTicked(Name);
    rule.hasToast = isTicked(Toast);
    rule.hasSound = isTicked(Sound);
    rule.onlyConnected = isTicked(OnlyConnected);
    rule.pauseSeconds = std::clamp(table->item(row, Pause)->text().toInt(), 0, longestAlertPause);
    rule.tint = static_cast<const QComboBox*>(table->cellWidget(row, Tint))->currentIndex();
    rule.tag = alertTag(table->item(row, Tag)->text());
    return rule;
}

QString AlertRulesPage::faultAt(int row) const {
    const AlertRule rule = ruleAt(row);
    if (rule.name.isEmpty() || rule.query.isEmpty())
        return terminalText(TextId::AlertRuleIncomplete);
    for (int other = 0; other < row; ++other) {
        if (ruleAt(other).name == rule.name)
            return terminalText(TextId::AlertRuleTwice).arg(rule.name);
    }
    const ReadQuery read = readQuery(rule.query, QueryUse::Alerts);
    const auto* wrong = std::get_if<QueryFault>(&read);
    return wrong != nullptr ? rule.name + u": "_s + shownText(errorOf(*wrong)) : QString();
}

QString AlertRulesPage::showFault() {
    for (int row = 0; row < table->rowCount(); ++row) {
        const QString text = faultAt(row);
        if (text.isEmpty())
            continue;
        fault->setText(text);
        table->setCurrentCell(row, QueryText);
        table->setFocus();
        return text;
    }
    return {};
}

AlertSettings AlertRulesPage::settings() const {
    AlertSettings chosen;
    for (int row = 0; row < table->rowCount(); ++row)
        chosen.rules.push_back(ruleAt(row));
    if (hasQuietHours->isChecked()) {
        chosen.quietFrom = minutesOf(quietFrom->time());
        chosen.quietTo = minutesOf(quietTo->time());
    }
    return chosen;
}

}  // namespace wirepane
