#include "records/record_address.h"
#include "records/record_opening.h"
#include "records/record_table.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

#include <sstream>

namespace griglione {
namespace {

// The submission address, part by part, with the notes trimmed and their marks replaced.

TEST(RecordAddress, BuildsEveryPartInOrder) {
    testing::ScriptedRandom random;
    random.numbers = {0.0, 0.999999, 0.5};
    testing::FixedClock clock;
    const RecordDaInviare record{"  BRIVO ", 1240, 90, " a$b!c=d?e#f & 100% ", "a=b@c.it", 2};
    EXPECT_EQ(indirizzoRecord(record, {5, 3, 2026, 7, 9}, random, clock),
              "https://griglione.example.org/records/griglione.asp?Nome=BRIVO"
              "&programma=Griglione_AZN&data=05-03-2026&punti=1240&Tempo=90"
              "&Note=a_b_c_d%3Fe%23f___100_&E_MAIL=a%3Db%40c.it&ora=07:09&Language=2");
    EXPECT_EQ(random.reseeds, 1);
}

TEST(RecordAddress, LinksNameTheServiceByItsHost) {
    for (const auto& [address, shown] : std::vector<std::pair<std::string, std::string>>{
             {"https://griglione.example.org/", "griglione.example.org"},
             {"http://127.0.0.1:8089/", "127.0.0.1:8089"},
             {"https://records.example.net/griglione/?x#y", "records.example.net"},
             {"localhost:8089", "localhost:8089"}})
        EXPECT_EQ(testoServizio(address), shown) << address;
}

// The record file read back through its traps, the ordering of a new score, the exact bytes
// written, the list lines and when an opening writes at all.

RecordTable tableOf(const std::string& bytes) {
    std::istringstream in(bytes);
    return RecordTable::read(in);
}

std::string repeat(const std::string& line, int times) {
    std::string all;
    for (int i = 0; i < times; ++i)
        all += line;
    return all;
}

TEST(RecordTable, ReadsEachLineTrapsIncluded) {
    const std::tuple<std::string, int, RecordEntry> cases[] = {
        {"   ANNA MARIA ,900\r\n", 1, {"ANNA MARIA ", 900}},
        {"ROSSI,MARIO, 1500 \r\n", 1, {"ROSSI", 0}}, // a comma in the name splits it there
        {",7.5x\r\n", 1, {"", 8}},
        {"X, 2.5\nY,-3\n", 2, {"Y", -3}},      // bare LF ends a line too
        {"\r\n   \r\nZ, 5 \r\n", 1, {"Z", 5}}, // blank lines take no place
        {"SOLO\r\n", 1, {"SOLO", 0}},
        {"BIG, 99999999999 \r\n", 1, {"BIG", 2147483647}},
        {"LAST, 3", 1, {"LAST", 3}}, // no line end after the last line
        {"", 1, {"", 0}},
        {repeat("A, 1 \r\n", 51) + "B, 2 \r\nC, 3 \r\n", 52, {"B", 2}}, // the 53rd is not read
        {std::string(100'000, 'N') + ", 4 \r\nM, 6 \r\n", 2, {"M", 6}},
    };
    for (const auto& [bytes, slot, expected] : cases)
        EXPECT_EQ(tableOf(bytes).slot(slot), expected) << bytes.substr(0, 40);
    EXPECT_EQ(tableOf(std::string(100'000, 'N')).slot(1).name.size(), 4096u);
}

TEST(RecordTable, NewScoreGoesBelowEqualOnesAndFallsOffTheEnd) {
    // Places 1 to 50 hold 5000, 4000, 3000, 2000 and then 2000 - place.
    std::string file = "A, 5000 \r\nB, 4000 \r\nC, 3000 \r\nD, 2000 \r\n";
    for (int i = 5; i <= 50; ++i)
        file += "E" + std::to_string(i) + "," + std::to_string(2000 - i) + "\r\n";
    const std::pair<std::int32_t, std::optional<int>> cases[] = {
        {3000, 4}, {6000, 1}, {2000, 5}, {1951, 50}, {1950, {}}};
    for (const auto& [score, place] : cases) {
        RecordTable table = tableOf(file);
        table.enter("NEW", score);
        EXPECT_EQ(table.placeOf("NEW", score), place) << score;
        EXPECT_EQ(table.slot(51).name, place ? "E50" : "NEW");
    }
}

TEST(RecordTable, WritesFiftyLinesAndListsThemCut) {
    RecordTable table = tableOf("BRIVO, 1240 \r\n");
    table.enter("PRECIPITEVOLISSIMEVOLMENTE", 123456);
    EXPECT_EQ(table.fileBytes(),
              "PRECIPITEVOLISSIMEVOLMENTE, 123456 \r\nBRIVO, 1240 \r\n" + repeat(", 0 \r\n", 48));
    std::vector<std::string> lines = {" N. - Giocatore    -  Punti",
                                      " 01 - PRECIPITEVOL -  123.456",
                                      " 02 - BRIVO        -  01.240"};
    for (int place = 3; place <= 50; ++place)
        lines.push_back(" " + std::string(place < 10 ? "0" : "") + std::to_string(place) +
                        " -              -  00.000");
    EXPECT_EQ(table.listLines(), lines);
}

// 1000 and 1001 points at a match end and 1000 on leaving are played by the window tests.
TEST(RecordOpening, LeavingWith999PointsEntersNothing) {
    GameState state;
    state.puntiGiocatore = 999;
    EXPECT_FALSE(recordAllUscita(state) || state.inserisciRecord || state.uscitaDopoRecord);
}

TEST(RecordOpening, EntersBelowAnEqualScoreAndNeverWritesOverAnUnreadableFile) {
    testing::TempFolder folder;
    const auto file = folder.path() / "zarMolo.HIS";
    GameState state;
    state.puntiGiocatore = 900;
    state.inserisciRecord = true;
    folder.write("zarMolo.HIS", "A, 950 \r\nBRIVO, 900 \r\nC, 800");
    TabellaRecord shown = riempiTabella(state, "BRIVO", file);
    // Below the last of two equal entries.
    EXPECT_EQ(std::tuple(state.inserisciRecord, shown.selezione, shown.invioPossibile),
              std::tuple(false, 3, false));
    // A comma from a hand-edited settings file would end the name in the file.
    state.puntiGiocatore = 940;
    state.inserisciRecord = true;
    shown = riempiTabella(state, "ROSSI, M,", file);
    EXPECT_EQ(std::pair(shown.selezione, folder.read("zarMolo.HIS").substr(0, 29)),
              std::pair(2, std::string("A, 950 \r\nROSSI M, 940 \r\nBRIVO")));

    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    state.inserisciRecord = true;
    shown = riempiTabella(state, "ANNA", file);
    EXPECT_TRUE(std::filesystem::is_directory(file) && shown.selezione == 1 &&
                shown.invioPossibile && shown.nonSalvato);
}

} // namespace
} // namespace griglione
