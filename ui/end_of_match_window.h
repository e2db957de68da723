// The end-of-match window (Form2): the winner, both scores, the history of the run's matches and
// the player's statistics. Created once and then only hidden and shown, so they keep growing.
#pragma once

#include "core/end_of_match.h"
#include "core/ports.h"

#include <QDialog>

#include <array>
#include <functional>
#include <string>

class QLabel;
class QListWidget;
class QTimer;

namespace griglione {

class MessageHost;
class PictureBook;

class EndOfMatchWindow final : public QDialog {
    Q_OBJECT
public:
    EndOfMatchWindow(QTimer& matchClock, QTimer& opponentClock, Sounds& sounds,
                     MessageHost& messages, std::function<void()> terminate, QWidget* parent);

    // Shows the result modally; returns when "&OK" has hidden the window again.
    // What "&Parole del tabellone" opens: the review of the board just played.
    void setReviewOpener(std::function<void()> open) { m_openReview = std::move(open); }

    void showResult(const QString& playerName, int playerScore, int cpuScore,
                    const std::array<bool, 4>& levelChecked);

    // The decorative picture (Picture3), fitted into its place.
    void setPicture(const PictureBook& book, const std::string& name);

protected:
    // Closing it from its frame goes on to the next match, as "&OK" does.
    void reject() override;

private:
    void goOn();

    QTimer& m_matchClock;
    QTimer& m_opponentClock;
    Sounds& m_sounds;
    MessageHost& m_messages;
    std::function<void()> m_terminate;
    std::function<void()> m_openReview;
    MatchStatistics m_statistics;
    QLabel* m_result = nullptr;
    QLabel* m_statisticsHeading = nullptr;
    std::array<QLabel*, 2> m_names{};
    std::array<QLabel*, 2> m_scores{};
    std::array<QLabel*, 3> m_counts{};
    QListWidget* m_history = nullptr;
    QLabel* m_picture = nullptr;
};

} // namespace griglione
