#include "ui/board_code_dialog.h"

#include "platform/fonts.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace griglione {

BoardCodeDialog::BoardCodeDialog(const QString& current, QWidget* parent) : QDialog(parent) {
    setObjectName("FormTabellone");
    setWindowTitle(tr("Il Griglione - Gioca un tabellone"));

    auto* prompt = new QLabel(tr("&Codice del tabellone o link della sfida:"), this);
    prompt->setObjectName("LabelCodice");
    m_code = new QLineEdit(this);
    m_code->setObjectName("TextCodice");
    m_code->setAccessibleName(tr("Codice del tabellone o link della sfida"));
    m_code->setMinimumWidth(420);
    m_code->setFont(courier(10));
    prompt->setBuddy(m_code);

    m_error = new QLabel(this);
    m_error->setObjectName("LabelErrore");
    m_error->setAccessibleName(tr("Errore nel codice"));
    m_error->setWordWrap(true);
    m_error->setFont(tahoma(8.25, true));
    m_error->hide();

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(prompt);
    layout->addWidget(m_code);
    layout->addWidget(m_error);
    if (!current.isEmpty()) {
        // Any board can be passed on: this is the code of the one on the dice now.
        auto* mine = new QLabel(tr("Il tabellone in gioco ha il codice %1").arg(current), this);
        mine->setObjectName("LabelInGioco");
        mine->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        mine->setWordWrap(true);
        layout->addWidget(mine);
    }

    auto* buttons = new QDialogButtonBox(this);
    auto* play = buttons->addButton(tr("&Gioca"), QDialogButtonBox::AcceptRole);
    play->setObjectName("CommandGioca");
    play->setDefault(true);
    auto* cancel = buttons->addButton(tr("&Annulla"), QDialogButtonBox::RejectRole);
    cancel->setObjectName("CommandAnnulla");
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    connect(buttons, &QDialogButtonBox::accepted, this, &BoardCodeDialog::tryCode);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_code, &QLineEdit::textEdited, this, [this] { m_error->hide(); });
}

QString BoardCodeDialog::errorText(CodeError error) {
    switch (error) {
    case CodeError::None:
        break;
    case CodeError::Empty:
        return tr("Scrivi il codice di un tabellone, o incolla il link di una sfida.");
    case CodeError::Symbol:
        return tr("Un codice ha solo lettere e cifre: il testo contiene un carattere che nessun "
                  "codice ha.");
    case CodeError::Length:
        return tr("Il codice non ha la lunghezza giusta: 28 caratteri per un tabellone italiano, "
                  "30 per uno inglese o latino. Manca o avanza qualche carattere.");
    case CodeError::Language:
        return tr("Un codice comincia con la lingua del tabellone: 1 italiano, 2 inglese, "
                  "3 latino.");
    case CodeError::Check:
        return tr("Il codice contiene un errore di battitura: controllalo carattere per "
                  "carattere.");
    case CodeError::Board:
        return tr("Questo codice non corrisponde a nessun tabellone.");
    }
    return {};
}

void BoardCodeDialog::tryCode() {
    const DecodedBoard decoded = decodeBoard(codeInText(m_code->text().toStdString()));
    if (decoded.board) {
        m_board = decoded.board;
        accept();
        return;
    }
    m_error->setText(errorText(decoded.error));
    m_error->show();
    m_code->setAccessibleDescription(m_error->text());
    m_code->setFocus();
    m_code->selectAll();
}

} // namespace griglione
