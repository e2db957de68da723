// Board codes, the board of the day, the dates they hang on and the packed challenge words.
#include "board/board_argument.h"
#include "board/board_code.h"
#include "board/board_layout.h"
#include "board/day_board.h"
#include "board/dealer.h"
#include "core/civil_date.h"
#include "core/mixing_random.h"
#include "records/challenge_words.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

std::string cellsText(const SharedBoard& board) {
    std::string text;
    for (int n = 0; n < kCells; ++n)
        text += std::string(1, board.letters[n]) + std::to_string(board.faces[n]);
    return text;
}

TEST(BoardCode, EveryDealtBoardComesBackFromItsCode) {
    MixingRandom random(12345);
    testing::FixedClock clock;
    for (int language = 1; language <= 3; ++language) {
        for (int deal = 0; deal < 2000; ++deal) {
            GameState state;
            state.numDizionario = static_cast<std::int16_t>(language);
            clock.seconds = deal * 0.37;
            Dealer(random, clock).deal(state, true);
            const std::string code = boardCode(state);
            ASSERT_LE(code.size(), 32u);
            const DecodedBoard decoded = decodeBoard(code);
            ASSERT_TRUE(decoded.board) << code;
            GameState replayed;
            placeBoard(replayed, *decoded.board);
            ASSERT_EQ(replayed.immagineCella, state.immagineCella) << code;
            ASSERT_EQ(replayed.numDizionario, language);
        }
    }
}

TEST(BoardCode, TheFirstAndLastBoardsOfEachLanguageFitTheirLength) {
    for (int language = 1; language <= 3; ++language) {
        const LetterPools pools = letterPools(language);
        SharedBoard low, high;
        low.language = high.language = language;
        for (int n = 0; n < kCells; ++n) {
            const std::string_view pool = n % 2 == 0 ? pools.vocali : pools.consonanti;
            low.letters[n] = *std::min_element(pool.begin(), pool.end());
            high.letters[n] = *std::max_element(pool.begin(), pool.end());
            low.faces[n] = 1;
            high.faces[n] = 4;
        }
        for (const SharedBoard& board : {low, high}) {
            const std::string code = encodeBoard(board);
            EXPECT_EQ(code.size(), language == 1 ? 28u : 30u) << code;
            EXPECT_EQ(decodeBoard(code).board, board) << code;
        }
    }
    // A number past the last Italian board: the right length and a right check, but no board.
    std::string beyond = "1" + std::string(26, 'Z') + "0";
    for (const char c : kCodeSymbols) {
        beyond.back() = c;
        if (decodeBoard(beyond).error != CodeError::Check) break;
    }
    EXPECT_EQ(decodeBoard(beyond).error, CodeError::Board) << beyond;
}

TEST(BoardCode, EverySlipOfOneSymbolOrOneSwapIsCaught) {
    const std::string code = encodeBoard(dayBoard({2026, 11, 24}, 2));
    for (std::size_t at = 0; at < code.size(); ++at) {
        for (const char c : kCodeSymbols) {
            if (c == code[at]) continue;
            std::string slip = code;
            slip[at] = c;
            EXPECT_FALSE(decodeBoard(slip).board) << slip;
        }
        if (at + 1 < code.size() && code[at] != code[at + 1]) {
            std::string swapped = code;
            std::swap(swapped[at], swapped[at + 1]);
            const bool luhnBlindSpot = (code[at] == '0' && code[at + 1] == 'Z') ||
                                       (code[at] == 'Z' && code[at + 1] == '0');
            if (!luhnBlindSpot) {
                EXPECT_FALSE(decodeBoard(swapped).board) << swapped;
            }
        }
    }
}

TEST(BoardCode, ReadsWhatAPlayerTypesAndNamesWhatIsWrong) {
    const std::string code = "10PE748HG9S998BE9K9G5QSZK2PW";
    const struct {
        std::string text;
        CodeError error;
    } cases[] = {
        {code, CodeError::None},
        {"10pe-748h g9s9 98be9k9g5qszk2pw", CodeError::None}, // case, blanks, hyphens
        {"1OPE748HG9S998BE9K9G5QSZK2PW", CodeError::None},    // O read as 0
        {"", CodeError::Empty},
        {" - ", CodeError::Empty},
        {"10PE748HG9S998BE9K9G5QSZK2P", CodeError::Length},
        {code + "0", CodeError::Length},
        {"40PE748HG9S998BE9K9G5QSZK2PW", CodeError::Language},
        {"00PE748HG9S998BE9K9G5QSZK2PW", CodeError::Language},
        {"10PE748HG9S998BE9K9G5QSZK2PU", CodeError::Symbol},
        {"10PÈ748HG9S998BE9K9G5QSZK2PW", CodeError::Symbol},
        {"10PE748HG9S998BE9K9G5QSZK2PX", CodeError::Check},
    };
    for (const auto& c : cases)
        EXPECT_EQ(decodeBoard(c.text).error, c.error) << c.text;
    EXPECT_EQ(encodeBoard(*decodeBoard(cases[1].text).board), code);
}

TEST(BoardCode, FindsTheCodeInLinksAndSchemes) {
    const std::pair<std::string, std::string> cases[] = {
        {" 10PE748HG9S998BE9K9G5QSZK2PW\n", "10PE748HG9S998BE9K9G5QSZK2PW"},
        {"griglione:10PE748HG", "10PE748HG"},
        {"GRIGLIONE://10PE748HG", "10PE748HG"},
        {"https://griglione.example.org/sfide/10PE748HG?format=json", "10PE748HG"},
        {"http://127.0.0.1:8089/sfide/10PE748HG/#tabella", "10PE748HG"},
        {"   ", ""},
    };
    for (const auto& [text, code] : cases)
        EXPECT_EQ(codeInText(text), code) << text;
}

