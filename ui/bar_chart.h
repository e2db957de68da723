// A bar chart drawn with QPainter: groups of bars side by side, one bar per series, over a scale
// of round numbers. Drawn in the theme's colours at the screen's own resolution, so it is sharp at
// any scale; its numbers are for the eye only, a table beside it carries them for screen readers.
#pragma once

#include <QColor>
#include <QStringList>
#include <QWidget>

#include <vector>

namespace griglione {

class BarChart final : public QWidget {
    Q_OBJECT
public:
    struct Series {
        QString name;
        QColor colour; // as wanted; drawn as the nearest colour readable on the chart's ground
        std::vector<double> values;
    };

    explicit BarChart(QWidget* parent = nullptr);

    // One label per group, written under it unless empty (leave some empty where groups are
    // many, so that they do not run into each other). With `valuesOnBars` each bar carries its
    // number.
    void setData(QStringList labels, std::vector<Series> series, bool valuesOnBars);
    // Shown instead of the bars when there are none.
    void setEmptyText(const QString& text);

    // The colour series `i` is drawn in on the present palette.
    QColor shownColour(std::size_t i) const;

    QSize sizeHint() const override { return {520, 220}; }
    QSize minimumSizeHint() const override { return {240, 140}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QStringList m_labels;
    std::vector<Series> m_series;
    bool m_valuesOnBars = false;
    QString m_emptyText;
};

} // namespace griglione
