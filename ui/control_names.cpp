#include "ui/control_names.h"

#include "records/record_address.h"

#include <QCoreApplication>
#include <QLabel>
#include <QWidget>

namespace griglione {
namespace {

struct Naming {
    const char* object;
    const char* name;        // empty: the control's own text names it
    const char* description; // for a label holding a value, what the value is
};

constexpr Naming kNames[] = {
    {"Label1", "", QT_TRANSLATE_NOOP("MainWindow", "Parola composta")},
    {"Command2", "", QT_TRANSLATE_NOOP("MainWindow", "Invia la parola composta")},
    {"Command1", "", QT_TRANSLATE_NOOP("MainWindow", "Cancella la parola composta")},
    {"Label3", QT_TRANSLATE_NOOP("MainWindow", "Tempo della partita"), ""},
    {"Picture2", QT_TRANSLATE_NOOP("MainWindow", "Tempo trascorso"),
     QT_TRANSLATE_NOOP("MainWindow", "La parte della partita già trascorsa")},
    {"Label4", "", QT_TRANSLATE_NOOP("MainWindow", "Secondi trascorsi")},
    {"Text1", QT_TRANSLATE_NOOP("MainWindow", "Giocatore"),
     QT_TRANSLATE_NOOP("MainWindow", "Il tuo nome, per la tabella dei record")},
    {"Label9", "", QT_TRANSLATE_NOOP("MainWindow", "Il tuo avversario")},
    {"List1", QT_TRANSLATE_NOOP("MainWindow", "Trovate da te"),
     QT_TRANSLATE_NOOP("MainWindow", "Le parole che hai trovato")},
    {"List2", QT_TRANSLATE_NOOP("MainWindow", "Tobia (CPU)"),
     QT_TRANSLATE_NOOP("MainWindow", "Le parole trovate dal computer")},
    {"Label10", "", QT_TRANSLATE_NOOP("MainWindow", "I tuoi punti")},
    {"Label11", "", QT_TRANSLATE_NOOP("MainWindow", "Punti di Tobia (CPU)")},
    {"Picture3", QT_TRANSLATE_NOOP("MainWindow", "Il Griglione"), ""},
    // Hidden; a fixed name keeps its many changes of text off the screen reader's bus.
    {"Label8", QT_TRANSLATE_NOOP("MainWindow", "Ultimo tentativo del computer"), ""},
};

// The labels named by their value.
constexpr const char* kValueLabels[] = {"Label1", "Label4", "Label10", "Label11"};

QString mainWindowText(const char* text) {
    return QCoreApplication::translate("MainWindow", text);
}

} // namespace

void nameMainWindowControls(QWidget* window) {
    for (const Naming& n : kNames) {
        auto* control = window->findChild<QWidget*>(n.object);
        if (!control) continue;
        if (*n.name) control->setAccessibleName(mainWindowText(n.name));
        if (*n.description) control->setAccessibleDescription(mainWindowText(n.description));
    }
    if (auto* link = window->findChild<QWidget*>("Label12"))
        link->setAccessibleDescription(
            QCoreApplication::translate("MainWindow", "Apre il sito dell'autore nel browser: %1")
                .arg(QString::fromStdString(indirizzoServizio())));
    for (const char* name : kValueLabels)
        if (auto* label = window->findChild<QLabel*>(name)) setValueText(label, label->text());
}

void setValueText(QLabel* label, const QString& text) {
    label->setText(text);
    const QString what = label->accessibleDescription();
    label->setAccessibleName(text.isEmpty() ? what : what + QStringLiteral(": ") + text);
}

} // namespace griglione
