// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/diary/diary_page.h"

#include "terminal/translations/terminal_text.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QVBoxLayout>

namespace wirepane {

DiaryPage::DiaryPage(const DiaryChoices& present, const QString& file)
    : keep(new QCheckBox(terminalText(TextId::SettingsDiaryKeep))),
      words(new QCheckBox(terminalText(TextId::SettingsDiaryWords))) {
    keep->setChecked(present.isKept);
    words->setChecked(present.hasWords);
    words->setEnabled(present.isKept);
    connect(keep, &QCheckBox::toggled, words, &QCheckBox::setEnabled);
    auto* help = new QLabel(terminalText(TextId::SettingsDiaryHelp).arg(QDir::toNativeSeparators(file)));
    help->setTextFormat(Qt::PlainText);
    help->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->addWidget(keep);
    column->addWidget(words);
    column->addSpacing(8);
    column->addWidget(help);
    column->addStretch(1);
}

DiaryChoices DiaryPage::choices() const {
    return {keep->isChecked(), words->isChecked()};
}

}  // namespace wirepane
