// The kinds of control the main window is built of: coloured labels, the two word lists, the
// picture buttons, and a die drawn in place of a missing picture.
#pragma once

#include <QColor>
#include <QPixmap>
#include <QRect>
#include <QString>

#include <string>

class QLabel;
class QListWidget;
class QToolButton;
class QWidget;

namespace griglione {

inline const QColor kDarkGreen(0, 64, 0);
inline const QColor kBlue(0, 0, 128);
inline const QColor kRed(128, 0, 0);
inline const QColor kDarkGrey(64, 64, 64);

QLabel* label(QWidget* parent, const char* name, const QString& text, const QRect& geometry,
              const QColor& foreground, const QColor& background);

QListWidget* wordList(QWidget* parent, const char* name, const QRect& geometry,
                      const QColor& background);

QToolButton* pictureButton(QWidget* parent, const char* name, const QString& text,
                           const QRect& geometry, const QString& pictureFile);

// A die drawn when its picture file is missing, so the board stays playable.
QPixmap fallbackDie(const std::string& name);

} // namespace griglione