TEST(BoardCode, ABlankOrForeignBoardHasNoCode) {
    GameState blank;
    blank.immagineCella.fill(std::string(kBlankDie));
    EXPECT_EQ(boardCode(blank), "");
    SharedBoard italianW = dayBoard({2026, 1, 1}, 1);
    italianW.letters[1] = 'W';
    EXPECT_EQ(encodeBoard(italianW), "");
    SharedBoard consonantOnEven = dayBoard({2026, 1, 1}, 2);
    consonantOnEven.letters[0] = 'B';
    EXPECT_EQ(encodeBoard(consonantOnEven), "");
}

// The pinned boards were drawn by a separate program written from the generator's description
// alone: the records service and any other reader of that description must draw the same.
TEST(DayBoard, DrawsTheDescribedBoardForEachDateAndLanguage) {
    const struct {
        CivilDate date;
        int language;
        const char* cells;
        const char* code;
    } cases[] = {
        {{2026, 11, 24},
         1,
         "A2N3O3F4A3F4A2S2E4C2U4T1E4R3I2V3A2T2E2T3I4T2E1T4I3",
         "10PE748HG9S998BE9K9G5QSZK2PW"},
        {{2026, 11, 24},
         2,
         "I3S2O2C3A2L1A1K1Y3V2E1H4E1Z3O3D2O3C4A3D3E4N2Y2C1I2",
         "213C5KF1QQ04KQ55SYFPKJ2YVZHP9N"},
        {{2026, 11, 24},
         3,
         "I2R4A3D3U2H4A4X3A1N3A2R3O2K2U1P1A2Q4A2J2A2C1O2N2E2",
         "30ZZ3S9563PXXPGQ3TA0YEDJACGHXC"},
        {{2000, 2, 29},
         1,
         "E2L1U1F4E4D1A2L2O3N2O3S1A1M2E4H1A4T1A4R4A1M1E3P3A3",
         "12ECTSJD2P2AWFQFGB0W2HDE47TX"},
    };
    for (const auto& c : cases) {
        const SharedBoard board = dayBoard(c.date, c.language);
        EXPECT_EQ(cellsText(board), c.cells);
        EXPECT_EQ(encodeBoard(board), c.code);
    }
}

TEST(CivilDate, CountsDaysAcrossLeapYearsAndReadsOnlyRealDates) {
    for (long days = daysSinceEpoch({1600, 1, 1}); days <= daysSinceEpoch({2400, 12, 31}); ++days) {
        const CivilDate date = dateFromDays(days);
        ASSERT_TRUE(isValidDate(date)) << days;
        ASSERT_EQ(daysSinceEpoch(date), days);
        ASSERT_EQ(parseDate(dateText(date)), date);
    }
    EXPECT_EQ(daysSinceEpoch({1970, 1, 1}), 0);
    EXPECT_EQ(daysSinceEpoch({2000, 3, 1}) - daysSinceEpoch({2000, 2, 28}), 2);
    EXPECT_EQ(daysSinceEpoch({1900, 3, 1}) - daysSinceEpoch({1900, 2, 28}), 1);
    for (const char* wrong : {"2026-02-29", "1900-02-29", "2026-13-01", "2026-00-10", "2026-1-01",
                              "2026/01/01", "+026-01-01", "0000-01-01", "2026-01-32", "2026-01-1 "})
        EXPECT_FALSE(parseDate(wrong)) << wrong;
    EXPECT_EQ(dateText({987, 3, 4}), "0987-03-04");
}

TEST(ChallengeWords, PacksSortedSharedPrefixesAndRefusesWhatCannotBeUnpacked) {
    EXPECT_EQ(packWords({"mare", "casa", "caso", "CASE", "casa"}), "0CASA3E3O0MARE");
    EXPECT_EQ(packWords({"precipitare", "precipitato"}), "0PRECIPITARE9TO");
    EXPECT_EQ(packWords({}), "");
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"CASA", "CASE", "CASO", "MARE"},
          {"PRECIPITARE", "PRECIPITATO", "PRECIPITATOR"},
          {"ZAR"}}) {
        EXPECT_EQ(unpackWords(packWords(words)), words);
    }
    for (const char* wrong :
         {"CASA", "0CASA5X", "0CASA4", "0CASA0CASA", "0MARE0CASA", "0CA SA", "0casa", "0CASA3E-"})
        EXPECT_FALSE(unpackWords(wrong)) << wrong;
}

TEST(BoardArgument, FindsTheBoardAskedForOnTheCommandLine) {
    using Line = std::vector<std::string>;
    const std::vector<std::pair<Line, std::optional<std::string>>> cases = {
        {{}, std::nullopt},
        {{"--tabellone", "10PE"}, "10PE"},
        {{"--tabellone=10PE"}, "10PE"},
        {{"--tabellone"}, ""}, // asked for, but no code: the player hears why
        {{"GRIGLIONE:10PE"}, "GRIGLIONE:10PE"},
        {{"griglione://10PE/"}, "griglione://10PE/"},
        {{"griglione"}, std::nullopt},
        {{"--tabellonex", "10PE"}, std::nullopt},
        {{"--tabellone", "griglione:10PE", "griglione:20AB"}, "griglione:20AB"},
    };
    for (const auto& [line, asked] : cases)
        EXPECT_EQ(boardArgument(line), asked) << ::testing::PrintToString(line);
}

} // namespace
} // namespace griglione
