// One die of the board (Picture1(n)): its picture, and the presses and keys it receives. The 25
// dice are one stop of the Tab key; the arrow keys move between them.
#pragma once

#include <QWidget>

#include <string>

namespace griglione {

class PictureBook;

class DieCell final : public QWidget {
    Q_OBJECT
public:
    DieCell(int index, QWidget* parent);

    // The die shows the picture of that name, drawn for the screen it is on at each paint.
    void setPicture(const PictureBook& book, const std::string& name);

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
    const PictureBook* m_book = nullptr;
    std::string m_name;
};

} // namespace griglione
