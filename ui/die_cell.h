// One die of the board (Picture1(n)): its picture, and the presses and keys it receives. The 25
// dice are one stop of the Tab key; the arrow keys move between them.
#pragma once

#include <QPixmap>
#include <QWidget>

namespace griglione {

class DieCell final : public QWidget {
    Q_OBJECT
public:
    DieCell(int index, QWidget* parent);

    void setPicture(const QPixmap& picture);

    // The letter the die shows, for screen readers; anything but A–Z is a blank die.
    void setLetter(char letter);
    int index() const { return m_index; }

signals:
    // `button` is the press's code: 1 left, 2 right, 4 middle.
    void pressed(int index, int button);
    void enterPressed();
    void escapePressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void moveFocus(int rows, int columns);

    int m_index;
    QPixmap m_picture;
};

} // namespace griglione
