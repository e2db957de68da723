// The program's yield runs the event loop seldom enough for a scan to be quick, and often
// enough for a running timer to fire in the middle of one.
#include "dictionary/dictionary.h"
#include "platform/event_yield.h"
#include "tests/support/fakes.h"

#include <QTimer>
#include <QtTest>

using namespace griglione;
using namespace griglione::testing;

class EventYieldTest : public QObject {
    Q_OBJECT

private slots:
    void aTimerFiresInsideAScan() {
        // 200,000 words of 10 letters: a scan of many milliseconds on any machine.
        WordLists words;
        for (int i = 0; i < 200000; ++i) {
            std::string word = "AAAAAAAAAA";
            for (int k = 9, rest = i; rest > 0; --k, rest /= 26)
                word[k] = char('A' + rest % 26);
            words[7].push_back(word);
        }
        TempFolder folder;
        folder.write("SLESSICO.1", buildDictionaryFile("test", words));
        GameState state;
        OpenFileTable files;
        FakeAlerts alerts;
        int records = 0, firedAt = -1;
        const auto yield = [&] {
            ++records;
            yieldToWindow();
        };
        Dictionary dictionary(state, files, alerts, yield, folder.path());
        dictionary.prendidiz();
        // The tick closes the files, as a submission does, so the scan ends soon after it.
        QTimer::singleShot(2, [&] {
            firedAt = records;
            files.closeAll();
        });
        QVERIFY(!dictionary.trovaInDizionario("ZZZZZZZZZZ"));
        QVERIFY(firedAt > 1 && firedAt < 200000);
    }
};

QTEST_GUILESS_MAIN(EventYieldTest)
#include "event_yield_test.moc"
