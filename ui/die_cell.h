// One die of the board (Picture1(n)): its picture, and the presses and keys it receives.
#pragma once

#include <QPixmap>
#include <QWidget>

namespace griglione {

class DieCell final : public QWidget {
    Q_OBJECT
public:
    DieCell(int index, QWidget* parent);

    void setPicture(const QPixmap& picture);

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
};

} // namespace griglione
