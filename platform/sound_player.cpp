#include "platform/sound_player.h"

#include "core/file_names.h"
#include "platform/sound_output.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>

namespace griglione {
namespace {

// The module beside the program (a portable game, the build) or in the installed game's folder.
std::unique_ptr<SoundOutput> loadOutput() {
    const QDir program(QCoreApplication::applicationDirPath());
    for (const QString& folder :
         {QStringLiteral("."), QStringLiteral(GRIGLIONE_MODULES_FROM_PROGRAM)}) {
        // Never unloaded: the output it makes lives until the program ends.
        QLibrary module(QDir::cleanPath(program.absoluteFilePath(folder + '/' + kSoundModuleFile)));
        if (!module.load()) continue;
        if (auto make = reinterpret_cast<MakeSoundOutput>(module.resolve(kMakeSoundOutput)))
            return std::unique_ptr<SoundOutput>(make());
    }
    return nullptr;
}

} // namespace

SoundPlayer::SoundPlayer(QObject* parent) : QObject(parent) {}

SoundPlayer::~SoundPlayer() = default;

void SoundPlayer::suona(std::string_view nomeFile) {
    const QFileInfo file(QString::fromStdString(resolveFileName(nomeFile).string()));
    if (!file.isFile()) return;
    // Loaded once, at the first sound, so a game that never makes a sound never opens the audio
    // device.
    if (!m_outputTried) {
        m_outputTried = true;
        m_output = loadOutput();
    }
    if (m_output) m_output->play(file.absoluteFilePath());
}

void SoundPlayer::beep() {
    QApplication::beep();
}

} // namespace griglione
