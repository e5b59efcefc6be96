// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/sound/alert_sounds.h"

#include "terminal/sound/sound_player.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPluginLoader>

#include <utility>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

// Beside the program, or where it is installed; empty: it is not there.
QString playerFile() {
    const QDir programs(QCoreApplication::applicationDirPath());
    for (const QString& file : {QStringLiteral(WIREPANE_SOUND_FILE),
                                QStringLiteral("../" WIREPANE_MODULE_FOLDER "/" WIREPANE_SOUND_FILE)}) {
        if (const QString path = QDir::cleanPath(programs.filePath(file)); QFileInfo::exists(path))
            return path;
    }
    return {};
}

}  // namespace

QStringList AlertSounds::tones() {
    return {u"chime"_s, u"knock"_s, u"ping"_s};
}

AlertSounds::AlertSounds(std::function<void()> desktop) : beep(std::move(desktop)) {}

void AlertSounds::play(const QString& sound) {
    const bool isTone = tones().contains(sound);
    if ((!isTone && !QDir::isAbsolutePath(sound)) || player() == nullptr)
        return beep();
    loaded->play(isTone ? QUrl(u"qrc:/tones/%1.wav"_s.arg(sound)) : QUrl::fromLocalFile(sound), beep);
}

bool AlertSounds::canPlay() {
    return !playerFile().isEmpty();
}

SoundPlayer* AlertSounds::player() {
    if (!std::exchange(isLoaded, true))
        loaded = qobject_cast<SoundPlayer*>(QPluginLoader(playerFile()).instance());
    return loaded;
}

}  // namespace wirepane
