// One die of the board (Picture1(n)): its picture and the two path segments drawn on it.
#pragma once

#include "board/path.h"

#include <QPixmap>
#include <QWidget>

namespace griglione {

class DieCell final : public QWidget {
    Q_OBJECT
public:
    DieCell(int index, QWidget* parent);

    void setPicture(const QPixmap& picture);
    void setMarks(const CellMarks& marks, int lineWidth);

signals:
    // `button` is the press's code: 1 left, 2 right, 4 middle.
    void pressed(int index, int button);
    void enterPressed();
    void escapePressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int m_index;
    QPixmap m_picture;
    CellMarks m_marks;
    int m_lineWidth = 12;
};

} // namespace griglione
