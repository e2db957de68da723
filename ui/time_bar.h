// The match-time bar (Picture2): white, filled in dark blue from the left as the seconds pass.
#pragma once

#include <QWidget>

namespace griglione {

class TimeBar final : public QWidget {
    Q_OBJECT
public:
    explicit TimeBar(QWidget* parent);

    int innerWidth() const { return width() - 2; }
    int filledWidth() const { return m_filled; }

    // Fills from the left edge to `x`; nothing is erased first, so the bar never shrinks.
    void fillTo(int x);
    void clear();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_filled = 0;
};

} // namespace griglione
