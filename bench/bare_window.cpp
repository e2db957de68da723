// A bare Qt window of the game's size, the yardstick of the start-up harness: one line of text, so
// that it too reads the system's fonts as any window with words does, and it leaves as soon as its
// first frame is painted.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QTimer>

namespace {

struct QuitWhenPainted : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return false;
    }
};

} // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    QMainWindow window;
    window.setFixedSize(640, 470);
    window.setCentralWidget(new QLabel("Il Griglione"));
    QuitWhenPainted quit;
    app.installEventFilter(&quit);
    window.show();
    return app.exec();
}
