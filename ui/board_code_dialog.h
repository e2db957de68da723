// The dialog of "Gioca un tabellone…": asks for a board's code or a challenge link and keeps
// asking, with a message for each kind of mistake, until the text names a board or is cancelled.
#pragma once

#include "board/board_code.h"

#include <QDialog>

#include <optional>

class QLabel;
class QLineEdit;

namespace griglione {

class BoardCodeDialog final : public QDialog {
    Q_OBJECT
public:
    // `current`: the code of the board in play, offered to be copied; empty for none.
    BoardCodeDialog(const QString& current, QWidget* parent);

    // Why a text is not a board's code, as the player reads it.
    static QString errorText(CodeError error);

    // The board of the code accepted; nothing before, or after a cancel.
    const std::optional<SharedBoard>& board() const { return m_board; }

private:
    void tryCode();

    QLineEdit* m_code = nullptr;
    QLabel* m_error = nullptr;
    std::optional<SharedBoard> m_board;
};

} // namespace griglione
