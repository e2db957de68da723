// Keeps a label's picture drawn for the screen its window is on: drawn again from its source
// when the label is painted at a pixel ratio other than the one it was drawn for, as after the
// window moves to a screen of another scale.
#pragma once

#include <QObject>
#include <QSize>

#include <string>

class QLabel;

namespace griglione {

class PictureBook;

class SharpPicture final : public QObject {
    Q_OBJECT
public:
    // Shows `name` from `book` in `label` (fitted into `fit` when given) from now on; the label
    // owns the result and the book must outlive it.
    static void show(QLabel* label, const PictureBook& book, std::string name, QSize fit = {});

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    SharpPicture(QLabel* label, const PictureBook& book, std::string name, QSize fit);
    void draw();

    QLabel* m_label;
    const PictureBook& m_book;
    std::string m_name;
    QSize m_fit;
    qreal m_ratio = 0;
};

} // namespace griglione
