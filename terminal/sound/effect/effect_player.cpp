// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sound/sound_player.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QTimer>

#include <memory>
#include <utility>

namespace wirepane {

// Plays through Qt Multimedia.
class EffectPlayer : public QObject, public SoundPlayer {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID WIREPANE_SOUND_PLAYER)
    Q_INTERFACES(wirepane::SoundPlayer)

public:
    void play(const QUrl& file, std::function<void()> failed) override {
        effect = std::make_unique<QSoundEffect>();
        tell = std::move(failed);
        // Without a device it would keep silent, and say nothing.
        if (QMediaDevices::audioOutputs().isEmpty()) {
            QTimer::singleShot(0, effect.get(), [this] { fail(); });
            return;
        }
        connect(effect.get(), &QSoundEffect::statusChanged, this, [this] {
            if (effect->status() == QSoundEffect::Error)
                fail();
        });
        effect->setSource(file);
        effect->play();
    }

private:
    void fail() {
        if (const auto once = std::exchange(tell, {}))
            once();
    }

    std::unique_ptr<QSoundEffect> effect;
    std::function<void()> tell;
};

}  // namespace wirepane

#include "effect_player.moc"
