// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

namespace wirepane {

// Chooses what a rule is heard by: nothing, the desktop's sound, and where it can be played a tone or a file.
class SoundBox : public QComboBox {
    Q_OBJECT

public:
    SoundBox();

    // As AlertRule has it.
    void setSound(const QString& sound);
    QString sound() const { return present; }

signals:
    void chosen();

private:
    void take(int row);
    void chooseFile();

    QString present;
};

}  // namespace wirepane
