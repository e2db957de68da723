#include "ui/alert_boxes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCoreApplication>
#include <QMessageBox>

#include <cstdlib>

namespace griglione {

void AlertBoxes::avviso(const std::string& testo) {
    QMessageBox box(QMessageBox::NoIcon, kProgramTitle, QString::fromStdString(testo),
                    QMessageBox::Ok, m_parent);
    box.exec();
}

bool askOkCancel(const std::string& text) {
    QMessageBox box(QMessageBox::NoIcon, kProgramTitle, QString::fromStdString(text),
                    QMessageBox::Ok | QMessageBox::Cancel, QApplication::activeModalWidget());
    // The boxes speak the program's language, not the one of Qt's own texts.
    box.button(QMessageBox::Cancel)->setText(QCoreApplication::translate("AlertBoxes", "Annulla"));
    return box.exec() == QMessageBox::Ok;
}

void AlertBoxes::fatale(const std::string& testo) {
    avviso(testo);
    // Ends at once, as after a missing dictionary nothing else may run: no settings are saved.
    std::exit(0);
}

} // namespace griglione
