// The kinds of control the main window is built of: coloured labels, the two word lists, the
// picture buttons, and a die drawn in place of a missing picture.
#pragma once

#include "ui/colours.h"

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QRect>
#include <QString>

#include <array>
#include <string>
#include <vector>

class QFrame;
class QLabel;
class QListWidget;
class QToolButton;
class QWidget;

namespace griglione {

QLabel* label(QWidget* parent, const char* name, const QString& text, const QRect& geometry,
              const QColor& foreground, const QColor& background);

QListWidget* wordList(QWidget* parent, const char* name, const QRect& geometry,
                      const QColor& background);

// Brings a word list up to `words`, which only grow during a match, and scrolls to the last.
void showWords(QListWidget* list, const std::vector<std::string>& words);

// The board's frame (a black line around the dice) and its shadow (a black block of the frame's
// size whose top left is `shadowCorner`'s), the shadow made first so it lies under the frame.
// Both are decoration, hidden from screen readers.
std::array<QFrame*, 2> boardShapes(QWidget* parent, const QRect& frame, const QRect& shadowCorner);

QToolButton* pictureButton(QWidget* parent, const char* name, const QString& text,
                           const QRect& geometry, const QIcon& picture);

// A die drawn when its picture file is missing, so the board stays playable; for a screen of
// `ratio` device pixels to a logical pixel.
QPixmap fallbackDie(const std::string& name, qreal ratio = 1);

} // namespace griglione
