#include "ui/announcer.h"

#include "ui/accessibility.h"
#include "ui/message_window.h"

#include <QWidget>

namespace griglione {

Announcer::Announcer(QWidget& window, const GameState& state, MessageHost& messages,
                     std::function<bool()> matchRunning)
    : QObject(&window), m_window(window), m_state(state), m_matchRunning(std::move(matchRunning)) {
    m_clock.start();
    messages.setNewsHandler([this](const Messaggio& messaggio) {
        if (!m_matchRunning()) return false;
        outcome(messaggio);
        return true;
    });
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
    // The last tick of a match has already shown its result.
    if (!m_matchRunning()) return;
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
