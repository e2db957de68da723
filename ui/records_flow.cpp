#include "ui/records_flow.h"

#include "board/board_layout.h"
#include "core/ansi_text.h"
#include "core/file_names.h"
#include "records/record_address.h"
#include "records/record_table.h"
#include "ui/main_window.h"
#include "ui/message_window.h"
#include "ui/records_window.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTimer>

namespace griglione {

RecordsFlow::RecordsFlow(QWidget& mainWindow, GameState& state, QTimer& timer1, QTimer& timer2,
                         MessageHost& messages, const Services& services,
                         std::function<QString()> playerName)
    : m_main(mainWindow), m_state(state), m_timer1(timer1), m_timer2(timer2), m_messages(messages),
      m_services(services), m_playerName(std::move(playerName)) {}

void RecordsFlow::afterMatch() {
    if (recordDopoPartita(m_state)) open(true);
}

void RecordsFlow::beforeQuit() {
    if (recordAllUscita(m_state)) open(true);
}

void RecordsFlow::fromMenu() {
    open(false);
}

void RecordsFlow::open(bool modal) {
    if (m_window) m_window->discard();
    m_messages.chiudi();
    if (m_state.uscitaDopoRecord) {
        m_timer1.stop();
        m_timer2.stop();
        m_state.uscitaDopoRecord = false;
    }
    m_main.setEnabled(false);
    // Qt disables the child windows of a disabled window too; the match goes on behind this
    // one, so its end-of-match window must stay usable.
    for (QWidget* child : m_main.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (child->isWindow()) child->setEnabled(true);

    const TabellaRecord table = riempiTabella(m_state, toAnsi(m_playerName().toStdString()),
                                              resolveFileName(m_services.folder, kRecordsFileName));
    m_window = new RecordsWindow(
        [this](const QString& notes, const QString& email) { submit(notes, email); },
        [this] { closing(); }, &m_main);
    m_window->fill(table);
    if (!modal) return m_window->show();
    m_window->exec();
    // The window itself never speaks; the player learns here that the table shown was not kept.
    if (table.nonSalvato)
        m_services.alerts.avviso(
            QCoreApplication::translate("RecordsFlow",
                                        "Errore 0004: impossibile scrivere il file dei record "
                                        "zarMolo.HIS, il record non è stato salvato")
                .toStdString());
}

void RecordsFlow::closing() {
    // Enabling a running clock must not restart its second.
    if (!m_timer1.isActive()) m_timer1.start();
    m_main.setEnabled(true);
    if (tavolaVuota(m_state)) m_timer1.stop();
}

void RecordsFlow::submit(const QString& notes, const QString& email) {
    const QDateTime now = QDateTime::currentDateTime();
    const DataOra adesso{now.date().day(), now.date().month(), now.date().year(), now.time().hour(),
                         now.time().minute()};
    const RecordDaInviare record{m_playerName().toStdString(), m_state.puntiGiocatore,
                                 m_state.tempoPartita,         notes.toStdString(),
                                 email.toStdString(),          m_state.numDizionario};
    m_services.outside.apri(indirizzoRecord(record, adesso, m_services.random, m_services.clock));
}

} // namespace griglione
