// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/frame/settings_dialog.h"

#include "host/controls/plain_caption.h"
#include "terminal/frame/dialog_buttons.h"
#include "terminal/translations/terminal_text.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QSpinBox>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int widthInCharacters = 64;

QLabel* explanation(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

// All as wide as the widest.
void alignFields(const QList<QWidget*>& fields) {
    int widest = 0;
    for (QWidget* field : fields) {
        field->ensurePolished();
        widest = std::max(widest, field->sizeHint().width());
    }
    for (QWidget* field : fields)
        field->setMinimumWidth(widest);
}

// An explanation that stands under a check box, where its text begins.
QLayout* indented(QLabel* label) {
    auto* row = new QHBoxLayout;
    row->addSpacing(label->style()->pixelMetric(QStyle::PM_IndicatorWidth) + 6);
    row->addWidget(label, 1);
    return row;
}

}  // namespace

SettingsDialog::SettingsDialog(const TerminalChoices& present, QWidget* parent)
    : QDialog(parent), pages(new QTabWidget) {
    setWindowTitle(terminalText(TextId::SettingsTitle));
    pages->setAccessibleName(windowTitle());
    pages->addTab(generalPage(present), terminalText(TextId::SettingsGeneral));
    pages->addTab(newsPage(present), terminalText(TextId::SettingsNews));
    QDialogButtonBox* buttons = dialogButtons(*this, TextId::SettingsSave);
    auto* column = new QVBoxLayout(this);
    column->addWidget(pages);
    column->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * widthInCharacters);
    language->setFocus();
}

void SettingsDialog::addPage(QWidget* page, const QString& name, std::function<bool()> isReady) {
    pages->addTab(page, name);
    setMinimumWidth(std::max(minimumWidth(), layout()->totalMinimumSize().width()));
    added.emplace_back(page, std::move(isReady));
}

void SettingsDialog::showPage(QWidget* page) {
    pages->setCurrentWidget(page);
}

void SettingsDialog::accept() {
    for (const auto& [page, isReady] : added) {
        if (isReady())
            continue;
        pages->setCurrentWidget(page);
        return;
    }
    QDialog::accept();
}

QWidget* SettingsDialog::generalPage(const TerminalChoices& present) {
    auto* page = new QWidget;
    language = new QComboBox;
    language->addItem(terminalText(TextId::LanguageEnglish), u"en"_s);
    language->addItem(terminalText(TextId::LanguageTraditionalChinese), u"zh-TW"_s);
    language->addItem(terminalText(TextId::LanguageSimplifiedChinese), u"zh-CN"_s);
    language->setCurrentIndex(language->findData(present.language));
    scheme = new QComboBox;
    for (const auto& [text, value] : {std::pair(TextId::SchemeLight, ColourScheme::Light),
                                      std::pair(TextId::SchemeDark, ColourScheme::Dark),
                                      std::pair(TextId::SchemeContrast, ColourScheme::HighContrast)})
        scheme->addItem(captionWithoutKey(terminalText(text)), static_cast<int>(value));
    scheme->setCurrentIndex(scheme->findData(static_cast<int>(present.scheme)));
    rising = new QComboBox;
    rising->addItem(terminalText(TextId::RisingRed), false);
    rising->addItem(terminalText(TextId::RisingGreen), true);
    rising->setCurrentIndex(rising->findData(present.greenIsUp));
    fontSize = new QSpinBox;
    fontSize->setRange(TerminalSettings::smallestFont, TerminalSettings::largestFont);
    fontSize->setValue(present.fontSize);
    fontSize->setSuffix(terminalText(TextId::SettingsPoints));
    auto* form = new QFormLayout(page);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->setLabelAlignment(Qt::AlignLeft);
    form->setContentsMargins(16, 16, 16, 16);
    form->setVerticalSpacing(10);
    form->addRow(terminalText(TextId::SettingsLanguage), language);
    form->addRow(terminalText(TextId::SettingsScheme), scheme);
    form->addRow(terminalText(TextId::SettingsRising), rising);
    form->addRow(terminalText(TextId::SettingsFont), fontSize);
    alignFields({language, scheme, rising, fontSize});
    return page;
}

QWidget* SettingsDialog::newsPage(const TerminalChoices& present) {
    auto* page = new QWidget;
    normalSearch = new QCheckBox(terminalText(TextId::SettingsNormalSearch));
    normalSearch->setChecked(present.switches.normalSearch);
    warningSearch = new QCheckBox(terminalText(TextId::SettingsWarningSearch));
    warningSearch->setChecked(present.switches.warningSearch);
    bothWarning = explanation(terminalText(TextId::SettingsBothSearches));
    QFont bold = bothWarning->font();
    bold.setBold(true);
    bothWarning->setFont(bold);
    // Its room is kept, so that the page does not move under the pointer.
    QSizePolicy policy = bothWarning->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    bothWarning->setSizePolicy(policy);
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(16, 16, 16, 16);
    column->addWidget(normalSearch);
    column->addLayout(indented(explanation(terminalText(TextId::SettingsNormalSearchHelp))));
    column->addSpacing(8);
    column->addWidget(warningSearch);
    column->addLayout(indented(explanation(terminalText(TextId::SettingsWarningSearchHelp))));
    column->addSpacing(8);
    column->addWidget(bothWarning);
    column->addWidget(explanation(terminalText(TextId::SettingsReopen)));
    column->addStretch(1);
    connect(normalSearch, &QCheckBox::toggled, this, &SettingsDialog::showWarning);
    connect(warningSearch, &QCheckBox::toggled, this, &SettingsDialog::showWarning);
    showWarning();
    return page;
}

void SettingsDialog::showWarning() {
    bothWarning->setVisible(normalSearch->isChecked() && warningSearch->isChecked());
}

TerminalChoices SettingsDialog::choices() const {
    return {language->currentData().toString(),
            static_cast<ColourScheme>(scheme->currentData().toInt()),
            rising->currentData().toBool(),
            fontSize->value(),
            {normalSearch->isChecked(), warningSearch->isChecked()}};
}

}  // namespace wirepane
