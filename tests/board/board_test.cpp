#include "board/board_game.h"
#include "board/board_layout.h"
#include "board/typed_trace.h"
#include "board/word_submission.h"
#include "tests/support/board_parts.h"

#include <gmock/gmock.h>

#include <functional>
#include <tuple>
#include <utility>

namespace griglione {
namespace {

// The deal: the order of the draws, vowels on the even cells, each language's pools, and what
// every deal resets.

using namespace testing;

struct DealTest : ::testing::Test, BoardParts<> {};

TEST_F(DealTest, EachCellDrawsItsFaceThenItsLetterFromItsLanguagesPool) {
    // Every cell draws 0.3 (face 2) then 0.999 (the pool's last letter); the last of the three
    // passes puts vowels on the even cells.
    const std::tuple<int, int, const char*, const char*> cases[] = {
        {1, 1, "zarMmgU2.gif", "zarMmgZ2.gif"},
        {2, 2, "zarMmgY2.gif", "zarMmgY2.gif"},
        {3, 3, "zarMmgY2.gif", "zarMmgY2.gif"},
        {0, 1, "zarMmgU2.gif", "zarMmgZ2.gif"}};
    for (const auto& [language, languageAfter, even, odd] : cases) {
        SCOPED_TRACE(language);
        ScriptedRandom scripted;
        for (int draw = 0; draw < 75; ++draw)
            scripted.numbers.insert(scripted.numbers.end(), {0.3, 0.999});
        GameState fresh;
        fresh.numDizionario = static_cast<std::int16_t>(language);
        Dealer(scripted, clock).deal(fresh, true);
        EXPECT_EQ(scripted.reseeds, 75);
        EXPECT_TRUE(scripted.numbers.empty());
        EXPECT_EQ(fresh.numDizionario, languageAfter);
        for (int n = 0; n < kCells; ++n)
            EXPECT_EQ(fresh.immagineCella[n], n % 2 == 0 ? even : odd) << n;
    }
}

TEST_F(DealTest, BlankDealAndTheResetsOfEveryDeal) {
    board.lanciaDadi(true);
    state.paroleGiocatore = {"casa", "mare"};
    state.puntiGiocatore = 500;
    board.press(0, kLeftButton, true);
    board.lanciaDadi(false);
    EXPECT_THAT(state.immagineCella, ::testing::Each(std::string("zarMolo.gif")));
    EXPECT_TRUE(state.paroleGiocatore.empty());
    EXPECT_EQ(state.puntiGiocatore, 0);
    EXPECT_EQ(state.parolaComposta, "");
    EXPECT_EQ(state.ultimaCella, -1);
    EXPECT_TRUE(board.path().marks(0).line1.hidden());
}

// Tracing: the path's connection table, turning a die, refused presses, blinking and the clear.

TEST(PathConnections, EachStepMeetsAtTheCommonEdgeOrCorner) {
    for (int d : {-1, +1, -5, +5, +4, +6, -6, -4}) {
        const auto ends = connection(d);
        ASSERT_TRUE(ends) << d;
        // Both ends are the same point of the board: p's end shifted by one die is n's end.
        const auto [x1, y1] = anchorPoint(ends->first);
        const auto [x2, y2] = anchorPoint(ends->second);
        const int dx = (d + 7) % 5 - 2, dy = (d - dx) / 5;
        EXPECT_DOUBLE_EQ(x1 + dx, x2) << d;
        EXPECT_DOUBLE_EQ(y1 + dy, y2) << d;
    }
    EXPECT_FALSE(connection(2));
    EXPECT_FALSE(connection(0));
}

struct TracingTest : ::testing::Test, BoardParts<> {
    TracingTest() {
        for (int n = 0; n < kCells; ++n)
            state.immagineCella[n] = dieName(static_cast<char>('A' + n), 1);
    }
};

// With no match running a press starts one and selects nothing. The right button turns the face,
// even of a used die, and leaves the word and the path as they were.
TEST_F(TracingTest, SelectingDrawsADotThenSegmentsMeetingAtTheEdgeAndTurningKeepsThem) {
    EXPECT_EQ(board.press(3, kRightButton, false), PressResult::StartMatch);
    EXPECT_EQ(board.press(3, kLeftButton, false), PressResult::StartMatch);
    EXPECT_EQ(board.press(0, kLeftButton, true), PressResult::Selected);
    EXPECT_EQ(board.path().marks(0).line1, (Segment{Anchor::Centre, Anchor::Centre}));
    EXPECT_EQ(board.press(6, kMiddleButton, true), PressResult::Selected);
    EXPECT_EQ(sounds.played, (std::vector<std::string>{"SND0002.wav", "SND0002.wav"}));
    for (const char* face : {"zarMmgG2.gif", "zarMmgG3.gif", "zarMmgG4.gif", "zarMmgG1.gif"}) {
        EXPECT_EQ(board.press(6, kRightButton, true), PressResult::Turned);
        EXPECT_EQ(state.immagineCella[6], face);
    }
    EXPECT_EQ(sounds.played.back(), "SND0230.wav");
    EXPECT_EQ(board.path().marks(0).line2, (Segment{Anchor::Centre, Anchor::BottomRight}));
    EXPECT_EQ(board.path().marks(6).line1, (Segment{Anchor::Centre, Anchor::TopLeft}));
    EXPECT_EQ(state.parolaComposta, "AG");
    EXPECT_EQ(state.ultimaCella, 6);
}

TEST_F(TracingTest, RefusedPressesKeepTheWordAndTheLastDie) {
    board.press(4, kLeftButton, true);
    sounds.played.clear();
    EXPECT_EQ(board.press(5, kLeftButton, true), PressResult::NotAdjacent);
    EXPECT_EQ(sounds.played, (std::vector<std::string>{"SND0002.wav", "beep"}));
    EXPECT_EQ(messages.shown, (std::vector<Messaggio>{{"OOPS!", "Lettera non adiacente",
                                                       "Attenzione : La lettera deve essere "
                                                       "adiacente a quella cliccata in precedenza! "
                                                       "Per scrivere una nuova parola cliccare il "
                                                       "pulsante <Azzera>"}}));
    EXPECT_EQ(messages.modal, std::vector<bool>{false});
    EXPECT_FALSE(state.cellaUsata[5]);
    for (int far : {14, 2}) // two rows down, two columns left
        EXPECT_EQ(board.press(far, kLeftButton, true), PressResult::NotAdjacent) << far;
    EXPECT_EQ(board.press(4, kLeftButton, true), PressResult::Refused);
    EXPECT_EQ(sounds.played.back(), "beep");
    EXPECT_EQ(board.press(9, kLeftButton, true), PressResult::Selected); // judged against 4
    EXPECT_EQ(state.parolaComposta, "EJ");
}

TEST_F(TracingTest, BlinkTogglesTheNewestDieAndAddingADieShowsThePreviousAgain) {
    board.press(12, kLeftButton, true);
    board.blink();
    EXPECT_FALSE(board.path().marks(12).line1Visible);
    board.press(13, kLeftButton, true);
    EXPECT_TRUE(board.path().marks(12).line1Visible);
    for (int i = 0; i < 3; ++i)
        board.blink();
    EXPECT_FALSE(board.path().marks(13).line1Visible);
    board.azzera();
    EXPECT_EQ(sounds.played.back(), "COLLAPSE.WAV");
    EXPECT_FALSE(board.path().marks(13).line1Visible); // the clear leaves the flag
    EXPECT_TRUE(board.path().marks(13).line1.hidden());
    EXPECT_EQ(state.parolaComposta, "");
    EXPECT_EQ(state.ultimaCella, -1);
    EXPECT_FALSE(state.cellaUsata[12]);
}

TEST_F(TracingTest, AWordCanRunThroughAllTwentyFiveDice) {
    const int snake[] = {0,  1,  2,  3,  4,  9,  8,  7,  6,  5,  10, 11, 12,
                         13, 14, 19, 18, 17, 16, 15, 20, 21, 22, 23, 24};
    for (int n : snake)
        ASSERT_EQ(board.press(n, kLeftButton, true), PressResult::Selected) << n;
    EXPECT_EQ(state.parolaComposta.size(), 25u);
}

// Typing: the live paths after each key of a table, then typing and pressing mixed on a board.

CellLetters letters(const std::string& rows) {
    CellLetters board{};
    for (std::size_t n = 0; n < rows.size() && n < board.size(); ++n)
        board[n] = rows[n];
    return board;
}

using Paths = std::vector<std::vector<int>>;

// Keys are letters and '<' for Backspace; a refused letter leaves the word and its paths.
TEST(TypedTrace, LivePathsAfterEachKey) {
    const std::tuple<const char*, const char*, std::size_t, const char*, Paths> cases[] = {
        // A letter twice beside the last one: every way stays, the shown one continued first.
        {"CASA..A...",
         "CASA",
         256,
         "CASA",
         {{0, 1, 2, 3}, {0, 1, 2, 6}, {0, 6, 2, 1}, {0, 6, 2, 3}}},
        // Absent, not touching the last die, or its only die already used: refused.
        {"CA..Z", "CAXZC", 256, "CA", {{0, 1}}},
        // Two ways to spell RA, of which only the second reaches the M.
        {"RA...A....M", "RAM", 256, "RAM", {{0, 5, 10}}},
        {"RA...A....M", "RAM<", 256, "RA", {{0, 1}, {0, 5}}},
        {"RA...A....M", "RAM<<<<A", 256, "A", {{1}, {5}}},
        // Kept to one path, the M is still found by a search afresh; a dead end stays refused.
        {"RA...A....M", "RAM", 1, "RAM", {{0, 5, 10}}},
        {"RA...A....M", "RAMA", 1, "RAM", {{0, 5, 10}}},
        // Paths over the same dice to the same last die continue alike: kept once.
        {"AA...AA",
         "AAA",
         256,
         "AAA",
         {{0, 1, 5},
          {0, 1, 6},
          {0, 5, 1},
          {0, 5, 6},
          {0, 6, 1},
          {0, 6, 5},
          {1, 5, 0},
          {1, 5, 6},
          {1, 6, 0},
          {1, 6, 5},
          {5, 6, 0},
          {5, 6, 1}}},
        {"a", "aA", 256, "", {}},
    };
    for (const auto& [board, keys, limit, word, paths] : cases) {
        SCOPED_TRACE(std::string(board) + " " + keys);
        TypedTrace trace(limit);
        for (const char* k = keys; *k; ++k)
            *k == '<' ? trace.back() : trace.type(letters(board), *k);
        EXPECT_EQ(trace.letters(), word);
        EXPECT_EQ(trace.paths(), paths);
    }
}

// Typed letters draw the path as presses would; a press goes on from the path shown, and
// Backspace takes back a pressed die as well.
TEST_F(TracingTest, TypedLettersAndPressesBuildOneWord) {
    EXPECT_EQ(board.typeLetter('A', false), PressResult::Refused);
    EXPECT_EQ(board.typeLetter('A', true), PressResult::Selected);
    EXPECT_EQ(board.typeLetter('G', true), PressResult::Selected);
    EXPECT_EQ(board.path().marks(0).line2, (Segment{Anchor::Centre, Anchor::BottomRight}));
    EXPECT_EQ(board.path().marks(6).line1, (Segment{Anchor::Centre, Anchor::TopLeft}));
    EXPECT_EQ(board.typeLetter('Z', true), PressResult::Refused);
    EXPECT_EQ(board.press(12, kLeftButton, true), PressResult::Selected);
    EXPECT_EQ(board.typeLetter('S', true), PressResult::Selected);
    EXPECT_EQ(state.parolaComposta, "AGMS");
    EXPECT_EQ(board.takeBack(true), PressResult::Selected);
    EXPECT_EQ(board.takeBack(true), PressResult::Selected);
    EXPECT_EQ(state.parolaComposta, "AG");
    EXPECT_EQ(state.ultimaCella, 6);
    EXPECT_FALSE(state.cellaUsata[12]);
    EXPECT_TRUE(board.path().marks(12).line1.hidden());
    EXPECT_EQ(sounds.played, (std::vector<std::string>{"SND0002.wav", "SND0002.wav", "beep",
                                                       "SND0002.wav", "SND0002.wav"}));
    board.azzeraParola();
    EXPECT_EQ(board.takeBack(true), PressResult::Refused);
    EXPECT_EQ(board.typeLetter('G', true), PressResult::Selected);
    EXPECT_EQ(state.parolaComposta, "G");
}

// The submission: every outcome with its message, sounds and list change, the confirmation's
// three answers, the busy guard and the file closing that makes an opponent lookup give up.

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
    const std::tuple<int, int, const char*, const char*, std::size_t> cases[] = {
        {3, 0, "ZEBRA", "", 0},
        {2, 0, "ZEBRA", "ZEBRA\r\n", 0},
        {1, 500, "ZOCCA", "ZEBRA\r\nZOCCA\r\n", 1}};
    for (const auto& [answer, points, word, vocabulary, listed] : cases) {
        SCOPED_TRACE(answer);
        prompt.answer = answer;
        sounds.played.clear();
        trace(word);
        submission.inviaParola();
        EXPECT_EQ(prompt.asked.back(), word);
        EXPECT_EQ(sounds.played.front(), "perdi.wav");
        EXPECT_EQ(folder.read("ZarmPriv.1"), vocabulary);
        EXPECT_EQ(state.puntiGiocatore, points);
        EXPECT_EQ(state.paroleGiocatore.size(), listed);
        EXPECT_EQ(state.rispostaConferma, answer);
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
