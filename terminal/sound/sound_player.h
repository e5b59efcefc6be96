// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>
#include <QtPlugin>

#include <functional>

namespace wirepane {

// Plays short sounds; lives in a module of its own, which is loaded when the first one is to be heard.
// Interface thread; nothing of it waits.
class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;

    // Plays a file once; what is playing ends. `failed`: it cannot be heard, called at most once, from the
    // event loop, and never after the next one was begun.
    virtual void play(const QUrl& file, std::function<void()> failed) = 0;
};

}  // namespace wirepane

#define WIREPANE_SOUND_PLAYER "wirepane.SoundPlayer/1"
Q_DECLARE_INTERFACE(wirepane::SoundPlayer, WIREPANE_SOUND_PLAYER)
