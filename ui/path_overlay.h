// The traced path, drawn over the whole board so that a thick line crossing the corner of two
// dice is not cut by the dice it does not belong to. Clicks pass through it to the dice.
#pragma once

#include "board/path.h"

#include <QWidget>

class QPainter;

namespace griglione {

class PathOverlay final : public QWidget {
    Q_OBJECT
public:
    // `cellSize` is the size of one die; the overlay covers the 5 × 5 block.
    PathOverlay(const Path& path, QSize cellSize, QWidget* parent);

    void setLineWidth(int pixels);

    // Rings the die a path starts from, so its direction shows; -1 for none.
    void setStartCell(int cell);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void drawStartRing(QPainter& painter) const;

private:
    const Path& m_path;
    QSize m_cell;
    int m_lineWidth = 12;
    int m_start = -1;
};

} // namespace griglione
