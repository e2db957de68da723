// Submitting the traced word: length and already-found checks, the dictionary check, the
// unknown-word confirmation, scoring and the messages of each outcome.
#pragma once

#include "board/board_game.h"
#include "core/game_state.h"
#include "core/ports.h"
#include "dictionary/dictionary.h"
#include "dictionary/open_file_table.h"

namespace griglione {

// The modal confirmation of a word neither dictionary knows: 1 add and score, 2 add without
// points, 3 do not add.
class UnknownWordPrompt {
public:
    virtual ~UnknownWordPrompt() = default;
    virtual int confermaParola(const std::string& parola) = 0;
};

class WordSubmission {
public:
    WordSubmission(GameState& state, BoardGame& board, Dictionary& dictionary, OpenFileTable& files,
                   Sounds& sounds, Messages& messages, GameView& view, UnknownWordPrompt& prompt);

    void inviaParola();

    // True while a submission runs (its busy pointer is showing); a second one is ignored.
    bool busy() const { return m_busy; }

private:
    void setBusy(bool busy);
    void show(Messaggio messaggio);
    // `dalPrincipale`: the main dictionary knows the word, so it counts in a challenge.
    void accept(bool dalPrincipale);

    GameState& m_state;
    BoardGame& m_board;
    Dictionary& m_dictionary;
    OpenFileTable& m_files;
    Sounds& m_sounds;
    Messages& m_messages;
    GameView& m_view;
    UnknownWordPrompt& m_prompt;
    bool m_busy = false;
};

} // namespace griglione
