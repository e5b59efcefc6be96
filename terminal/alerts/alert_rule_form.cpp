// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/alerts/alert_rule_form.h"

#include "host/contract/headline_looks.h"
#include "host/controls/row_tints.h"
#include "terminal/alerts/sound_box.h"
#include "terminal/translations/terminal_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

#include <array>
#include <cstddef>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int longestName = 80;

void addTints(QComboBox& choice) {
    constexpr std::array<TextId, HeadlineLook::tints + 1> names{
        TextId::TintNone, TextId::TintRed,  TextId::TintOrange, TextId::TintGreen,
        TextId::TintCyan, TextId::TintBlue, TextId::TintViolet};
    constexpr int side = 12;
    for (int tint = 0; tint <= HeadlineLook::tints; ++tint) {
        QPixmap sample(side, side);
        sample.fill(tint == 0 ? Qt::transparent : sampleOfTint(tint));
        choice.addItem(sample, terminalText(names[std::size_t(tint)]));
    }
}

QLabel* labelOf(TextId text, QWidget& field) {
    auto* label = new QLabel(terminalText(text));
    label->setBuddy(&field);
    constexpr int underlined = 4;  // a letter that is underlined takes more room than it is measured to
    label->setMinimumWidth(label->sizeHint().width() + underlined);
    return label;
}

}  // namespace

AlertRuleForm::AlertRuleForm()
    : name(new QLineEdit),
      query(new QLineEdit),
      hasToast(new QCheckBox(terminalText(TextId::AlertToast))),
      toastSeconds(new QSpinBox),
      hasNotice(new QCheckBox(terminalText(TextId::AlertNotice))),
      sound(new SoundBox),
      onlyConnected(new QCheckBox(terminalText(TextId::AlertOnlyConnected))),
      pause(new QSpinBox),
      budget(new QSpinBox),
      tint(new QComboBox),
      tag(new QLineEdit) {
    name->setObjectName(u"name"_s);
    query->setObjectName(u"query"_s);
    pause->setObjectName(u"pause"_s);
    name->setMaxLength(longestName);
    tag->setMaxLength(longestAlertTag);
    constexpr int queryInCharacters = 44;
    query->setMinimumWidth(fontMetrics().averageCharWidth() * queryInCharacters);
    toastSeconds->setRange(0, longestToast);
    toastSeconds->setSuffix(terminalText(TextId::AlertSeconds));
    toastSeconds->setSpecialValueText(terminalText(TextId::AlertUntilClosed));
    pause->setRange(0, longestAlertPause);
    pause->setSuffix(terminalText(TextId::AlertSeconds));
    budget->setRange(0, largestAlertBudget);
    budget->setSpecialValueText(terminalText(TextId::AlertNoBudget));
    budget->setSuffix(terminalText(TextId::AlertAnHour));
    addTints(*tint);
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(labelOf(TextId::AlertRuleName, *name), name);
    form->addRow(labelOf(TextId::AlertLooksFor, *query), query);
    toastSeconds->setAccessibleName(terminalText(TextId::AlertStays));
    auto* corner = new QHBoxLayout;
    corner->addWidget(hasToast);
    corner->addWidget(toastSeconds);
    corner->addStretch(1);
    form->addRow(QString(), corner);
    form->addRow(QString(), hasNotice);
    form->addRow(labelOf(TextId::AlertSound, *sound), sound);
    form->addRow(QString(), onlyConnected);
    for (const QCheckBox* box : {hasToast, hasNotice, onlyConnected})
        connect(box, &QCheckBox::toggled, this, &AlertRuleForm::edited);
    connect(hasToast, &QCheckBox::toggled, toastSeconds, &QWidget::setEnabled);
    connect(sound, &SoundBox::chosen, this, &AlertRuleForm::edited);
    form->addRow(labelOf(TextId::AlertPauseOf, *pause), pause);
    form->addRow(labelOf(TextId::AlertBudget, *budget), budget);
    auto* looks = new QHBoxLayout;
    looks->addWidget(tint);
    looks->addWidget(labelOf(TextId::AlertTag, *tag));
    looks->addWidget(tag, 1);
    form->addRow(labelOf(TextId::AlertTint, *tint), looks);
    for (const QLineEdit* edit : {name, query, tag})
        connect(edit, &QLineEdit::textEdited, this, &AlertRuleForm::edited);
    for (const QSpinBox* number : {toastSeconds, pause, budget})
        connect(number, &QSpinBox::valueChanged, this, &AlertRuleForm::edited);
    connect(tint, &QComboBox::currentIndexChanged, this, &AlertRuleForm::edited);
}

void AlertRuleForm::show(const AlertRule& rule) {
    const QSignalBlocker nobodyEdits(this);
    name->setText(rule.name);
    query->setText(rule.query);
    query->setCursorPosition(0);
    hasToast->setChecked(rule.hasToast);
    toastSeconds->setValue(rule.toastSeconds);
    toastSeconds->setEnabled(rule.hasToast);
    hasNotice->setChecked(rule.hasNotice);
    sound->setSound(rule.sound);
    onlyConnected->setChecked(rule.onlyConnected);
    pause->setValue(rule.pauseSeconds);
    budget->setValue(rule.budget);
    tint->setCurrentIndex(rule.tint);
    tag->setText(rule.tag);
}

AlertRule AlertRuleForm::changed(AlertRule rule) const {
    rule.name = name->text().trimmed();
    rule.query = query->text().trimmed();
    rule.hasToast = hasToast->isChecked();
    rule.toastSeconds = toastSeconds->value();
    rule.hasNotice = hasNotice->isChecked();
    rule.sound = sound->sound();
    rule.onlyConnected = onlyConnected->isChecked();
    rule.pauseSeconds = pause->value();
    rule.budget = budget->value();
    rule.tint = tint->currentIndex();
    rule.tag = alertTag(tag->text());
    return rule;
}

void AlertRuleForm::editName() {
    name->setFocus();
    name->selectAll();
}

void AlertRuleForm::editQuery() {
    query->setFocus();
}

void AlertRuleForm::setBudget(int hitsAnHour) {
    budget->setValue(hitsAnHour);
}

}  // namespace wirepane
