// Il Griglione: a word game on a 5 × 5 board of letter dice against the computer.
#include "board/board_argument.h"
#include "core/mixing_random.h"
#include "platform/event_yield.h"
#include "platform/fonts.h"
#include "platform/game_folder.h"
#include "platform/interface_translation.h"
#include "platform/outside_opener.h"
#include "platform/picture_book.h"
#include "platform/sound_player.h"
#include "platform/system_clock.h"
#include "ui/alert_boxes.h"
#include "ui/challenge_flow.h"
#include "ui/main_window.h"
#include "ui/readable_colours.h"

#include <QApplication>
#include <QDateTime>
#include <QTimer>

#include <cstdlib>
#include <string>
#include <vector>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    // Read before the folder changes; Qt has taken its own options out already.
    std::vector<std::string> arguments;
    for (const QString& argument : QCoreApplication::arguments().mid(1))
        arguments.push_back(argument.toStdString());
    const auto board = griglione::boardArgument(arguments);
    // Every file of the game is found by its bare name in the folder it works in.
    griglione::settleGameFolder(QCoreApplication::applicationDirPath());
    griglione::useInterfaceLanguage(griglione::systemInterfaceLanguage(), ".");
    griglione::registerFonts();
    QApplication::setFont(griglione::tahoma(8.25));
    griglione::ReadableColours colours;
    QApplication::setWindowIcon(griglione::PictureBook(".").icon("icona.svg"));

    griglione::SoundPlayer player;
    griglione::AlertBoxes alerts;
    griglione::OutsideOpener outside;
    griglione::SystemClock clock;
    griglione::MixingRandom random(static_cast<std::uint64_t>(QDateTime::currentMSecsSinceEpoch()));
    griglione::MainWindow window({player, alerts, outside, clock, random, griglione::yieldToWindow,
                                  ".", [] { std::exit(0); }});
    alerts.setParent(&window);
    window.startUp();
    window.show();
    // A board asked for on the command line, or by a "griglione:" link, starts at once.
    if (board)
        QTimer::singleShot(0, &window, [&window, &board] {
            window.challenges().playText(QString::fromStdString(*board));
        });
    return app.exec();
}
