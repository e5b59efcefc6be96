// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace wirepane {
class SoundPlayer;

// What alerts are heard by: a tone of the program's, by its name, or a file of the user's, by its path. What
// is neither is the desktop's sound. Interface thread.
class AlertSounds {
public:
    // The names of the tones, as rules keep them.
    static QStringList tones();

    // `beep`: the desktop's sound.
    explicit AlertSounds(std::function<void()> beep);

    // Whether what plays tones and files is installed.
    static bool canPlay();

    // What cannot be heard is told by the desktop's sound. Loads what plays, the first time that it is
    // needed.
    void play(const QString& sound);

private:
    SoundPlayer* player();

    const std::function<void()> beep;
    bool isLoaded = false;
    SoundPlayer* loaded = nullptr;  // null: there is none
};

}  // namespace wirepane
