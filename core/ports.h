// The narrow interfaces through which the game's logic reaches the screen and the speakers.
// The windows implement them; tests give small fakes that record what was asked.
#pragma once

#include "core/game_state.h"

#include <string>
#include <string_view>

namespace griglione {

class Sounds {
public:
    virtual ~Sounds() = default;
    // Plays a wave file of the program's folder when sound is on; returns at once.
    virtual void suona(std::string_view nomeFile) = 0;
    // The system beep, whatever the sound switch says.
    virtual void beep() = 0;
};

class Messages {
public:
    virtual ~Messages() = default;
    // Shows the message window afresh with `messaggio`; a modal one returns when it is closed.
    virtual void mostraMessaggio(const Messaggio& messaggio, bool modal) = 0;
};

class Alerts {
public:
    virtual ~Alerts() = default;
    // A plain message box with an OK button under the program's title.
    virtual void avviso(const std::string& testo) = 0;
    // A message box, then the program ends at once. Returns only in tests.
    virtual void fatale(const std::string& testo) = 0;
};

// Hands a document, a web address or a "mailto:" address to the system to open. Nothing waits
// for it and nothing reports a failure.
class Outside {
public:
    virtual ~Outside() = default;
    virtual void apri(const std::string& target) = 0;
};

// What changed in the shared state, so that the window redraws just that.
enum class Aspect { Board, Word, Path, PlayerWords, CpuWords, Scores, TimeBar, CpuAttempt };

class GameView {
public:
    virtual ~GameView() = default;
    virtual void changed(Aspect aspect) = 0;
    // The busy pointer of a running submission.
    virtual void setBusy(bool busy) = 0;
};

} // namespace griglione
