// The submission address, part by part, with the notes trimmed and their marks replaced.
#include "records/record_address.h"
#include "tests/support/fakes.h"

#include <gtest/gtest.h>

namespace griglione {
namespace {

TEST(RecordAddress, BuildsEveryPartInOrder) {
    testing::ScriptedRandom random;
    random.numbers = {0.0, 0.999999, 0.5};
    testing::FixedClock clock;
    const RecordDaInviare record{"  BRIVO ", 1240, 90, " a$b!c=d?e#f & 100% ", "a=b@c.it", 2};
    EXPECT_EQ(indirizzoRecord(record, {5, 3, 2026, 7, 9}, random, clock),
              "https://griglione.example.org/records/griglione.asp?Nome=BRIVO"
              "&programma=Griglione_AZN&data=05-03-2026&punti=1240&Tempo=90"
              "&Note=a_b_c_d?e#f___100_&E_MAIL=a=b@c.it&ora=07:09&Language=2");
    EXPECT_EQ(random.reseeds, 1);
}

} // namespace
} // namespace griglione
