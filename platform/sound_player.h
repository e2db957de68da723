// Sound effects: one player, so a new effect cuts off the one still playing; silent when the
// file is missing or there is no audio device.
#pragma once

#include "core/ports.h"

#include <QObject>

class QSoundEffect;

namespace griglione {

class SoundPlayer final : public QObject, public Sounds {
    Q_OBJECT
public:
    explicit SoundPlayer(QObject* parent = nullptr);
    ~SoundPlayer() override;

    void suona(std::string_view nomeFile) override;
    void beep() override;

private:
    QSoundEffect* m_effect = nullptr;
    bool m_deviceChecked = false;
    bool m_hasDevice = false;
};

} // namespace griglione
