#include "ui/confirm_window.h"

#include "dictionary/rules_text.h"
#include "platform/fonts.h"
#include "ui/accessibility.h"
#include "ui/colours.h"
#include "ui/message_window.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>
#include <QTimer>
#include <QVBoxLayout>

namespace griglione {

ConfirmWindow::ConfirmWindow(const std::string& parola, const std::string& nomeDizionario,
                             const std::string& rules, QWidget* parent)
    : QDialog(parent) {
    setObjectName("Form6");
    setWindowTitle(tr("Il Griglione - Conferma accettazione parola"));
    setFixedSize(460, 470);

    auto* explanation = new QLabel(
        tr("Questa parola  non è stata trovata nel dizionario, se non si tratta di un nome "
           "proprio, di un nome di località, di una sigla ecc. si può inserire nel vocabolario "
           "personale."),
        this);
    explanation->setObjectName("Label1");
    explanation->setWordWrap(true);

    auto* word = new QLabel(QString::fromStdString(parola).toUpper(), this);
    word->setObjectName("Label2");
    word->setAlignment(Qt::AlignCenter);
    word->setFont(tahoma(16, true));
    setColours(word, QColor(0, 0, 128), QColor(255, 255, 192));
    // A screen reader passes over a window's one-word labels: the word is named in a sentence.
    word->setAccessibleName(tr("Parola da confermare: %1").arg(word->text()));

    auto* language = new QLabel(
        tr("Dizionario in %1").arg(QCoreApplication::translate("Options", nomeDizionario.c_str())),
        this);
    language->setObjectName("Label3");
    language->setAlignment(Qt::AlignCenter);

    const std::array<QString, 3> captions = {tr("Inserire e conteggiare i punti in questa manche"),
                                             tr("Inserire e non conteggiare i punti"),
                                             tr("Non inserire nel dizionario personale")};
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(explanation);
    layout->addWidget(word);
    layout->addWidget(language);
    for (int i = 0; i < 3; ++i) {
        m_options[i] = new QRadioButton(captions[i], this);
        m_options[i]->setObjectName(QStringLiteral("Option%1").arg(i + 1));
        layout->addWidget(m_options[i]);
    }
    m_options[2]->setChecked(true);

    auto* rulesField = new QTextEdit(this);
    rulesField->setObjectName("Text1");
    rulesField->setReadOnly(true);
    rulesField->setAccessibleName(tr("Parole ammesse"));
    rulesField->setPlainText(QString::fromStdString(rules).replace("\r\n", "\n"));
    layout->addWidget(rulesField, 1);

    auto* ok = new QPushButton(tr("&OK"), this);
    ok->setObjectName("Command1");
    ok->setDefault(true);
    layout->addWidget(ok, 0, Qt::AlignHCenter);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    centreOnScreen(this);
}

// The focus starts on the chosen answer, with its mark showing as after a Tab: the window is
// answered from the keyboard.
void ConfirmWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    setAttribute(Qt::WA_KeyboardFocusChange);
    m_options[2]->setFocus(Qt::TabFocusReason);
    m_options[2]->update();
}

int ConfirmWindow::risposta() const {
    for (int i = 0; i < 2; ++i)
        if (m_options[i]->isChecked()) return i + 1;
    return 3;
}

int ConfirmPrompt::confermaParola(const std::string& parola) {
    ConfirmWindow window(parola, m_state.nomeDizionario, rulesForConfirmation(m_folder), m_parent);
    m_matchClock.stop();
    m_messages.chiudi();
    const bool confirmed = window.exec() == QDialog::Accepted;
    m_matchClock.start();
    return confirmed ? window.risposta() : 3;
}

} // namespace griglione
