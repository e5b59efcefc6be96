// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "story/story_tools.h"

#include "headline_list/language_keys.h"
#include "host/contract/lang_text.h"
#include "host/controls/line_icon.h"
#include "host/controls/row_look.h"

#include <QKeySequence>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

constexpr int usualSide = 28;
constexpr int gap = 4;
constexpr std::size_t pin = 3;

struct Tool {
    LineIcon icon;
    QLatin1StringView textKey;
    QLatin1StringView shortcut;  // empty: it has none
};

constexpr std::array<Tool, 4> tools{{
    {LineIcon::Copy, keys::storyCopy, "Ctrl+C"_L1},
    {LineIcon::Smaller, keys::storySmaller, "Ctrl+-"_L1},
    {LineIcon::Larger, keys::storyLarger, "Ctrl++"_L1},
    {LineIcon::Pin, keys::storyPin, {}},
}};

}  // namespace

StoryTools::StoryTools(QWidget* parent) : QWidget(parent) {
    for (std::size_t at = 0; at < tools.size(); ++at) {
        row[at] = new QToolButton(this);
        row[at]->setIcon(lineIcon(tools[at].icon));
        row[at]->setAutoRaise(true);
        row[at]->setFocusPolicy(Qt::StrongFocus);
    }
    row[pin]->setCheckable(true);
    fitTo(font());
    connect(row[0], &QToolButton::clicked, this, &StoryTools::copyWanted);
    connect(row[1], &QToolButton::clicked, this, [this] { emit sizeWanted(-1); });
    connect(row[2], &QToolButton::clicked, this, [this] { emit sizeWanted(1); });
}

bool StoryTools::isPinned() const {
    return row[pin]->isChecked();
}

void StoryTools::unpin() {
    row[pin]->setChecked(false);
}

void StoryTools::fitTo(const QFont& font) {
    const int side = grown(usualSide, font);
    for (std::size_t at = 0; at < row.size(); ++at)
        row[at]->setGeometry(static_cast<int>(at) * (side + gap), 0, side, side);
    setFixedSize(static_cast<int>(row.size()) * (side + gap) - gap, side);
}

void StoryTools::loadTexts() {
    for (std::size_t at = 0; at < tools.size(); ++at) {
        const QString name = langText(tools[at].textKey);
        const QKeySequence key{QString(tools[at].shortcut)};
        row[at]->setAccessibleName(name);
        row[at]->setToolTip(
            key.isEmpty() ? name.toHtmlEscaped()
                          : u"%1 (%2)"_s.arg(name, key.toString(QKeySequence::NativeText)).toHtmlEscaped());
    }
}

}  // namespace wirepane
