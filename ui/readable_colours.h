// Keeps the colours the theme does not choose readable on the ones it does: the selection's
// ground against its text, and the fixed text colours on the theme's ground. At start-up, and
// again whenever the desktop's theme hands the program a new palette while it runs.
#pragma once

#include <QObject>

namespace griglione {

class ReadableColours : public QObject {
public:
    // Corrects the application's palette now and watches it from then on.
    explicit ReadableColours(QObject* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static void correctSelection();
};

} // namespace griglione
