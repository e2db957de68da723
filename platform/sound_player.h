// Sound effects: one player, so a new effect cuts off the one still playing; silent when the
// file is missing, when there is no audio device, or when the sound module cannot be loaded.
#pragma once

#include "core/ports.h"

#include <QObject>

#include <memory>

namespace griglione {

class SoundOutput;

class SoundPlayer final : public QObject, public Sounds {
    Q_OBJECT
public:
    explicit SoundPlayer(QObject* parent = nullptr);
    ~SoundPlayer() override;

    void suona(std::string_view nomeFile) override;
    void beep() override;

private:
    bool m_outputTried = false;
    std::unique_ptr<SoundOutput> m_output;
};

} // namespace griglione
