// Keeps the application's selection readable: at start-up, and again whenever the desktop's
// theme hands the program a new palette while it runs.
#pragma once

#include <QObject>

namespace griglione {

class ReadableSelection : public QObject {
public:
    // Corrects the application's palette now and watches it from then on.
    explicit ReadableSelection(QObject* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static void correct();
};

} // namespace griglione
