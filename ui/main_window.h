// The main window (Form1): the board, the word panel, the clock, the two word lists and the menu
// bar. It owns the shared game state and wires its controls to the game's logic.
#pragma once

#include "board/board_game.h"
#include "board/dealer.h"
#include "board/word_submission.h"
#include "core/game_state.h"
#include "core/ports.h"
#include "core/settings.h"
#include "core/switched_sounds.h"
#include "dictionary/dictionary.h"
#include "dictionary/open_file_table.h"
#include "dictionary/rules_text.h"
#include "opponent/opponent_walk.h"
#include "platform/picture_book.h"
#include "ui/confirm_window.h"
#include "ui/menu_bar.h"
#include "ui/message_window.h"

#include <QHash>
#include <QMainWindow>
#include <QPixmap>

#include <array>
#include <filesystem>
#include <functional>
#include <memory>

class QLabel;
class QLineEdit;
class QListWidget;
class QTimer;
class QToolButton;

namespace griglione {

class Announcer;
class BoardKeys;
class ChallengeFlow;
class DieCell;
class EditorFlow;
class MatchFlow;
class PathOverlay;
class OptionsFlow;
class RecordsFlow;
class TimeBar;

// What the window needs from outside: the real ones in the program, fakes in tests.
struct Services {
    Sounds& player;
    Alerts& alerts;
    Outside& outside;
    const Clock& clock;
    Random& random;
    std::function<void()> yield;
    std::filesystem::path folder = ".";
    // Ends the program at once, with nothing saved.
    std::function<void()> terminate;
};

class MainWindow final : public QMainWindow, public GameView {
    Q_OBJECT
public:
    explicit MainWindow(Services services);
    ~MainWindow() override;

    // The start-up steps, run once before the window is first shown.
    void startUp();

    // Stops the match and announces a new one (modal "START" message); deals nothing.
    void startPartita();
    // Restarts the clock on a new board, without an announcement.
    void nuovaPartita();
    void salvaImpostazioni();
    void settaSpessLinea();
    void aggMenudiz();

    GameState& state() { return m_state; }
    const MenuActions& menu() const { return m_menu; }
    MessageHost& messages() { return m_messages; }
    ChallengeFlow& challenges() { return *m_challenges; }

    void changed(Aspect aspect) override;
    void setBusy(bool busy) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void buildControls();
    void fitFrame(int tries);
    void wireMenu();
    void focusBoard();
    void showRules();
    void quit();

    Services m_services;
    GameState m_state;
    MenuActions m_menu;
    SwitchedSounds m_sounds;
    MessageHost m_messages;
    OpenFileTable m_files;
    Dictionary m_dictionary;
    Dealer m_dealer;
    BoardGame m_board;
    RulesText m_rules;
    QTimer* m_timer1 = nullptr;
    QTimer* m_timer2 = nullptr;
    std::unique_ptr<ConfirmPrompt> m_prompt;
    std::unique_ptr<WordSubmission> m_submission;
    std::unique_ptr<OpponentWalk> m_opponent;
    std::unique_ptr<OptionsFlow> m_options;
    std::unique_ptr<RecordsFlow> m_records;
    std::unique_ptr<MatchFlow> m_match;
    std::unique_ptr<EditorFlow> m_editors;
    ChallengeFlow* m_challenges = nullptr;
    BoardKeys* m_keys = nullptr;
    Announcer* m_announcer = nullptr;

    std::array<DieCell*, kCells> m_cells{};
    QLabel* m_word = nullptr;             // Label1
    QLineEdit* m_playerName = nullptr;    // Text1
    QListWidget* m_playerWords = nullptr; // List1
    QListWidget* m_cpuWords = nullptr;    // List2
    QLabel* m_playerScore = nullptr;      // Label10
    QLabel* m_cpuScore = nullptr;         // Label11
    QLabel* m_seconds = nullptr;          // Label4
    QLabel* m_clockFrame = nullptr;       // Label3
    QLabel* m_cpuAttempt = nullptr;       // Label8
    QLabel* m_logo = nullptr;             // Picture3
    TimeBar* m_timeBar = nullptr;         // Picture2
    PathOverlay* m_pathOverlay = nullptr; // the traced path over the dice
    std::array<QWidget*, 2> m_frames{};   // Shape1(0) frame and Shape1(1) shadow
    PictureBook m_pictures;
};

} // namespace griglione
