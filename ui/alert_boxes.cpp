// Message boxes over the window that raised them, wide enough for the program's title.
#include "ui/alert_boxes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCoreApplication>
#include <QGridLayout>
#include <QMessageBox>
#include <QSpacerItem>

#include <cstdlib>

namespace griglione {
namespace {

// Room the window frame takes beside the title: its icon and buttons, for the common themes.
constexpr int kTitleBarExtras = 140;

// The window the box belongs to: the modal one in front (an editor asks over itself, not over
// the board behind it), else the active one, else the main window.
QWidget* owner(QWidget* fallback) {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    if (QWidget* active = QApplication::activeWindow()) return active;
    return fallback;
}

int showBox(const std::string& text, QMessageBox::StandardButtons buttons, QWidget* fallback) {
    QMessageBox box(QMessageBox::NoIcon, kProgramTitle, QString::fromStdString(text), buttons,
                    owner(fallback));
    // The boxes speak the program's language, not the one of Qt's own texts.
    if (QAbstractButton* cancel = box.button(QMessageBox::Cancel))
        cancel->setText(QCoreApplication::translate("AlertBoxes", "Annulla"));
    // A box sizes itself by its text only: a short one would cut its title ("Il …ne").
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout())) {
        const int title = box.fontMetrics().horizontalAdvance(box.windowTitle()) + kTitleBarExtras;
        grid->addItem(new QSpacerItem(title, 0, QSizePolicy::Minimum, QSizePolicy::Fixed),
                      grid->rowCount(), 0, 1, grid->columnCount());
    }
    return box.exec();
}

} // namespace

void AlertBoxes::avviso(const std::string& testo) {
    showBox(testo, QMessageBox::Ok, m_parent);
}

bool askOkCancel(const std::string& text) {
    return showBox(text, QMessageBox::Ok | QMessageBox::Cancel, nullptr) == QMessageBox::Ok;
}

void AlertBoxes::fatale(const std::string& testo) {
    avviso(testo);
    // Ends at once, as after a missing dictionary nothing else may run: no settings are saved.
    std::exit(0);
}

} // namespace griglione
