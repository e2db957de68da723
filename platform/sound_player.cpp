#include "platform/sound_player.h"

#include "core/file_names.h"

#include <QApplication>
#include <QAudioDevice>
#include <QFileInfo>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

namespace griglione {

SoundPlayer::SoundPlayer(QObject* parent) : QObject(parent) {}

SoundPlayer::~SoundPlayer() = default;

void SoundPlayer::suona(std::string_view nomeFile) {
    const QFileInfo file(QString::fromStdString(resolveFileName(nomeFile).string()));
    if (!file.isFile()) return;
    // Asked once, at the first sound: without an output device the effect would complain on
    // the console at every sound, and the game stays silent instead.
    if (!m_deviceChecked) {
        m_deviceChecked = true;
        // The audio back end reports a missing sound server on the console while it looks.
        const QtMessageHandler previous =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
        m_hasDevice = !QMediaDevices::audioOutputs().isEmpty();
        qInstallMessageHandler(previous);
    }
    if (!m_hasDevice) return;
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
