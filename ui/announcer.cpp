#include "ui/announcer.h"

#include "ui/accessibility.h"

#include <QWidget>

namespace griglione {

Announcer::Announcer(QWidget& window, const GameState& state)
    : QObject(&window), m_window(window), m_state(state) {
    m_clock.start();
}

void Announcer::traced(PressResult result, char letter) {
    if (result == PressResult::Selected)
        say(m_news.word(m_state.parolaComposta, m_clock.elapsed()));
    else if (result == PressResult::Refused && letter)
        say(m_news.refusedLetter(letter, m_clock.elapsed()));
}

void Announcer::outcome(const Messaggio& messaggio) {
    say(m_news.outcome(messaggio.intestazione, m_state.parolaDaConfermare, m_state.puntiGiocatore,
                       m_clock.elapsed()));
}

void Announcer::opponentFound() {
    m_news.opponentFound(static_cast<int>(m_state.paroleCPU.size()));
    if (auto text = m_news.opponentNews(m_clock.elapsed())) say(*text);
}

void Announcer::tick() {
    if (const std::string left =
            m_news.secondsLeft(m_state.tempoPartita, m_state.secondiTrascorsi, m_clock.elapsed());
        !left.empty())
        say(left);
    else if (auto text = m_news.opponentNews(m_clock.elapsed()))
        say(*text);
}

void Announcer::say(const std::string& text) {
    if (!text.empty()) announce(&m_window, QString::fromStdString(text));
}

} // namespace griglione
