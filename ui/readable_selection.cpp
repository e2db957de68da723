#include "ui/readable_selection.h"

#include "ui/colours.h"

#include <QApplication>
#include <QEvent>

namespace griglione {

ReadableSelection::ReadableSelection(QObject* parent) : QObject(parent) {
    correct();
    qApp->installEventFilter(this);
}

bool ReadableSelection::eventFilter(QObject* watched, QEvent* event) {
    // A theme change keeps the colours the program set and takes the rest from the new theme,
    // so the selection's ground may no longer suit its text.
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) correct();
    return false;
}

void ReadableSelection::correct() {
    // Once corrected the palette stays as it is, so the change this makes ends here.
    const QPalette palette = QApplication::palette();
    const QPalette readable = withReadableSelection(palette);
    if (readable != palette) QApplication::setPalette(readable);
}

} // namespace griglione
