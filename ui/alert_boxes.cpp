#include "ui/alert_boxes.h"

#include <QMessageBox>

#include <cstdlib>

namespace griglione {

void AlertBoxes::avviso(const std::string& testo) {
    QMessageBox box(QMessageBox::NoIcon, kProgramTitle, QString::fromStdString(testo),
                    QMessageBox::Ok, m_parent);
    box.exec();
}

void AlertBoxes::fatale(const std::string& testo) {
    avviso(testo);
    // Ends at once, as after a missing dictionary nothing else may run: no settings are saved.
    std::exit(0);
}

} // namespace griglione
