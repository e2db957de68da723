// The submission: every outcome with its message, sounds and list change, the confirmation's
// three answers, the busy guard and the file closing that makes an opponent lookup give up.
#include "board/board_layout.h"
#include "board/word_submission.h"
#include "tests/support/board_parts.h"

#include <gtest/gtest.h>

#include <functional>
#include <utility>

namespace griglione {
namespace {

using namespace testing;

struct FakePrompt : UnknownWordPrompt {
    int answer = 3;
    std::vector<std::string> asked;
    int confermaParola(const std::string& parola) override {
        asked.push_back(parola);
        return answer;
    }
};

struct SubmissionTest : ::testing::Test, BoardParts<> {
    SubmissionTest() {
        WordLists words;
        words[0] = {"ERA", "ORA"};
        words[1] = {"CASA", "MARE"};
        words[7] = {"ABCDEFGHIJ"};
        folder.write("SLESSICO.1", buildDictionaryFile("", words));
        dictionary.prendidiz();
        state.nomeDizionario = "Italiano";
    }
    void trace(const std::string& word) {
        board.azzeraParola();
        state.parolaComposta = word;
    }

    TempFolder folder;
    OpenFileTable files;
    FakeAlerts alerts;
    std::function<void()> yieldAction; // runs once, at the next yield of a dictionary scan
    void yielded() {
        if (yieldAction) std::exchange(yieldAction, nullptr)();
    }
    Dictionary dictionary{state, files, alerts, [this] { yielded(); }, folder.path()};
    FakePrompt prompt;
    WordSubmission submission{state, board, dictionary, files, sounds, messages, view, prompt};
};

// Too short, already found by either side (by both: the player's own message), or accepted: only
// the last scores, and the word is cleared unless it was too short.
TEST_F(SubmissionTest, EachOutcomeHasItsMessageSoundsAndPoints) {
    state.paroleGiocatore = {"ora"};
    state.paroleCPU = {"mare", "ora"};
    const struct {
        const char *word, *after, *sounds;
        int points;
        const char *title, *heading, *text;
    } cases[] = {
        {"", "", "DOOLANE.WAV ", 0, "OOPS!", "Inserisci una parola!",
         "Formare una parola di senso compiuto cliccando su lettere adiacenti tra di loro "
         "orizzontalmente, verticalmente e diagonalmente, la stessa lettera non può essere usata "
         "più di una volta per comporre la parola. Le parole già trovate (anche dal PC) non "
         "possono ovviamente essere riutilizzate."},
        {"OR", "OR", "SHOOT1.WAV ", 0, "OOPS!", "Parola troppo corta!",
         "Attenzione: Devi inserire una parola in Italiano che deve essere composta almeno da 3 "
         "caratteri."},
        {"ORA", "", "ROCHAN3.WAV COLLAPSE.WAV ", 0, "OOPS!", "Parola già inserita da te!",
         "Hai già precedentemente inserito la parola: ORA mi dispiace, punteggio non assegnato."},
        {"MARE", "", "ROCHAN3.WAV COLLAPSE.WAV ", 0, "OOPS!", "Parola già inserita dalla CPU!",
         "Il computer ha già inserito la parola: MARE mi dispiace, punteggio non assegnato"},
        {"CASA", "", "vinci.wav ", 320, "BENE!", "Complimenti, parola accettata!",
         "Complimenti la parola è presente nel dizionario, verranno aggiunti:320 punti"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.word);
        sounds.played.clear();
        messages = {};
        trace(c.word);
        submission.inviaParola();
        std::string played;
        for (const std::string& sound : sounds.played)
            played += sound + " ";
        EXPECT_EQ(played, c.sounds);
        EXPECT_EQ(messages.shown, (std::vector<Messaggio>{{c.title, c.heading, c.text}}));
        EXPECT_EQ(state.parolaComposta, c.after);
        EXPECT_EQ(state.puntiGiocatore, c.points);
        EXPECT_FALSE(submission.busy());
    }
    EXPECT_EQ(messages.modal, std::vector<bool>{false});
    view.busy.clear();
    trace("ABCDEFGHIJKLM"); // judged and listed by its first ten letters
    submission.inviaParola();
    EXPECT_EQ(state.puntiGiocatore, 2320);
    EXPECT_EQ(state.paroleGiocatore, (std::vector<std::string>{"ora", "casa", "abcdefghij"}));
    EXPECT_EQ(view.busy, (std::vector<bool>{true, false}));
}

TEST_F(SubmissionTest, TheConfirmationsThreeAnswers) {
    const struct {
        int answer, points;
        const char *word, *vocabulary;
        std::size_t listed;
    } cases[] = {{3, 0, "ZEBRA", "", 0},
                 {2, 0, "ZEBRA", "ZEBRA\r\n", 0},
                 {1, 500, "ZOCCA", "ZEBRA\r\nZOCCA\r\n", 1}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.answer);
        prompt.answer = c.answer;
        sounds.played.clear();
        trace(c.word);
        submission.inviaParola();
        EXPECT_EQ(prompt.asked.back(), c.word);
        EXPECT_EQ(sounds.played.front(), "perdi.wav");
        EXPECT_EQ(folder.read("ZarmPriv.1"), c.vocabulary);
        EXPECT_EQ(state.puntiGiocatore, c.points);
        EXPECT_EQ(state.paroleGiocatore.size(), c.listed);
        EXPECT_EQ(state.rispostaConferma, c.answer);
        EXPECT_EQ(state.parolaComposta, "");
    }
    // Stored with answer 2, the word is now known and scores without a question.
    prompt.asked.clear();
    state.paroleGiocatore.clear();
    trace("ZEBRA");
    submission.inviaParola();
    EXPECT_TRUE(prompt.asked.empty());
    EXPECT_EQ(state.puntiGiocatore, 1000);
}

TEST_F(SubmissionTest, AWordThatCannotBeStoredIsReportedAndTheVocabularyKept) {
    folder.write("ZarmPriv.1", "ZEBRA");
    prompt.answer = 1;
    trace("ZOCCA");
    {
        WriteLimit full(4); // the line end for the unfinished last line, and half the word
        submission.inviaParola();
    }
    EXPECT_EQ(folder.read("ZarmPriv.1"), "ZEBRA");
    EXPECT_EQ(alerts.shown, std::vector<std::string>{"Errore 0003: impossibile scrivere il file "
                                                     "del vocabolario personale ZarmPriv.1, la "
                                                     "parola non è stata salvata"});
}

TEST_F(SubmissionTest, ASecondSubmissionDuringTheScanDoesNothing) {
    int nested = 0;
    yieldAction = [&] {
        ++nested;
        submission.inviaParola(); // Enter pressed again while the first one scans
        EXPECT_TRUE(submission.busy());
    };
    trace("MARE");
    submission.inviaParola();
    EXPECT_EQ(nested, 1);
    EXPECT_EQ(state.puntiGiocatore, 320);
    EXPECT_EQ(messages.shown.size(), 1u);
}

TEST_F(SubmissionTest, ASubmissionClosesTheFileOfAYieldingOpponentLookup) {
    yieldAction = [&] {
        trace("ORA");
        submission.inviaParola();
    };
    EXPECT_EQ(dictionary.cercaParola("MARE"), "BUSY");
    EXPECT_EQ(state.paroleGiocatore, std::vector<std::string>{"ora"});
}

} // namespace
} // namespace griglione
