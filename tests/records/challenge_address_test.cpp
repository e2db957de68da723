#include "records/challenge_address.h"
#include "records/challenge_words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace griglione {
namespace {

struct ServiceAt {
    explicit ServiceAt(const char* address) { setenv("GRIGLIONE_RECORDS_URL", address, 1); }
    ~ServiceAt() { unsetenv("GRIGLIONE_RECORDS_URL"); }
};

// The address part by part: the name trimmed and encoded in Windows-1252, the words packed once
// each whatever their case, and the service's own address with its slash added.
TEST(ChallengeAddress, BuildsEveryPartInOrder) {
    const ServiceAt service("http://127.0.0.1:8089");
    const IndirizzoSfida sent = indirizzoSfida(
        {"10PE748HG9S998BE9K9G5QSZK2PW", " Brivò & co ", 90, {"mare", "CASA", "caso", "casa"}});
    EXPECT_EQ(sent.indirizzo,
              "http://127.0.0.1:8089/sfide/invia?codice=10PE748HG9S998BE9K9G5QSZK2PW"
              "&nome=Briv%F2%20%26%20co&tempo=90&parole=0CASA3O0MARE");
    EXPECT_EQ(sent.paroleTolte, 0u);
    EXPECT_EQ(linkSfida("10PE748HG9S998BE9K9G5QSZK2PW"),
              "http://127.0.0.1:8089/sfide/10PE748HG9S998BE9K9G5QSZK2PW");
}

// More words than any board holds, and a name that encodes to its longest: the address stays
// within 2,048 bytes, keeps the longest words, and keeps as many as fit.
TEST(ChallengeAddress, LeavesOutTheShortestWordsUntilItFits) {
    std::vector<std::string> words;
    for (int i = 0; i < 6000; ++i) {
        std::string word;
        for (int n = i; word.size() < 3 + static_cast<std::size_t>(i % 8); n = n / 26 + i % 7)
            word += static_cast<char>('A' + n % 26);
        words.push_back(word);
    }
    const std::string code = "213C5KF1QQ04KQ55SYFPKJ2YVZHP9N";
    const std::string name = "ÀÀÀÀÀÀÀÀÀÀÀÀ";
    const IndirizzoSfida sent = indirizzoSfida({code, name, 300, words});
    ASSERT_LE(sent.indirizzo.size(), kLunghezzaMassimaIndirizzo);
    const std::string packed = sent.indirizzo.substr(sent.indirizzo.find("&parole=") + 8);
    const auto kept = unpackWords(packed);
    ASSERT_TRUE(kept);

    std::vector<std::string> all = words;
    std::sort(all.begin(), all.end());
    all.erase(std::unique(all.begin(), all.end()), all.end());
    ASSERT_EQ(kept->size() + sent.paroleTolte, all.size());
    ASSERT_GT(sent.paroleTolte, 0u);
    // Kept are the first words of the order "longest first, then alphabetical", and the next
    // one of that order would not have fitted.
    std::stable_sort(all.begin(), all.end(), [](const std::string& a, const std::string& b) {
        return a.size() > b.size();
    });
    std::vector<std::string> first(all.begin(), all.begin() + static_cast<long>(kept->size()));
    std::sort(first.begin(), first.end());
    EXPECT_EQ(first, *kept);
    first.push_back(all[kept->size()]);
    EXPECT_GT(sent.indirizzo.size() - packed.size() + packWords(first).size(),
              kLunghezzaMassimaIndirizzo);
}

} // namespace
} // namespace griglione
