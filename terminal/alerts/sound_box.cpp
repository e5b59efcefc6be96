// SPDX-FileCopyrightText: The Wirepane authors
// SPDX-License-Identifier: MIT
#include "terminal/alerts/sound_box.h"

#include "backend/alerts/alert_rule.h"
#include "host/controls/heap_dialog.h"
#include "terminal/frame/message_boxes.h"
#include "terminal/sound/alert_sounds.h"
#include "terminal/sound/wave_file.h"
#include "terminal/translations/shown_text.h"
#include "terminal/translations/terminal_text.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

#include <array>

using namespace Qt::StringLiterals;

namespace wirepane {

namespace {

const QString another = u"/"_s;  // no file: one is to be chosen

}  // namespace

SoundBox::SoundBox() {
    addItem(terminalText(TextId::AlertSoundNone), QString());
    addItem(terminalText(TextId::AlertSoundDesktop), QString(soundOfDesktop));
    if (AlertSounds::canPlay()) {
        constexpr std::array names{TextId::AlertSoundChime, TextId::AlertSoundKnock, TextId::AlertSoundPing};
        const QStringList tones = AlertSounds::tones();
        for (std::size_t tone = 0; tone < names.size(); ++tone)
            addItem(terminalText(names[tone]), tones.value(qsizetype(tone)));
        addItem(terminalText(TextId::AlertSoundFile), another);
    }
    connect(this, &QComboBox::activated, this, &SoundBox::take);
}

// One that is not among them stands before the choice of a file; also where it cannot be played here.
void SoundBox::setSound(const QString& sound) {
    present = sound;
    if (findData(sound) < 0) {
        const QString name = QFileInfo(sound).fileName();
        const int file = findData(another);
        insertItem(file < 0 ? count() : file, name.isEmpty() ? sound : name, sound);
    }
    setCurrentIndex(findData(sound));
}

void SoundBox::take(int row) {
    const QString wanted = itemData(row).toString();
    if (wanted == another)
        return chooseFile();
    if (wanted == present)
        return;
    present = wanted;
    emit chosen();
}

void SoundBox::chooseFile() {
    const QPointer<SoundBox> self(this);
    const HeapDialog dialog(new QFileDialog(window(), terminalText(TextId::AlertSoundChoose),
                                            QFileInfo(present).absolutePath(),
                                            terminalText(TextId::AlertSoundFiles)));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setLabelText(QFileDialog::Accept, terminalText(TextId::AlertSoundUse));
    const bool isChosen = dialog->exec() == QDialog::Accepted && self;
    if (!self)
        return;
    const QString file = isChosen ? dialog->selectedFiles().value(0) : QString();
    if (const Done can = isChosen ? checkWaveFile(file) : Done(Nothing{}); !can) {
        const HeapDialog box(tellingBox(window(), QMessageBox::Warning, shownText(can.error())));
        box->exec();
    } else if (isChosen) {
        setSound(file);
        emit chosen();
        return;
    }
    if (self)
        setSound(present);
}

}  // namespace wirepane
