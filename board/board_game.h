// The board in play: dealing, tracing a word with presses on the dice or typed letters, turning a
// die, clearing.
#pragma once

#include "board/board_code.h"
#include "board/dealer.h"
#include "board/path.h"
#include "board/typed_trace.h"
#include "core/game_state.h"
#include "core/ports.h"

namespace griglione {

// Mouse button codes of a press on a die.
enum MouseButton { kLeftButton = 1, kRightButton = 2, kMiddleButton = 4 };

enum class PressResult {
    StartMatch,  // no match is running: the press starts one and selects nothing
    Refused,     // the die is already in the word: a beep
    Turned,      // right button: the die shows its next face
    NotAdjacent, // the die does not touch the last one: a beep and a message
    Selected,    // the die's letter was added to the word
};

class BoardGame {
public:
    BoardGame(GameState& state, Dealer& dealer, Sounds& sounds, Messages& messages, GameView& view);

    // A new board of random letters, or the blank board. Every deal also empties both word
    // lists, zeroes both scores and clears the traced word and the time bar.
    void lanciaDadi(bool conLettere);

    // A deal that puts exactly `board` on the dice (its language becomes the match's), with
    // everything else a deal does.
    void lanciaTabellone(const SharedBoard& board);

    // Clears the traced word, its marks on the dice and the time bar.
    void azzeraParola();

    // The "Azzera" button's action: its sound, then the clear.
    void azzera();

    PressResult press(int n, int button, bool matchRunning);

    // A letter typed while a match runs: the word follows a path of touching dice that spells
    // every letter typed, drawn as if its dice had been pressed. Refused with a beep, the word
    // unchanged, when no path can take it. Presses go on from the path shown.
    PressResult typeLetter(char letter, bool matchRunning);

    // Backspace: the last letter goes, and the paths the word had before come back.
    PressResult takeBack(bool matchRunning);

    // Once a second while a word is traced: the newest die's incoming segment blinks.
    void blink();

    const Path& path() const { return m_path; }

private:
    void clearForDeal();
    void showDeal();
    void turnDie(int n);
    CellLetters letters() const;
    void showTrace(const std::vector<int>& cells);

    GameState& m_state;
    Dealer& m_dealer;
    Sounds& m_sounds;
    Messages& m_messages;
    GameView& m_view;
    Path m_path;
    TypedTrace m_typed;
    std::vector<int> m_traced; // the dice of the word, in order
};

} // namespace griglione
