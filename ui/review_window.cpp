#include "ui/review_window.h"

#include "core/announcements.h"
#include "core/number_text.h"
#include "platform/fonts.h"
#include "review/word_list.h"
#include "ui/accessibility.h"
#include "ui/colours.h"
#include "ui/die_cell.h"
#include "ui/path_overlay.h"
#include "ui/quiet_list.h"

#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

#include <cctype>

namespace griglione {
namespace {

constexpr int kDie = 64;
constexpr int kMargin = 12;
constexpr int kBoardTop = 44;
constexpr int kListsLeft = kMargin + kBoardSide * kDie + 16;
constexpr int kListWidth = 140;
constexpr int kListGap = 8;
constexpr int kWidth = kListsLeft + 3 * kListWidth + 2 * kListGap + kMargin;
constexpr int kHeight = 440;

QString points(std::int32_t n) {
    return QString::fromStdString(groupedNumber(n, 1));
}

QString words(std::size_t n) {
    return n == 1 ? ReviewWindow::tr("1 parola") : ReviewWindow::tr("%1 parole").arg(n);
}

} // namespace

ReviewWindow::ReviewWindow(QWidget* parent) : QDialog(parent) {
    setObjectName("Form10");
    setWindowTitle(tr("Il Griglione - Parole del tabellone"));
    setFixedSize(kWidth, kHeight);
    setGround(this, QColor(192, 192, 192), Qt::black);

    m_total = new QLabel(this);
    m_total->setObjectName("Label1");
    m_total->setGeometry(kMargin, 10, kWidth - 2 * kMargin, 24);
    m_total->setFont(tahoma(11, true));
    buildBoard();
    buildLists();
}

void ReviewWindow::load(const GameState& state, const std::filesystem::path& folder) {
    m_letters = boardLetters(state);
    {
        const WordList list = readWordList(folder, state.numDizionario);
        m_review = reviewBoard(findWords(list, m_letters), m_letters, state.paroleGiocatore,
                               state.paroleCPU);
    }
    m_total->setText(
        tr("Il tabellone nascondeva %1 per %2 punti in tutto.")
            .arg(words(static_cast<std::size_t>(m_review.words)), points(m_review.points)));
    if (!m_pictures) m_pictures.emplace(folder);
    for (int n = 0; n < kCells; ++n) {
        m_cells[n]->setPicture(*m_pictures, state.immagineCella[n]);
        m_cells[n]->setLetter(m_letters[n]);
    }
    m_overlay->setLineWidth(state.spessoreLinea + 5);
    m_filter = -1;
    showWords();
}

void ReviewWindow::showBoard(const GameState& state, const std::filesystem::path& folder) {
    load(state, folder);
    // Enter closes the review at once; Tab leads to the dice and the lists.
    m_close->setFocus();
    exec();
}

void ReviewWindow::setFooter(QWidget* footer, bool shown) {
    if (footer->parentWidget() != this) footer->setParent(this);
    footer->setGeometry(0, kHeight, kWidth, footer->sizeHint().height());
    footer->setVisible(shown);
    setFixedSize(kWidth, kHeight + (shown ? footer->height() : 0));
}

void ReviewWindow::buildBoard() {
    auto* board = new QWidget(this);
    board->setObjectName("board");
    board->setGeometry(kMargin - 4, kBoardTop - 4, kBoardSide * kDie + 8, kBoardSide * kDie + 8);
    board->setAutoFillBackground(true);
    QPalette palette = board->palette();
    palette.setColor(QPalette::Window, QColor(20, 20, 20));
    board->setPalette(palette);
    for (int n = 0; n < kCells; ++n) {
        auto* cell = new DieCell(n, board);
        cell->setGeometry(4 + (n % kBoardSide) * kDie, 4 + (n / kBoardSide) * kDie, kDie, kDie);
        connect(cell, &DieCell::pressed, this, [this](int index, int) { cellPressed(index); });
        // From the keyboard: Tab reaches the dice, the arrows move between them, Enter and
        // Space filter as a click does.
        connect(cell, &DieCell::enterPressed, this, [this, n] { cellPressed(n); });
        connect(cell, &DieCell::escapePressed, this, &QDialog::reject);
        m_cells[n] = cell;
    }
    // The marker lies under the path and over the dice, and lets presses through to them.
    m_marker = new QWidget(board);
    m_marker->setObjectName("marker");
    m_marker->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_marker->setStyleSheet("border: 3px solid rgb(255, 200, 0);");
    m_marker->resize(kDie, kDie);
    m_marker->hide();
    m_overlay = new PathOverlay(m_path, QSize(kDie, kDie), board);
    m_overlay->move(4, 4);

    m_hint = new QLabel(this);
    m_hint->setObjectName("Label5");
    m_hint->setGeometry(kMargin, kBoardTop + kBoardSide * kDie + 10, kBoardSide * kDie, 48);
    m_hint->setWordWrap(true);
    m_hint->setFont(tahoma(8.25));
}

void ReviewWindow::buildLists() {
    const char* objectNames[] = {"List1", "List2", "List3"};
    const QString listNames[] = {tr("Le tue parole"), tr("Parole della CPU"), tr("Parole mancate")};
    const char* headingNames[] = {"Label2", "Label3", "Label4"};
    for (std::size_t i = 0; i < 3; ++i) {
        const int left = kListsLeft + static_cast<int>(i) * (kListWidth + kListGap);
        m_headings[i] = new QLabel(this);
        m_headings[i]->setObjectName(headingNames[i]);
        m_headings[i]->setGeometry(left, kBoardTop - 6, kListWidth, 18);
        m_counts[i] = new QLabel(this);
        m_counts[i]->setObjectName(QStringLiteral("count%1").arg(i + 1));
        m_counts[i]->setGeometry(left, kBoardTop + 14, kListWidth, 18);
        m_lists[i] = new QuietList(this);
        m_lists[i]->setObjectName(objectNames[i]);
        m_lists[i]->setGeometry(left, kBoardTop + 34, kListWidth, kBoardSide * kDie - 30);
        m_lists[i]->setFont(courier(9));
        m_headings[i]->setBuddy(m_lists[i]);
        m_lists[i]->setAccessibleName(listNames[i]);
        connect(m_lists[i], &QListWidget::currentRowChanged, this,
                [this, i](int row) { wordChosen(i, row); });
    }
    const int buttonsTop = kHeight - kMargin - 28;
    auto* all = new QPushButton(tr("&Tutte"), this);
    all->setObjectName("Command1");
    all->setGeometry(kListsLeft, buttonsTop, 100, 28);
    all->setAutoDefault(false);
    connect(all, &QPushButton::clicked, this, [this] {
        m_filter = -1;
        showWords();
    });
    m_close = new QPushButton(tr("&Chiudi"), this);
    m_close->setObjectName("Command2");
    m_close->setGeometry(kWidth - kMargin - 100, buttonsTop, 100, 28);
    m_close->setDefault(true);
    connect(m_close, &QPushButton::clicked, this, &QDialog::accept);
}

void ReviewWindow::showWords() {
    const ReviewList* lists[] = {&m_review.player, &m_review.cpu, &m_review.missed};
    const QString titles[] = {tr("&Le tue parole"), tr("Parole della C&PU"), tr("Parole &mancate")};
    for (std::size_t i = 0; i < 3; ++i) {
        m_shown[i] = throughCell(*lists[i], m_filter);
        std::int32_t shownPoints = 0;
        const QSignalBlocker blocker(m_lists[i]);
        m_lists[i]->clear();
        for (const ReviewEntry* entry : m_shown[i]) {
            shownPoints += entry->points;
            m_lists[i]->addItem(QStringLiteral("%1%2")
                                    .arg(QString::fromStdString(entry->word), -10)
                                    .arg(entry->points, 5));
        }
        m_headings[i]->setText(titles[i]);
        m_counts[i]->setText(tr("%1, %2 punti").arg(words(m_shown[i].size()), points(shownPoints)));
    }
    if (m_filter < 0) {
        m_marker->hide();
        m_hint->setText(tr("Clicca una parola per vederne il percorso, un dado per vedere solo le "
                           "parole che lo attraversano."));
    } else {
        m_marker->move(4 + (m_filter % kBoardSide) * kDie, 4 + (m_filter / kBoardSide) * kDie);
        m_marker->show();
        m_hint->setText(
            tr("Solo le parole che passano per il dado evidenziato: cliccalo di nuovo, o "
               "\"Tutte\", per vederle tutte."));
    }
    drawPath({});
}

void ReviewWindow::cellPressed(int cell) {
    m_filter = m_filter == cell ? -1 : cell;
    showWords();
    announce(this, QString::fromStdString(Announcements::reviewFilter(
                       m_filter < 0 ? '\0' : m_letters[static_cast<std::size_t>(m_filter)],
                       m_lists[0]->count(), m_lists[1]->count(), m_lists[2]->count())));
}

void ReviewWindow::wordChosen(std::size_t list, int row) {
    if (row < 0 || static_cast<std::size_t>(row) >= m_shown[list].size()) return;
    // One word at a time: choosing in one list clears the others.
    for (std::size_t i = 0; i < 3; ++i)
        if (i != list) {
            const QSignalBlocker blocker(m_lists[i]);
            m_lists[i]->clearSelection();
            m_lists[i]->setCurrentRow(-1);
        }
    const ReviewEntry& entry = *m_shown[list][static_cast<std::size_t>(row)];
    if (m_filter < 0 || entry.path.empty()) {
        drawPath(entry.path);
        return;
    }
    // With a die chosen, the path shown is one that passes through it.
    std::string word = entry.word;
    for (char& c : word)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    drawPath(tracePath(m_letters, word, m_filter));
}

void ReviewWindow::drawPath(const std::vector<int>& path) {
    m_path.hideAll();
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (i == 0)
            m_path.start(path[0]);
        else
            m_path.connect(path[i - 1], path[i]);
    }
    m_overlay->setStartCell(path.empty() ? -1 : path.front());
}

} // namespace griglione
