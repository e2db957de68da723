// The unknown-word confirmation (Form6): add the word to the personal vocabulary with points,
// without points, or not at all. The match clock stands still while it is open.
#pragma once

#include "board/word_submission.h"
#include "core/game_state.h"
#include "ui/message_window.h"

#include <QDialog>

#include <filesystem>

class QRadioButton;
class QTimer;

namespace griglione {

class ConfirmWindow final : public QDialog {
    Q_OBJECT
public:
    ConfirmWindow(const std::string& parola, const std::string& nomeDizionario,
                  const std::string& rules, QWidget* parent);
    int risposta() const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::array<QRadioButton*, 3> m_options{};
};

// Opens a fresh confirmation window for every unknown word; the clock stops on opening and runs
// again when it closes, by its button or by its frame (which answers 3, the preselected option).
class ConfirmPrompt final : public UnknownWordPrompt {
public:
    ConfirmPrompt(const GameState& state, QTimer& matchClock, MessageHost& messages,
                  std::filesystem::path folder, QWidget* parent)
        : m_state(state), m_matchClock(matchClock), m_messages(messages),
          m_folder(std::move(folder)), m_parent(parent) {}

    int confermaParola(const std::string& parola) override;

private:
    const GameState& m_state;
    QTimer& m_matchClock;
    MessageHost& m_messages;
    std::filesystem::path m_folder;
    QWidget* m_parent;
};

} // namespace griglione
