// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/settings/terminal_settings.h"

#include <QWidget>

class QCheckBox;

namespace wirepane {

// The page of the settings on which the user says whether a diary is kept, and reads what it holds and for
// how long. It changes nothing itself.
class DiaryPage : public QWidget {
    Q_OBJECT

public:
    DiaryPage(const DiaryChoices& present, const QString& file);

    DiaryChoices choices() const;

private:
    QCheckBox* keep;
    QCheckBox* words;
};

}  // namespace wirepane
