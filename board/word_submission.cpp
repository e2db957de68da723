#include "board/word_submission.h"

#include "core/ansi_text.h"
#include "core/player_text.h"
#include "dictionary/personal_vocabulary.h"

#include <algorithm>

namespace griglione {
namespace {

bool holds(const std::vector<std::string>& list, const std::string& word) {
    return std::find(list.begin(), list.end(), word) != list.end();
}

} // namespace

WordSubmission::WordSubmission(GameState& state, BoardGame& board, Dictionary& dictionary,
                               OpenFileTable& files, Sounds& sounds, Messages& messages,
                               GameView& view, UnknownWordPrompt& prompt)
    : m_state(state), m_board(board), m_dictionary(dictionary), m_files(files), m_sounds(sounds),
      m_messages(messages), m_view(view), m_prompt(prompt) {}

void WordSubmission::setBusy(bool busy) {
    m_busy = busy;
    m_view.setBusy(busy);
}

void WordSubmission::show(Messaggio messaggio) {
    m_state.messaggio = std::move(messaggio);
    m_messages.mostraMessaggio(m_state.messaggio, false);
}

void WordSubmission::inviaParola() {
    if (m_busy) return;
    // An opponent lookup caught in a yield now finds its file closed and gives up its walk.
    m_files.closeAll();
    m_state.parolaDaConfermare = trimmed(upperAscii(m_state.parolaComposta)).substr(0, 10);
    const std::string& parola = m_state.parolaDaConfermare;
    setBusy(true);

    if (parola.empty()) {
        m_sounds.suona("DOOLANE.WAV");
        setBusy(false);
        show({playerText("WordSubmission", "OOPS!"),
              playerText("WordSubmission", "Inserisci una parola!"),
              playerText("WordSubmission",
                         "Formare una parola di senso compiuto cliccando su lettere adiacenti tra "
                         "di loro orizzontalmente, verticalmente e diagonalmente, la stessa "
                         "lettera non può essere usata più di una volta per comporre la parola. "
                         "Le parole già trovate (anche dal PC) non possono ovviamente essere "
                         "riutilizzate.")});
        return;
    }
    if (parola.size() < 3) {
        m_sounds.suona("SHOOT1.WAV");
        setBusy(false);
        show({playerText("WordSubmission", "OOPS!"),
              playerText("WordSubmission", "Parola troppo corta!"),
              withArgs(playerText("WordSubmission", "Attenzione: Devi inserire una parola in %1 "
                                                    "che deve essere composta almeno da 3 "
                                                    "caratteri."),
                       {playerText("Options", m_state.nomeDizionario)})});
        return;
    }

    const std::string lower = lowerAscii(parola);
    const bool mine = holds(m_state.paroleGiocatore, lower);
    if (mine || holds(m_state.paroleCPU, lower)) {
        m_sounds.suona("ROCHAN3.WAV");
        setBusy(false);
        if (mine)
            show({playerText("WordSubmission", "OOPS!"),
                  playerText("WordSubmission", "Parola già inserita da te!"),
                  withArgs(playerText("WordSubmission", "Hai già precedentemente inserito la "
                                                        "parola: %1 mi dispiace, punteggio non "
                                                        "assegnato."),
                           {parola})});
        else
            show({playerText("WordSubmission", "OOPS!"),
                  playerText("WordSubmission", "Parola già inserita dalla CPU!"),
                  withArgs(playerText("WordSubmission", "Il computer ha già inserito la parola: "
                                                        "%1 mi dispiace, punteggio non assegnato"),
                           {parola})});
        m_board.azzera();
        return;
    }

    const std::string answer = m_dictionary.verificaParola(parola);
    const bool dalPrincipale = answer != "NO" && m_dictionary.ultimaDalPrincipale();
    setBusy(false);
    if (answer == "NO") {
        m_sounds.suona("perdi.wav");
        m_state.rispostaConferma = static_cast<std::int16_t>(m_prompt.confermaParola(parola));
        if (m_state.rispostaConferma == 1 || m_state.rispostaConferma == 2) {
            m_files.closeAll();
            m_dictionary.aggiungiAlVocabolario(parola);
        }
        if (m_state.rispostaConferma == 1) accept(false);
    } else {
        accept(dalPrincipale);
    }
    m_board.azzeraParola();
}

void WordSubmission::accept(bool dalPrincipale) {
    const std::string& parola = m_state.parolaDaConfermare;
    const std::int32_t points = punteggioParola(parola.size());
    m_state.puntiGiocatore += points;
    m_sounds.suona("vinci.wav");
    show({playerText("WordSubmission", "BENE!"),
          playerText("WordSubmission", "Complimenti, parola accettata!"),
          withArgs(playerText("WordSubmission", "Complimenti la parola è presente nel "
                                                "dizionario, verranno aggiunti:%1 punti"),
                   {std::to_string(points)})});
    m_view.changed(Aspect::Scores);
    m_state.paroleGiocatore.push_back(lowerAscii(parola));
    if (dalPrincipale) m_state.paroleDizionario.push_back(lowerAscii(parola));
    m_view.changed(Aspect::PlayerWords);
}

} // namespace griglione
