#include "ui/challenge_flow.h"

#include "board/day_board.h"
#include "core/match_clock.h"
#include "records/challenge_address.h"
#include "ui/board_code_dialog.h"
#include "ui/challenge_panel.h"
#include "ui/review_window.h"

#include <QClipboard>
#include <QDate>
#include <QGuiApplication>
#include <QTimer>

namespace griglione {

ChallengeFlow::ChallengeFlow(QWidget& main, GameState& state, QTimer& timer1, QTimer& timer2,
                             Outside& outside, Alerts& alerts, Hooks hooks)
    : QObject(&main), m_main(main), m_state(state), m_timer1(timer1), m_timer2(timer2),
      m_outside(outside), m_alerts(alerts), m_hooks(std::move(hooks)), m_today([] {
          const QDate today = QDate::currentDate();
          return CivilDate{today.year(), today.month(), today.day()};
      }) {}

void ChallengeFlow::wire(const MenuActions& menu) {
    connect(menu.tabellone, &QAction::triggered, this, &ChallengeFlow::playBoard);
    connect(menu.giorno, &QAction::triggered, this, &ChallengeFlow::boardOfDay);
}

void ChallengeFlow::playBoard() {
    // Finding and pasting a link takes a while: the clock and the opponent wait for it.
    const bool running = m_timer1.isActive();
    m_timer1.stop();
    m_timer2.stop();
    BoardCodeDialog dialog(QString::fromStdString(m_state.codiceTabellone), &m_main);
    if (dialog.exec() == QDialog::Accepted && dialog.board()) {
        play(*dialog.board(), false);
    } else if (running) {
        m_timer1.start();
        m_timer2.start();
    }
}

bool ChallengeFlow::playText(const QString& text) {
    const DecodedBoard decoded = decodeBoard(codeInText(text.toStdString()));
    if (!decoded.board) {
        m_alerts.avviso((tr("Il tabellone richiesto non si può giocare.") + "\n" +
                         BoardCodeDialog::errorText(decoded.error))
                            .toStdString());
        return false;
    }
    play(*decoded.board, false);
    return true;
}

void ChallengeFlow::boardOfDay() {
    const int language =
        m_state.numDizionario >= 1 && m_state.numDizionario <= 3 ? m_state.numDizionario : 1;
    play(dayBoard(m_today(), language), true);
}

void ChallengeFlow::play(const SharedBoard& board, bool daily) {
    // A board of another language is played with its own dictionary, as if chosen in the menu.
    if (board.language != m_state.numDizionario) {
        m_state.numDizionario = static_cast<std::int16_t>(board.language);
        m_hooks.aggMenudiz();
        m_hooks.salvaImpostazioni();
    }
    if (daily)
        fissaTempoPartita(m_state, kTempoGiorno);
    else
        ripristinaTempoPartita(m_state);
    m_hooks.startOnBoard(board);
}

void ChallengeFlow::addToReview(ReviewWindow& review) {
    if (!m_panel) {
        m_panel = new ChallengePanel(&review);
        const auto copy = [this](const std::string& text) {
            QGuiApplication::clipboard()->setText(QString::fromStdString(text));
            m_panel->setStatus(tr("Copiato negli appunti: %1").arg(QString::fromStdString(text)));
        };
        connect(m_panel, &ChallengePanel::copyCode, this,
                [this, copy] { copy(m_state.codiceTabellone); });
        connect(m_panel, &ChallengePanel::copyLink, this,
                [this, copy] { copy(linkSfida(m_state.codiceTabellone)); });
        connect(m_panel, &ChallengePanel::send, this, &ChallengeFlow::send);
    }
    m_panel->setCode(QString::fromStdString(m_state.codiceTabellone));
    review.setFooter(m_panel, m_state.tabelloneCondiviso && !m_state.codiceTabellone.empty());
}

void ChallengeFlow::send() {
    const IndirizzoSfida address =
        indirizzoSfida({m_state.codiceTabellone, m_hooks.playerName().toStdString(),
                        m_state.tempoPartita, m_state.paroleDizionario});
    if (address.paroleTolte > 0)
        m_alerts.avviso(tr("L'indirizzo della sfida non può superare %1 caratteri: le %2 parole "
                           "più corte restano fuori e non contano.")
                            .arg(kLunghezzaMassimaIndirizzo)
                            .arg(address.paroleTolte)
                            .toStdString());
    m_outside.apri(address.indirizzo);
    m_panel->setStatus(tr("Partita inviata: il browser apre la tabella della sfida."));
}

} // namespace griglione
