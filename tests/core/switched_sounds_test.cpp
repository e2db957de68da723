// The sound switch is read at every effect; the beep ignores it.
#include "core/switched_sounds.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

using namespace griglione;

TEST(SwitchedSounds, EffectsFollowTheSwitchFromTheNextCallOn) {
    griglione::testing::FakeSounds player;
    bool on = false;
    SwitchedSounds sounds(player, [&on] { return on; });
    sounds.suona("vinci.wav");
    sounds.beep();
    EXPECT_EQ(player.played, std::vector<std::string>{"beep"});
    on = true;
    sounds.suona("vinci.wav");
    EXPECT_EQ(player.played, (std::vector<std::string>{"beep", "vinci.wav"}));
}
