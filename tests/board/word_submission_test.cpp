// The submission: every outcome with its message, sounds and list change, the confirmation's
// three answers, the busy guard and the file closing that makes an opponent lookup give up.
#include "board/board_layout.h"
#include "board/word_submission.h"
#include "tests/support/board_parts.h"

#include <gtest/gtest.h>

#include <functional>

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
    std::vector<std::string> played() const { return sounds.played; }

    TempFolder folder;
    OpenFileTable files;
    FakeAlerts alerts;
    std::function<void()> yieldAction;
    Dictionary dictionary{state, files, alerts,
                          [this] {
                              if (yieldAction) yieldAction();
                          },
                          folder.path()};
    FakePrompt prompt;
    WordSubmission submission{state, board, dictionary, files, sounds, messages, view, prompt};
};

TEST_F(SubmissionTest, AcceptedWordScoresAndJoinsThePlayersList) {
    trace("CASA");
    submission.inviaParola();
    EXPECT_EQ(played(), (std::vector<std::string>{"vinci.wav"}));
    ASSERT_EQ(messages.shown.size(), 1u);
    EXPECT_EQ(messages.shown[0], (Messaggio{"BENE!", "Complimenti, parola accettata!",
                                            "Complimenti la parola è presente nel dizionario, "
                                            "verranno aggiunti:320 punti"}));
    EXPECT_FALSE(messages.modal[0]);
    EXPECT_EQ(state.puntiGiocatore, 320);
    EXPECT_EQ(state.paroleGiocatore, std::vector<std::string>{"casa"});
    EXPECT_EQ(state.parolaComposta, "");
    trace("ABCDEFGHIJKLM"); // judged and listed by its first ten letters
    submission.inviaParola();
    EXPECT_EQ(state.puntiGiocatore, 2320);
    EXPECT_EQ(state.paroleGiocatore, (std::vector<std::string>{"casa", "abcdefghij"}));
    EXPECT_EQ(view.busy, (std::vector<bool>{true, false, true, false}));
}

TEST_F(SubmissionTest, LengthMessagesKeepTheTracedWord) {
    const struct {
        const char* word;
        const char* sound;
        const char* heading;
        const char* text;
    } cases[] = {
        {"", "DOOLANE.WAV", "Inserisci una parola!",
         "Formare una parola di senso compiuto cliccando su lettere adiacenti tra di loro "
         "orizzontalmente, verticalmente e diagonalmente, la stessa lettera non può essere usata "
         "più di una volta per comporre la parola. Le parole già trovate (anche dal PC) non "
         "possono ovviamente essere riutilizzate."},
        {"OR", "SHOOT1.WAV", "Parola troppo corta!",
         "Attenzione: Devi inserire una parola in Italiano che deve essere composta almeno da 3 "
         "caratteri."},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.word);
        sounds.played.clear();
        messages.shown.clear();
        trace(c.word);
        submission.inviaParola();
        EXPECT_EQ(played(), std::vector<std::string>{c.sound});
        ASSERT_EQ(messages.shown.size(), 1u);
        EXPECT_EQ(messages.shown[0], (Messaggio{"OOPS!", c.heading, c.text}));
        EXPECT_EQ(state.parolaComposta, c.word);
        EXPECT_FALSE(submission.busy());
    }
}

TEST_F(SubmissionTest, AWordAlreadyFoundByEitherSideIsClearedWithoutPoints) {
    state.paroleGiocatore = {"casa"};
    state.paroleCPU = {"mare", "casa"}; // found by both: the player's own message
    trace("CASA");
    submission.inviaParola();
    EXPECT_EQ(played(), (std::vector<std::string>{"ROCHAN3.WAV", "COLLAPSE.WAV"}));
    EXPECT_EQ(messages.shown.back(),
              (Messaggio{"OOPS!", "Parola già inserita da te!",
                         "Hai già precedentemente inserito la parola: CASA mi dispiace, "
                         "punteggio non assegnato."}));
    EXPECT_EQ(state.parolaComposta, "");
    trace("MARE");
    submission.inviaParola();
    EXPECT_EQ(messages.shown.back(),
              (Messaggio{"OOPS!", "Parola già inserita dalla CPU!",
                         "Il computer ha già inserito la parola: MARE mi dispiace, punteggio "
                         "non assegnato"}));
    EXPECT_EQ(state.puntiGiocatore, 0);
    EXPECT_EQ(state.paroleGiocatore.size(), 1u);
}

TEST_F(SubmissionTest, TheConfirmationsThreeAnswers) {
    const struct {
        int answer;
        const char* word;
        const char* vocabulary;
        int points;
        std::size_t listed;
    } cases[] = {{3, "ZEBRA", "", 0, 0},
                 {2, "ZEBRA", "ZEBRA\r\n", 0, 0},
                 {1, "ZOCCA", "ZEBRA\r\nZOCCA\r\n", 500, 1}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.answer);
        prompt.answer = c.answer;
        sounds.played.clear();
        trace(c.word);
        submission.inviaParola();
        EXPECT_EQ(prompt.asked.back(), c.word);
        EXPECT_EQ(played().front(), "perdi.wav");
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

TEST_F(SubmissionTest, ASecondSubmissionDuringTheScanDoesNothing) {
    int nested = 0;
    yieldAction = [&] {
        yieldAction = nullptr;
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
    std::string opponentAnswer;
    yieldAction = [&] {
        yieldAction = nullptr;
        trace("ORA");
        submission.inviaParola();
    };
    opponentAnswer = dictionary.cercaParola("MARE");
    EXPECT_EQ(opponentAnswer, "BUSY");
    EXPECT_EQ(state.paroleGiocatore, std::vector<std::string>{"ora"});
}

} // namespace
} // namespace griglione
