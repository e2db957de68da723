// The match log: its exact bytes, the lines it refuses, appends that survive a full disk and a
// writer killed at any moment, and the summary the statistics window shows.
#include "records/log_summary.h"
#include "records/match_log.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <random>

namespace griglione {
namespace {

using testing::TempFolder;

MatchEntry entry(std::int32_t punti, std::int32_t puntiCPU = 0,
                 std::string when = "2026-11-24 "
                                    "21:05:09") {
    MatchEntry e;
    e.when = std::move(when);
    e.level = 2;
    e.punti = punti;
    e.puntiCPU = puntiCPU;
    e.parole = 2;
    e.paroleCPU = 1;
    e.parolaPiuLunga = "casa";
    e.perLunghezza = {1, 1};
    return e;
}

TEST(MatchLog, WritesTheHeaderOnceAndEachMatchAsOneLine) {
    TempFolder folder;
    const auto path = folder.path() / std::string(kMatchLogFileName);
    GameState state;
    state.numDizionario = 2;
    state.tempoPartita = 90;
    state.puntiGiocatore = 2540;
    state.puntiCPU = 12400;
    // The first of the longest words found is kept; words are counted by length.
    state.paroleGiocatore = {"era", "tavolo", "casa", "sabbia", "ape"};
    state.paroleCPU = {"mare"};
    // Medio is tested after Esperto, as the end-of-match window names the computer.
    const MatchEntry first =
        matchEntry(state, {false, false, true, true}, "", "2026-01-02 03:04:05");
    ASSERT_TRUE(appendMatch(path, first));
    MatchEntry second = entry(0, 0, "2026-12-31 23:59:60");
    second.level = -1;
    second.numDizionario = 3;
    second.tempoPartita = 300;
    second.boardCode = "K7-ABC";
    second.parole = second.paroleCPU = 0;
    second.parolaPiuLunga.clear();
    second.perLunghezza = {};
    ASSERT_TRUE(appendMatch(path, second));
    EXPECT_EQ(folder.read("zarMolo.tsv"),
              "data\tlingua\tsecondi\tavversario\ttabellone\tpunti\tpunti_cpu\tparole\t"
              "parole_cpu\tparola_piu_lunga\tparole_3\tparole_4\tparole_5\tparole_6\tparole_7\t"
              "parole_8\tparole_9\tparole_10\r\n"
              "2026-01-02 03:04:05\ten\t90\tMemo\t\t2540\t12400\t5\t1\ttavolo\t2\t1\t0\t2\t0\t0\t0"
              "\t0\r\n"
              "2026-12-31 23:59:60\tla\t300\t\tK7-ABC\t0\t0\t0\t0\t\t0\t0\t0\t0\t0\t0\t0\t0\r\n");
    const LogContent back = readLog(path);
    EXPECT_EQ(back.skipped, 0);
    EXPECT_EQ(back.entries, (std::vector<MatchEntry>{first, second}));
}

TEST(MatchLog, RefusesDamagedAndForeignLines) {
    const std::string good = logLine(entry(1240, 980));
    const auto replaced = [&](std::size_t field, const std::string& text) {
        std::string line = good.substr(0, good.size() - 2);
        std::size_t start = 0;
        for (std::size_t i = 0; i < field; ++i)
            start = line.find('\t', start) + 1;
        const std::size_t end = line.find('\t', start);
        return line.replace(start, end == std::string::npos ? end : end - start, text);
    };
    const std::pair<std::string, bool> cases[] = {
        {good, true},
        {good.substr(0, good.size() - 2), true}, // the last line of a file may lack its end
        {good.substr(0, good.size() - 2) + "\n", true},
        {good.substr(0, good.size() - 4), false}, // cut short in its last field
        {good.substr(0, good.size() - 2) + "\t", false},
        {good.substr(0, good.rfind('\t')), false},
        {replaced(0, "2026-13-01 10:00:00"), false},
        {replaced(0, "24/11/2026 21:05:09"), false},
        {replaced(0, "2026-11-24T21:05:09"), false},
        {replaced(1, "IT"), false},
        {replaced(1, ""), false},
        {replaced(2, "0"), false},
        {replaced(2, "32768"), false},
        {replaced(3, "memo"), false},
        {replaced(4, "A\x7f"), false},
        {replaced(4, std::string(129, 'A')), false},
        {replaced(5, " 1240"), false}, // the sign place of the game's other files
        {replaced(5, "-5"), false},
        {replaced(5, "1.240"), false},
        {replaced(5, "1e3"), false},
        {replaced(5, "2147483647"), true},
        {replaced(5, "2147483648"), false},
        {replaced(6, ""), false},
        {replaced(9, "CASA"), false},
        {replaced(9, "ca"), false},
        {replaced(9, "abcdefghijk"), false},
        {replaced(9, "cas\xe0"), false},
        {replaced(9, "tavolo"), false}, // no word of six letters counted
        {replaced(11, "2"), false},     // three words counted of two
        {replaced(7, "9"), true},       // words the lengths leave out are fine
        {replaced(10, "0"), true},
        {"", false},
    };
    for (const auto& [line, accepted] : cases) {
        MatchEntry e;
        EXPECT_EQ(parseLogLine(line, e), accepted) << line;
    }
}

TEST(MatchLog, ReadsPastTheHeaderBlankLinesAndDamage) {
    const std::string a = logLine(entry(100)), b = logLine(entry(200)), c = logLine(entry(300));
    const std::string header(kMatchLogHeader);
    const LogContent log = parseLog("\xEF\xBB\xBF" + header + a + "\r\n  \r\n" + "garbage\r\n" + b +
                                    header + b.substr(0, 20) + "\n" + c.substr(0, c.size() - 2));
    EXPECT_EQ(log.skipped, 2);
    ASSERT_EQ(log.entries.size(), 3u);
    EXPECT_EQ(log.entries[0].punti, 100);
    EXPECT_EQ(log.entries[2].punti, 300);
}

// What a failed or interrupted write leaves behind never spoils the next line.
TEST(MatchLog, AppendsAfterATornLineAndFailsWhole) {
    TempFolder folder;
    const auto path = folder.path() / "log.tsv";
    const std::string before = std::string(kMatchLogHeader) + logLine(entry(1)) + "2026-11-2";
    folder.write("log.tsv", before);
    ASSERT_TRUE(appendMatch(path, entry(2)));
    LogContent log = readLog(path);
    EXPECT_EQ(log.skipped, 1);
    ASSERT_EQ(log.entries.size(), 2u);
    EXPECT_EQ(log.entries[1].punti, 2);

    const std::string whole = folder.read("log.tsv");
    {
        testing::WriteLimit full(10);
        std::error_code why;
        EXPECT_FALSE(appendMatch(path, entry(3), &why));
        EXPECT_EQ(why, std::errc::no_space_on_device);
    }
    EXPECT_EQ(folder.read("log.tsv"), whole);

    // A folder where the log should be: no line, a reason, and nothing to read.
    std::filesystem::create_directory(folder.path() / "dir.tsv");
    std::error_code why;
    EXPECT_FALSE(appendMatch(folder.path() / "dir.tsv", entry(4), &why));
    EXPECT_TRUE(why);
    EXPECT_TRUE(readLog(folder.path() / "dir.tsv").entries.empty());

    ASSERT_TRUE(emptyLog(path));
    EXPECT_EQ(folder.read("log.tsv"), kMatchLogHeader);
}

// A writer killed with SIGKILL at a random moment of a run of appends: every line it finished
// is whole and in order, and the next append after it stands on its own line.
TEST(MatchLog, EveryEarlierLineSurvivesAKilledWriter) {
    std::mt19937 random(30);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    int rounds = 0, cutMidLine = 0;
    for (; rounds < 40 && std::chrono::steady_clock::now() < deadline; ++rounds) {
        TempFolder folder;
        const auto path = folder.path() / "log.tsv";
        const pid_t writer = fork();
        ASSERT_GE(writer, 0);
        if (writer == 0) {
            for (int i = 0; i < 100'000; ++i)
                appendMatch(path, entry(i));
            _exit(0);
        }
        ::usleep(std::uniform_int_distribution<useconds_t>(0, 20'000)(random));
        ::kill(writer, SIGKILL);
        int status = 0;
        ::waitpid(writer, &status, 0);

        const std::string bytes = folder.read("log.tsv");
        cutMidLine += !bytes.empty() && !bytes.ends_with("\r\n");
        ASSERT_TRUE(appendMatch(path, entry(999'999)));
        const LogContent log = readLog(path);
        EXPECT_LE(log.skipped, 1);
        ASSERT_FALSE(log.entries.empty());
        EXPECT_EQ(log.entries.back().punti, 999'999);
        for (std::size_t i = 0; i + 1 < log.entries.size(); ++i)
            ASSERT_EQ(log.entries[i].punti, static_cast<std::int32_t>(i)) << "round " << rounds;
        // The lines finished before the kill are exactly the start of the file.
        const std::size_t finished = bytes.rfind("\r\n");
        if (finished != std::string::npos) {
            EXPECT_EQ(folder.read("log.tsv").substr(0, finished + 2),
                      bytes.substr(0, finished + 2));
        }
    }
    EXPECT_GE(rounds, 10);
    std::printf("%d writers killed, %d of them in the middle of a line\n", rounds, cutMidLine);
}

TEST(LogSummary, CountsOnlyTheChosenLanguageAndLength) {
    std::vector<MatchEntry> log;
    const auto add = [&](std::int32_t punti, std::int32_t cpu, int level, std::string word,
                         int language = 1, int seconds = 120) {
        MatchEntry e = entry(punti, cpu, "2026-01-01 00:00:" + std::to_string(10 + log.size()));
        e.level = level;
        e.numDizionario = language;
        e.tempoPartita = seconds;
        e.parolaPiuLunga = std::move(word);
        log.push_back(e);
    };
    add(500, 100, 0, "tavolo");
    add(100, 500, 0, "casa");
    add(300, 300, 3, "sabbia"); // same length as "tavolo", found later
    add(900, 0, -1, "tavolo");  // found again: listed once, with its first date
    add(99999, 0, 0, "abcdefghij", 2);
    add(99999, 0, 0, "abcdefghij", 1, 60);
    const LogSummary s = summarize(log, 1, 120);
    EXPECT_EQ(s.matches, 4);
    EXPECT_EQ(s.perLevel[0].wins, 1);
    EXPECT_EQ(s.perLevel[0].losses, 1);
    EXPECT_EQ(s.perLevel[3].draws, 1);
    EXPECT_EQ(s.perLevel[4].wins, 1);
    EXPECT_EQ(s.best, 900);
    EXPECT_DOUBLE_EQ(s.average, 450.0);
    ASSERT_EQ(s.longestWords.size(), 3u);
    EXPECT_EQ(s.longestWords[0].word, "tavolo");
    EXPECT_EQ(s.longestWords[0].when, "2026-01-01 00:00:10");
    EXPECT_EQ(s.longestWords[1].word, "sabbia");
    EXPECT_EQ(s.longestWords[2].word, "casa");
    EXPECT_EQ(s.wordsPerLength[0], 4);
    EXPECT_EQ(s.latest.back().punti, 900);
    EXPECT_EQ(s.latest.back().puntiCPU, 0);

    // The latest hundred, oldest first; the ten longest words, longest first.
    log.clear();
    for (int i = 0; i < 150; ++i)
        add(i, 0, 0, std::string(3 + i % 8, static_cast<char>('a' + i % 26)));
    const LogSummary many = summarize(log, 1, 120);
    ASSERT_EQ(many.latest.size(), kLatestScores);
    EXPECT_EQ(many.latest.front().punti, 50);
    EXPECT_EQ(many.latest.back().punti, 149);
    ASSERT_EQ(many.longestWords.size(), kLongestWordsShown);
    EXPECT_EQ(many.longestWords.front().word, "hhhhhhhhhh");
    EXPECT_EQ(many.longestWords.back().word, "bbbbbbbbbb");
    EXPECT_TRUE(summarize(log, 3, 120).latest.empty());
}

} // namespace
} // namespace griglione
