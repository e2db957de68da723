// Drawing the whole board of 25 dice on a screen of pixel ratio 2: once cold, every die's source
// rendered afresh, then again and again from the pictures kept for that ratio.
#include "bench_support.h"
#include "board/board_layout.h"
#include "platform/picture_book.h"
#include "ui/die_cell.h"

#include <QApplication>
#include <QPixmap>

#include <array>
#include <cstdio>
#include <string>

using namespace griglione;

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication app(argc, argv);
    const std::string data = argc > 1 ? argv[1] : "data";

    QWidget board;
    board.resize(kBoardSide * 64, kBoardSide * 64);
    std::array<DieCell*, kCells> cells{};
    for (int n = 0; n < kCells; ++n) {
        cells[n] = new DieCell(n, &board);
        cells[n]->setGeometry((n % kBoardSide) * 64, (n / kBoardSide) * 64, 64, 64);
    }
    std::printf("device pixel ratio %g\n", board.devicePixelRatioF());
    // A board of 25 different dice, all four faces among them.
    const auto deal = [&](const PictureBook& book) {
        for (int n = 0; n < kCells; ++n)
            cells[n]->setPicture(book, dieName(static_cast<char>('A' + n), 1 + n % 4));
    };
    const auto draw = [&] {
        const auto start = std::chrono::steady_clock::now();
        const QPixmap drawn = board.grab();
        const double ms = bench::milliseconds(std::chrono::steady_clock::now() - start);
        if (drawn.size() != board.size() * 2) {
            std::printf("FAILED: the board was drawn at %dx%d\n", drawn.width(), drawn.height());
            std::exit(1);
        }
        return ms;
    };

    std::vector<double> cold;
    for (int run = 0; run < 5; ++run) {
        const PictureBook fresh(data);
        deal(fresh);
        cold.push_back(draw());
    }
    std::printf("cold, every picture rendered from its source: median %.3f ms\n",
                bench::median(cold));

    const PictureBook book(data);
    deal(book);
    draw();
    std::vector<double> kept;
    for (int run = 0; run < 200; ++run)
        kept.push_back(draw());
    std::printf("whole board from the pictures kept: ");
    return bench::report(kept, 4.0);
}
