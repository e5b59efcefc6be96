// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/alerts/alert_rules_page.h"

#include "backend/search/query_errors.h"
#include "host/contract/query/search_query.h"
#include "host/controls/line_icon.h"
#include "terminal/alerts/alert_rule_form.h"
#include "terminal/translations/shown_text.h"
#include "terminal/translations/terminal_text.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTimeEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>
#include <variant>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

QTime timeOf(int minutes) {
    return {minutes / 60, minutes % 60};
}

int minutesOf(const QTime& time) {
    return time.hour() * 60 + time.minute();
}

}  // namespace

AlertRulesPage::AlertRulesPage(const AlertSettings& present, Calls given)
    : calls(std::move(given)),
      list(new QListWidget),
      form(new AlertRuleForm),
      fault(new QLabel),
      hasQuietHours(new QCheckBox(terminalText(TextId::AlertQuietFrom))),
      quietFrom(new QTimeEdit),
      quietTo(new QTimeEdit) {
    constexpr int listInCharacters = 22;
    list->setAccessibleName(terminalText(TextId::AlertRules));
    list->setSpacing(2);
    list->setFixedWidth(fontMetrics().averageCharWidth() * listInCharacters);
    for (const AlertRule& rule : present.rules)
        add(rule);
    fault->setTextFormat(Qt::PlainText);
    fault->setWordWrap(true);
    auto* help = new QLabel(terminalText(TextId::AlertRulesHelp));
    help->setTextFormat(Qt::PlainText);
    help->setWordWrap(true);
    auto* both = new QHBoxLayout;
    both->setSpacing(16);
    both->addWidget(list);
    both->addWidget(form, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->addWidget(help);
    column->addLayout(both, 1);
    column->addWidget(fault);
    column->addLayout(buttonRow());
    column->addLayout(quietRow(present));
    connect(list, &QListWidget::currentRowChanged, this, &AlertRulesPage::showCurrent);
    connect(list, &QListWidget::itemChanged, this, &AlertRulesPage::takeTicks);
    connect(form, &AlertRuleForm::edited, this, &AlertRulesPage::takeEdited);
    list->setCurrentRow(0);
    showCurrent();
}

QLayout* AlertRulesPage::buttonRow() {
    auto* row = new QHBoxLayout;
    const std::tuple<TextId, LineIcon, void (AlertRulesPage::*)()> buttons[] = {
        {TextId::AlertAdd, LineIcon::Add, &AlertRulesPage::addNew},
        {TextId::AlertRemove, LineIcon::Remove, &AlertRulesPage::removeCurrent},
        {TextId::AlertTest, LineIcon::Bell, &AlertRulesPage::testCurrent},
        {TextId::AlertRehearse, LineIcon::Clock, &AlertRulesPage::rehearseCurrent},
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

void AlertRulesPage::add(const AlertRule& rule) {
    const QSignalBlocker nobodyTicks(list);
    rules.push_back(rule);
    auto* item = new QListWidgetItem(rule.name, list);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(rule.isOn ? Qt::Checked : Qt::Unchecked);
}

void AlertRulesPage::propose(AlertRule rule) {
    const auto known = std::ranges::find(rules, rule.query, &AlertRule::query);
    if (known != rules.end()) {
        list->setCurrentRow(int(known - rules.begin()));
        return;
    }
    const QString name = rule.name;
    for (int number = 2; std::ranges::find(rules, rule.name, &AlertRule::name) != rules.end(); ++number)
        rule.name = u"%1 (%2)"_s.arg(name).arg(number);
    add(rule);
    list->setCurrentRow(list->count() - 1);
}

void AlertRulesPage::addNew() {
    add({});
    list->setCurrentRow(list->count() - 1);
    form->editName();
}

void AlertRulesPage::removeCurrent() {
    const int row = list->currentRow();
    if (row < 0)
        return;
    rules.erase(rules.begin() + row);
    const QSignalBlocker shownBelow(list);
    delete list->takeItem(row);
    showCurrent();
}

void AlertRulesPage::testCurrent() {
    if (list->currentRow() >= 0)
        calls.test(rules[std::size_t(list->currentRow())]);
}

void AlertRulesPage::rehearseCurrent() {
    const int row = list->currentRow();
    if (row < 0)
        return;
    if (const QString text = faultOf(std::size_t(row)); !text.isEmpty()) {
        fault->setText(text);
        form->editQuery();
        return;
    }
    const QPointer<AlertRulesPage> self(this);
    const int budget = calls.rehearse(rules[std::size_t(row)]);
    if (self)
        form->setBudget(budget);
}

void AlertRulesPage::showCurrent() {
    const int row = list->currentRow();
    form->setEnabled(row >= 0);
    form->show(row >= 0 ? rules[std::size_t(row)] : AlertRule());
    fault->clear();
}

void AlertRulesPage::takeEdited() {
    const int row = list->currentRow();
    if (row < 0)
        return;
    AlertRule& rule = rules[std::size_t(row)];
    rule = form->changed(rule);
    const QSignalBlocker nobodyTicks(list);
    list->item(row)->setText(rule.name);
    fault->clear();
}

void AlertRulesPage::takeTicks() {
    for (std::size_t i = 0; i < rules.size(); ++i)
        rules[i].isOn = list->item(int(i))->checkState() == Qt::Checked;
}

QString AlertRulesPage::faultOf(std::size_t place) const {
    const AlertRule& rule = rules[place];
    if (rule.name.isEmpty() || rule.query.isEmpty())
        return terminalText(TextId::AlertRuleIncomplete);
    const auto here = rules.begin() + std::ptrdiff_t(place);
    if (std::find_if(rules.begin(), here, [&](const AlertRule& other) { return other.name == rule.name; }) !=
        here)
        return terminalText(TextId::AlertRuleTwice).arg(rule.name);
    const ReadQuery read = readQuery(rule.query, QueryUse::Alerts);
    const auto* wrong = std::get_if<QueryFault>(&read);
    return wrong != nullptr ? rule.name + u": "_s + shownText(errorOf(*wrong)) : QString();
}

QString AlertRulesPage::showFault() {
    for (std::size_t place = 0; place < rules.size(); ++place) {
        const QString text = faultOf(place);
        if (text.isEmpty())
            continue;
        list->setCurrentRow(int(place));
        fault->setText(text);
        form->editQuery();
        return text;
    }
    return {};
}

AlertSettings AlertRulesPage::settings() const {
    AlertSettings chosen;
    chosen.rules = rules;
    if (hasQuietHours->isChecked()) {
        chosen.quietFrom = minutesOf(quietFrom->time());
        chosen.quietTo = minutesOf(quietTo->time());
    }
    return chosen;
}

}  // namespace wirepane
