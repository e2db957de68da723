// Where an installed game reads and writes: the choice of folder, the search through the
// player's folder and the shipped data, and writes that never land among the shipped files.
#include "core/atomic_file.h"
#include "core/file_names.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

using namespace griglione;
namespace fs = std::filesystem;

namespace {

class FileSearchTest : public ::testing::Test {
protected:
    griglione::testing::TempFolder tree;
    fs::path program = tree.path() / "games", data = tree.path() / "share/games/griglione",
             player = tree.path() / "home/griglione";

    void SetUp() override {
        for (const fs::path& folder : {program, player, data})
            fs::create_directories(folder);
        setFileSearchOrder({player, data});
    }
    void TearDown() override { setFileSearchOrder({}); }
    static void put(const fs::path& file, const std::string& bytes) {
        std::ofstream(file, std::ios::binary) << bytes;
    }
};

TEST_F(FileSearchTest, ChoosesTheFolderFromWritabilityAndTheDataBesideTheProgram) {
    const struct {
        bool writable, dataBeside;
        fs::path working, shipped;
    } cases[] = {
        {true, false, program, {}},      // portable: as ever, everything beside the program
        {false, true, player, data},     // installed, for an ordinary user
        {true, true, player, data},      // installed, started by root who can write anywhere
        {false, false, player, program}, // a read-only portable copy still reads its own files
    };
    for (const auto& c : cases) {
        fs::remove_all(tree.path() / "share");
        if (c.dataBeside) fs::create_directories(data);
        const auto order =
            chooseFileSearchOrder(program, c.writable, "../share/games/griglione", player);
        EXPECT_EQ(std::pair(order.playerFolder, order.dataFolder), std::pair(c.working, c.shipped))
            << c.writable << c.dataBeside;
    }
}

TEST_F(FileSearchTest, ReadsFromThePlayerThenTheDataAndWritesOnlyIntoThePlayersFolder) {
    put(player / "zarmolo.ini", "own");
    put(data / "ZARMOLO.INI", "shipped");
    put(data / "SLESSICO.1", "shipped");
    put(data / "zarMolo.HIS", "A, 1 \r\n");
    EXPECT_EQ(resolveFileName(player, "ZARMOLO.INI"), player / "zarmolo.ini"); // any case
    EXPECT_EQ(resolveFileName(player, "slessico.1"), data / "SLESSICO.1");
    EXPECT_EQ(resolveFileName(player, "ZarmPriv.1"), player / "ZarmPriv.1"); // to be written
    EXPECT_TRUE(writeFileAtomically(resolveFileName(player, "SLESSICO.1"), "rebuilt"));
    EXPECT_TRUE(appendToFile(resolveFileName(player, "zarMolo.HIS"), "B, 2 \r\n"));

    EXPECT_EQ(readWholeFile(player / "SLESSICO.1"), "rebuilt");
    EXPECT_EQ(readWholeFile(player / "zarMolo.HIS"), "A, 1 \r\nB, 2 \r\n");
    EXPECT_EQ(readWholeFile(data / "SLESSICO.1"), "shipped");
    EXPECT_EQ(readWholeFile(data / "zarMolo.HIS"), "A, 1 \r\n");
}

} // namespace
