// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <array>

class QToolButton;

namespace wirepane {

// The small buttons of a story window: copy, smaller, larger, pin. As wide as they are.
class StoryTools : public QWidget {
    Q_OBJECT

public:
    explicit StoryTools(QWidget* parent);

    bool isPinned() const;
    void unpin();
    // In the language in force.
    void loadTexts();
    // As large as goes with texts in the font.
    void fitTo(const QFont& font);
    // In the order in which they stand.
    const std::array<QToolButton*, 4>& buttons() const { return row; }

Q_SIGNALS:
    void copyWanted();
    void sizeWanted(int step);  // as steppedStorySize has it

private:
    std::array<QToolButton*, 4> row{};
};

}  // namespace wirepane
