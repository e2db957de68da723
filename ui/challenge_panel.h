// The strip under the review of a shared board: its code, ready to be copied or passed on as a
// link, and the button that sends the match to the challenge's table.
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace griglione {

class ChallengePanel final : public QWidget {
    Q_OBJECT
public:
    explicit ChallengePanel(QWidget* parent = nullptr);

    // The board's code; clears what an earlier copy said.
    void setCode(const QString& code);
    // A word after an action: "copied", "sent".
    void setStatus(const QString& status);

    QSize sizeHint() const override;

signals:
    void copyCode();
    void copyLink();
    void send();

private:
    QLabel* m_code = nullptr;
    QLabel* m_status = nullptr;
};

} // namespace griglione
