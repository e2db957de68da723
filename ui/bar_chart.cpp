#include "ui/bar_chart.h"

#include "ui/colours.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace griglione {
namespace {

// The step of the scale: 1, 2 or 5 times a power of ten, giving at most `lines` lines to `top`.
double roundStep(double top, int lines) {
    const double rough = std::max(top, 1.0) / lines;
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    for (const double m : {1.0, 2.0, 5.0})
        if (m * power >= rough) return std::max(1.0, m * power);
    return std::max(1.0, 10 * power);
}

} // namespace

BarChart::BarChart(QWidget* parent) : QWidget(parent) {
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void BarChart::setData(QStringList labels, std::vector<Series> series, bool valuesOnBars) {
    m_labels = std::move(labels);
    m_series = std::move(series);
    m_valuesOnBars = valuesOnBars;
    update();
}

void BarChart::setEmptyText(const QString& text) {
    m_emptyText = text;
    update();
}

QColor BarChart::shownColour(std::size_t i) const {
    return readableColour(m_series.at(i).colour, palette().color(QPalette::Base));
}

void BarChart::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const QColor text = palette().color(QPalette::Text);
    p.setPen(text);
    const QFontMetrics fm = fontMetrics();
    const int line = fm.height();
    const qsizetype groups = m_labels.size();
    if (groups == 0 || m_series.empty()) {
        p.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
        return;
    }

    double top = 0;
    for (const Series& s : m_series)
        for (const double v : s.values)
            top = std::max(top, v);
    const double step = roundStep(top, 4);
    const double scaleTop = std::max(step, std::ceil(top / step) * step);
    const QString widest = QString::number(scaleTop, 'f', 0);

    // The legend above, the scale on the left, the group labels below.
    const QRectF plot(fm.horizontalAdvance(widest) + 10, line * 1.5 + (m_valuesOnBars ? line : 0),
                      width() - fm.horizontalAdvance(widest) - 20,
                      height() - line * 3.2 - (m_valuesOnBars ? line : 0));
    if (plot.width() < 10 || plot.height() < 10) return;

    qreal legendRight = width() - 8;
    for (std::size_t i = m_series.size(); i-- > 0;) {
        const int nameWidth = fm.horizontalAdvance(m_series[i].name);
        const QRectF swatch(legendRight - nameWidth - line - 4, line * 0.25, line * 0.8,
                            line * 0.8);
        p.fillRect(swatch, shownColour(i));
        p.drawText(QPointF(legendRight - nameWidth, fm.ascent() + line * 0.25), m_series[i].name);
        legendRight = swatch.left() - line;
    }

    QColor grid = text;
    grid.setAlphaF(0.25);
    for (double v = 0; v <= scaleTop + step / 2; v += step) {
        const qreal y = plot.bottom() - v / scaleTop * plot.height();
        p.setPen(grid);
        p.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
        p.setPen(text);
        p.drawText(QRectF(0, y - line / 2.0, plot.left() - 6, line),
                   Qt::AlignRight | Qt::AlignVCenter, QString::number(v, 'f', 0));
    }

    const qreal groupWidth = plot.width() / groups;
    const qreal gap = std::max(1.0, groupWidth * 0.2);
    const qreal barWidth =
        std::min<qreal>(line * 3, (groupWidth - gap) / static_cast<qreal>(m_series.size()));
    const qreal barsWidth = barWidth * static_cast<qreal>(m_series.size());
    for (qsizetype g = 0; g < groups; ++g) {
        const qreal left = plot.left() + g * groupWidth + (groupWidth - barsWidth) / 2;
        for (std::size_t i = 0; i < m_series.size(); ++i) {
            const auto& values = m_series[i].values;
            const double v = static_cast<std::size_t>(g) < values.size() ? values[g] : 0;
            const qreal h = v / scaleTop * plot.height();
            const QRectF bar(left + barWidth * static_cast<qreal>(i), plot.bottom() - h, barWidth,
                             h);
            p.fillRect(bar, shownColour(i));
            if (m_valuesOnBars)
                p.drawText(
                    QRectF(bar.center().x() - groupWidth / 2, bar.top() - line, groupWidth, line),
                    Qt::AlignCenter, QString::number(v, 'f', 0));
        }
        const qreal centre = plot.left() + (g + 0.5) * groupWidth;
        p.drawText(QRectF(centre - line * 2, plot.bottom() + 2, line * 4, line),
                   Qt::AlignHCenter | Qt::AlignTop, m_labels[g]);
    }
    p.setPen(text);
    p.drawLine(plot.bottomLeft(), plot.bottomRight());
}

} // namespace griglione
