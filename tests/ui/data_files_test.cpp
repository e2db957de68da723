// The pictures and sounds the game names are all in data/: a die for every letter the pools can
// deal and every face, all of one size, and every sound effect.
#include "board/board_layout.h"
#include "board/dealer.h"
#include "core/file_names.h"

#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QtTest>

using namespace griglione;

class DataFilesTest : public QObject {
    Q_OBJECT
    const std::filesystem::path data{GRIGLIONE_DATA_DIR};

private slots:
    void everyDealableDieHasFourFacesOfOneSize() {
        const QImage blank(QString::fromStdString((data / std::string(kBlankDie)).string()));
        QVERIFY(!blank.isNull());
        for (int language : {1, 2, 3})
            for (std::string_view pool :
                 {letterPools(language).vocali, letterPools(language).consonanti})
                for (char letter : pool)
                    for (int face = 1; face <= 4; ++face) {
                        const auto file = data / dieName(letter, face);
                        const QImage die(QString::fromStdString(file.string()));
                        QVERIFY2(!die.isNull(), file.c_str());
                        QCOMPARE(die.size(), blank.size());
                    }
    }

    void everySoundEffectIsThere() {
        for (const char* name :
             {"COLLAPSE.WAV", "collapse.wav", "SND0002.wav", "SND0230.wav", "DOOLANE.WAV",
              "SHOOT1.WAV", "ROCHAN3.WAV", "perdi.wav", "vinci.wav", "explode2.wav", "SND0012.WAV"})
            QVERIFY2(std::filesystem::is_regular_file(resolveFileName(data, name)), name);
    }

    void theHelpPageAndEveryPictureAreThere() {
        QFile page(QString::fromStdString((data / "GRIGLIONE.htm").string()));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString html = QString::fromUtf8(page.readAll());
        auto pictures = QRegularExpression("<img[^>]*\\ssrc=\"([^\"]+)\"").globalMatch(html);
        QVERIFY(pictures.hasNext());
        QStringList names = {"griglione.gif", "manina.gif"}; // the logo and the hand pointer
        while (pictures.hasNext())
            names << pictures.next().captured(1);
        for (const QString& name : names)
            QVERIFY2(!QImage(QString::fromStdString((data / name.toStdString()).string())).isNull(),
                     qPrintable(name));
    }
};

QTEST_MAIN(DataFilesTest)
#include "data_files_test.moc"
