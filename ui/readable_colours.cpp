#include "ui/readable_colours.h"

#include "ui/colours.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QTimer>

namespace griglione {

ReadableColours::ReadableColours(QObject* parent) : QObject(parent) {
    correctSelection();
    qApp->installEventFilter(this);
}

bool ReadableColours::eventFilter(QObject* watched, QEvent* event) {
    // A theme change keeps the colours the program set and takes the rest from the new theme,
    // so what the program set may no longer suit the theme's colours around it.
    if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) correctSelection();
    // A window takes the new palette after the application does: its texts are worked out
    // again against its new ground once it has it.
    if (event->type() == QEvent::PaletteChange && watched->isWidgetType() &&
        static_cast<QWidget*>(watched)->isWindow()) {
        QTimer::singleShot(0, this, [window = QPointer(static_cast<QWidget*>(watched))] {
            if (!window) return;
            for (QWidget* widget : window->findChildren<QWidget*>())
                if (!widget->isWindow()) refreshTextColour(widget);
        });
    }
    return false;
}

void ReadableColours::correctSelection() {
    // Once corrected the palette stays as it is, so the change this makes ends here.
    const QPalette palette = QApplication::palette();
    const QPalette readable = withReadablePlaceholder(withReadableSelection(palette));
    if (readable != palette) QApplication::setPalette(readable);
}

} // namespace griglione
