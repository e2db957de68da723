#include "board/path.h"

namespace griglione {

std::pair<double, double> anchorPoint(Anchor anchor) {
    switch (anchor) {
    case Anchor::Centre:
        return {0.5, 0.5};
    case Anchor::Left:
        return {0.0, 0.5};
    case Anchor::Right:
        return {1.0, 0.5};
    case Anchor::Top:
        return {0.5, 0.0};
    case Anchor::Bottom:
        return {0.5, 1.0};
    case Anchor::TopLeft:
        return {0.0, 0.0};
    case Anchor::TopRight:
        return {1.0, 0.0};
    case Anchor::BottomLeft:
        return {0.0, 1.0};
    case Anchor::BottomRight:
        return {1.0, 1.0};
    case Anchor::Hidden:
        break;
    }
    return {-0.5, -0.5};
}

std::optional<std::pair<Anchor, Anchor>> connection(int d) {
    switch (d) {
    case -1:
        return std::pair{Anchor::Right, Anchor::Left};
    case +1:
        return std::pair{Anchor::Left, Anchor::Right};
    case -5:
        return std::pair{Anchor::Bottom, Anchor::Top};
    case +5:
        return std::pair{Anchor::Top, Anchor::Bottom};
    case +4:
        return std::pair{Anchor::TopRight, Anchor::BottomLeft};
    case +6:
        return std::pair{Anchor::TopLeft, Anchor::BottomRight};
    case -6:
        return std::pair{Anchor::BottomRight, Anchor::TopLeft};
    case -4:
        return std::pair{Anchor::BottomLeft, Anchor::TopRight};
    default:
        return std::nullopt;
    }
}

void Path::start(int n) {
    m_marks[n].line1 = {Anchor::Centre, Anchor::Centre};
}

void Path::connect(int p, int n) {
    const auto ends = connection(n - p);
    if (!ends) return;
    m_marks[n].line1 = {Anchor::Centre, ends->first};
    m_marks[p].line2 = {Anchor::Centre, ends->second};
    m_marks[p].line1Visible = true;
}

void Path::toggleBlink(int n) {
    m_marks[n].line1Visible = !m_marks[n].line1Visible;
}

void Path::showNewest(int n) {
    m_marks[n].line1Visible = true;
}

void Path::hideAll() {
    for (CellMarks& m : m_marks) {
        m.line1 = {};
        m.line2 = {};
    }
}

} // namespace griglione
