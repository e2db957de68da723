#include "ui/path_overlay.h"

#include "core/game_state.h"

#include <QPainter>

#include <algorithm>

namespace griglione {

PathOverlay::PathOverlay(const Path& path, QSize cellSize, QWidget* parent)
    : QWidget(parent), m_path(path), m_cell(cellSize) {
    setObjectName("path");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    resize(m_cell.width() * kBoardSide, m_cell.height() * kBoardSide);
}

void PathOverlay::setLineWidth(int pixels) {
    m_lineWidth = pixels;
    update();
}

void PathOverlay::setStartCell(int cell) {
    m_start = cell;
    update();
}

void PathOverlay::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0, 0, 128), m_lineWidth, Qt::SolidLine, Qt::RoundCap));
    for (int n = 0; n < kCells; ++n) {
        const QPointF origin((n % kBoardSide) * m_cell.width(), (n / kBoardSide) * m_cell.height());
        const auto point = [&](Anchor anchor) {
            const auto [x, y] = anchorPoint(anchor);
            return origin + QPointF(x * m_cell.width(), y * m_cell.height());
        };
        const auto draw = [&](const Segment& segment) {
            if (segment.hidden()) return;
            if (segment.from == segment.to) // the first die of a word: a dot
                painter.drawPoint(point(segment.from));
            else
                painter.drawLine(point(segment.from), point(segment.to));
        };
        const CellMarks& marks = m_path.marks(n);
        if (marks.line1Visible) draw(marks.line1);
        draw(marks.line2);
    }
    if (m_start >= 0 && m_start < kCells) drawStartRing(painter);
}

// A ring about the first die's dot, well wider than the line, in the line's colour.
void PathOverlay::drawStartRing(QPainter& painter) const {
    const QPointF centre(((m_start % kBoardSide) + 0.5) * m_cell.width(),
                         ((m_start / kBoardSide) + 0.5) * m_cell.height());
    const double radius = std::max(m_lineWidth / 2.0 + 8, m_cell.width() * 0.32);
    painter.setPen(QPen(QColor(0, 0, 128), 4));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(centre, radius, radius);
}

} // namespace griglione
