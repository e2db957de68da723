// The review of the board just played, opened over the end-of-match window: the dice, the words
// each player found and those nobody found, and where each of them lies on the board.
#pragma once

#include "board/path.h"
#include "core/game_state.h"
#include "platform/picture_book.h"
#include "review/board_review.h"

#include <QDialog>

#include <array>
#include <filesystem>
#include <optional>
#include <vector>

class QLabel;
class QListWidget;
class QPushButton;

namespace griglione {

class DieCell;
class PathOverlay;

class ReviewWindow final : public QDialog {
    Q_OBJECT
public:
    // Made once and shown again for every board, like the end-of-match window it opens over.
    explicit ReviewWindow(QWidget* parent);

    // Shows the board of `state`: reads the word list of the language played, finds the board's
    // words and releases the list again, so only the words found stay in memory.
    void load(const GameState& state, const std::filesystem::path& folder);

    // `load`, then the review modally over its parent; returns when it is closed.
    void showBoard(const GameState& state, const std::filesystem::path& folder);

    // A strip below the review (the code of a shared board and its buttons); the window grows
    // by its height while it is shown.
    void setFooter(QWidget* footer, bool shown);

private:
    void buildBoard();
    void buildLists();
    void showWords();
    void cellPressed(int cell);
    void wordChosen(std::size_t list, int row);
    void drawPath(const std::vector<int>& path);

    BoardLetters m_letters{};
    BoardReview m_review;
    int m_filter = -1; // the die whose words alone are shown; -1 for all
    Path m_path;
    std::array<DieCell*, kCells> m_cells{};
    std::optional<PictureBook> m_pictures; // made at the first opening, kept with its renderings
    PathOverlay* m_overlay = nullptr;
    QWidget* m_marker = nullptr; // the frame around the filtering die
    QPushButton* m_close = nullptr;
    QLabel* m_total = nullptr;
    QLabel* m_hint = nullptr;
    std::array<QLabel*, 3> m_headings{};
    std::array<QLabel*, 3> m_counts{}; // under each heading, apart so its access key stays clear
    std::array<QListWidget*, 3> m_lists{};
    std::array<std::vector<const ReviewEntry*>, 3> m_shown;
};

} // namespace griglione
