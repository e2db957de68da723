// The half of the sound player that talks to the audio system. It lives in a module of its own,
// loaded at the first sound: the audio libraries and the sound server's client are many and
// slow to load, and a game that starts silent need not wait for them.
#pragma once

class QString;

namespace griglione {

class SoundOutput {
public:
    virtual ~SoundOutput() = default;
    // Cuts off the effect still playing and plays the WAV file at `absolutePath`.
    virtual void play(const QString& absolutePath) = 0;
};

// The module's one entry point: a new output, or null when the system has no audio device.
using MakeSoundOutput = SoundOutput* (*)();
inline constexpr const char* kMakeSoundOutput = "griglione_make_sound_output";

// The module's file name, beside the program or in its installed folder.
inline constexpr const char* kSoundModuleFile = "griglione-sound.so";

} // namespace griglione
