// Where an installed game reads and writes: the choice of folder, the search through the
// player's folder and the shipped data, and writes that never land among the shipped files.
#include "core/atomic_file.h"
#include "core/file_names.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

using namespace griglione;
using griglione::testing::TempFolder;
namespace fs = std::filesystem;

namespace {

class FileSearchTest : public ::testing::Test {
protected:
    TempFolder tree;
    fs::path program = tree.path() / "games";
    fs::path data = tree.path() / "share/games/griglione";
    fs::path player = tree.path() / "home/griglione";

    void SetUp() override {
        fs::create_directories(program);
        fs::create_directories(player);
    }
    void TearDown() override { setFileSearchOrder({}); }
    void install() {
        fs::create_directories(data);
        setFileSearchOrder({player, data});
    }
    static void put(const fs::path& file, const std::string& bytes) {
        std::ofstream(file, std::ios::binary) << bytes;
    }
    static std::string read(const fs::path& file) { return readWholeFile(file).value_or("-"); }
};

TEST_F(FileSearchTest, ChoosesTheFolderFromWritabilityAndTheDataBesideTheProgram) {
    struct Case {
        bool writable, dataBeside;
        fs::path working, shipped;
    };
    const Case cases[] = {
        {true, false, program, {}},      // portable: as ever, everything beside the program
        {false, true, player, data},     // installed for an ordinary user
        {true, true, player, data},      // installed, started by root who can write /usr/games
        {false, false, player, program}, // a read-only portable copy still reads its own files
    };
    for (const Case& c : cases) {
        fs::remove_all(tree.path() / "share");
        if (c.dataBeside) fs::create_directories(data);
        const FileSearchOrder order =
            chooseFileSearchOrder(program, c.writable, "../share/games/griglione", player);
        EXPECT_EQ(order.playerFolder, c.working) << c.writable << c.dataBeside;
        EXPECT_EQ(order.dataFolder, c.shipped) << c.writable << c.dataBeside;
    }
}

TEST_F(FileSearchTest, LooksInThePlayersFolderFirstWhateverTheCaseThenInTheData) {
    install();
    put(player / "zarmolo.ini", "own");
    put(data / "ZARMOLO.INI", "shipped");
    put(data / "REGPAROL.TXT", "rules");
    const struct {
        const char* name;
        fs::path expected;
    } cases[] = {
        {"ZARMOLO.INI", player / "zarmolo.ini"}, // the player's copy hides the shipped one
        {"regparol.txt", data / "REGPAROL.TXT"},
        {"ZarmPriv.1", player / "ZarmPriv.1"}, // found nowhere: where it will be written
    };
    for (const auto& c : cases)
        EXPECT_EQ(resolveFileName(player, c.name), c.expected) << c.name;
}

TEST_F(FileSearchTest, WritesAShippedFileIntoThePlayersFolderAndLeavesTheShippedOneAlone) {
    install();
    put(data / "SLESSICO.1", "shipped");
    put(data / "zarMolo.HIS", "A, 1 \r\n");

    EXPECT_TRUE(writeFileAtomically(resolveFileName(player, "SLESSICO.1"), "rebuilt"));
    EXPECT_TRUE(appendToFile(resolveFileName(player, "zarMolo.HIS"), "B, 2 \r\n"));

    EXPECT_EQ(read(player / "SLESSICO.1"), "rebuilt");
    EXPECT_EQ(read(player / "zarMolo.HIS"), "A, 1 \r\nB, 2 \r\n");
    EXPECT_EQ(read(data / "SLESSICO.1"), "shipped");
    EXPECT_EQ(read(data / "zarMolo.HIS"), "A, 1 \r\n");
    EXPECT_EQ(resolveFileName(player, "SLESSICO.1"), player / "SLESSICO.1");
}

} // namespace
