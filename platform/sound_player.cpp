#include "platform/sound_player.h"

#include "core/file_names.h"

#include <QApplication>
#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>

namespace griglione {

SoundPlayer::SoundPlayer(QObject* parent) : QObject(parent) {}

SoundPlayer::~SoundPlayer() = default;

void SoundPlayer::suona(std::string_view nomeFile) {
    const QFileInfo file(QString::fromStdString(resolveFileName(nomeFile).string()));
    if (!file.isFile()) return;
    // Created on first use, so a game that never makes a sound never opens the audio device.
    if (!m_effect) m_effect = new QSoundEffect(this);
    m_effect->stop();
    m_effect->setSource(QUrl::fromLocalFile(file.absoluteFilePath()));
    m_effect->play();
}

void SoundPlayer::beep() {
    QApplication::beep();
}

} // namespace griglione
