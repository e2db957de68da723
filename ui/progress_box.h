// The main dictionary editor's progress bar (Picture1): a yellow box for a length about to be
// read, filled in blue from the left as its words come in; plain white when cleared.
#pragma once

#include <QWidget>

namespace griglione {

class ProgressBox final : public QWidget {
    Q_OBJECT
public:
    explicit ProgressBox(QWidget* parent);

    // The empty bar of a new length.
    void fillYellow();
    // A blue box from the left edge to `fraction` of the width plus `extra` pixels.
    void fillTo(double fraction, int extra = 0);
    void clear();

    int filledWidth() const { return m_filled; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_background;
    int m_filled = 0;
};

} // namespace griglione
