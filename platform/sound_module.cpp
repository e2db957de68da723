// The sound module: QSoundEffect behind SoundOutput.
#include "platform/sound_output.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

namespace griglione {
namespace {

class EffectOutput final : public SoundOutput {
public:
    void play(const QString& absolutePath) override {
        m_effect.stop();
        m_effect.setSource(QUrl::fromLocalFile(absolutePath));
        m_effect.play();
    }

private:
    QSoundEffect m_effect;
};

bool hasAudioDevice() {
    // The audio back end reports a missing sound server on the console while it looks.
    const QtMessageHandler previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const bool found = !QMediaDevices::audioOutputs().isEmpty();
    qInstallMessageHandler(previous);
    return found;
}

} // namespace
} // namespace griglione

extern "C" Q_DECL_EXPORT griglione::SoundOutput* griglione_make_sound_output() {
    // Without an output device the effect would complain on the console at every sound.
    return griglione::hasAudioDevice() ? new griglione::EffectOutput : nullptr;
}
