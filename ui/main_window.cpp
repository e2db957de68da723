#include "ui/main_window.h"

#include "board/board_layout.h"
#include "core/atomic_file.h"
#include "core/file_names.h"
#include "core/levels.h"
#include "platform/fonts.h"
#include "records/record_address.h"
#include "ui/alert_boxes.h"
#include "ui/announcer.h"
#include "ui/board_keys.h"
#include "ui/challenge_flow.h"
#include "ui/colours.h"
#include "ui/control_names.h"
#include "ui/die_cell.h"
#include "ui/editor_flow.h"
#include "ui/focus_return.h"
#include "ui/help_links.h"
#include "ui/main_window_controls.h"
#include "ui/match_flow.h"
#include "ui/name_validator.h"
#include "ui/options_flow.h"
#include "ui/path_overlay.h"
#include "ui/records_flow.h"
#include "ui/sharp_picture.h"
#include "ui/statistics_window.h"
#include "ui/time_bar.h"
#include "ui/twips.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QTimer>
#include <QToolButton>

namespace griglione {
namespace {

// The board's first die, in twips; the dice pictures are 64 pixels square.
constexpr int kBoardLeft = 120;
constexpr int kBoardTop = 120;
constexpr int kDieTwips = 64 * kTwipsPerPixel;
// The right-hand panel sits this far right of the board.
constexpr int kPanelGap = 47;
constexpr int kDesignPanelLeft = 5340;

// The whole window, frame included, at the top-left corner of the screen.
constexpr QSize kWindowSize(640, 470);

// The pixels a rectangle of twips covers, so a frame a fraction of a pixel outside the dice
// still shows as a line around them.
QRect coveredPixels(const Rect& r) {
    const int left = r.left / kTwipsPerPixel;
    const int top = r.top / kTwipsPerPixel;
    const int right = (r.left + r.width + kTwipsPerPixel - 1) / kTwipsPerPixel;
    const int bottom = (r.top + r.height + kTwipsPerPixel - 1) / kTwipsPerPixel;
    return {left, top, right - left, bottom - top};
}

} // namespace

MainWindow::MainWindow(Services services)
    : m_services(std::move(services)),
      m_sounds(m_services.player, [this] { return m_menu.suono->isChecked(); }), m_messages(this),
      m_dictionary(m_state, m_files, m_services.alerts, m_services.yield, m_services.folder),
      m_dealer(m_services.random, m_services.clock),
      m_board(m_state, m_dealer, m_sounds, m_messages, *this), m_rules(m_services.folder),
      m_pictures(m_services.folder) {
    setObjectName("Form1");
    m_menu = buildMenuBar(menuBar());
    buildControls();

    m_timer1 = new QTimer(this);
    m_timer1->setObjectName("Timer1");
    m_timer1->setInterval(1000);
    connect(m_timer1, &QTimer::timeout, this, [this] { m_match->clockTick(); });
    connect(m_timer1, &QTimer::timeout, m_announcer, &Announcer::tick);
    m_timer2 = new QTimer(this);
    m_timer2->setObjectName("Timer2");
    m_timer2->setInterval(200);

    m_prompt =
        std::make_unique<ConfirmPrompt>(m_state, *m_timer1, m_messages, m_services.folder, this);
    m_submission = std::make_unique<WordSubmission>(m_state, m_board, m_dictionary, m_files,
                                                    m_sounds, m_messages, *this, *m_prompt);
    m_opponent = std::make_unique<OpponentWalk>(
        m_state, m_services.random, m_services.clock,
        [this](const std::string& parola) { return m_dictionary.cercaParola(parola); },
        m_services.yield, *this);
    connect(m_timer2, &QTimer::timeout, this, [this] { m_opponent->tick(); });
    m_options = std::make_unique<OptionsFlow>(
        m_state, m_menu, *m_timer2, *m_playerName, m_services.alerts, m_services.folder,
        OptionsFlow::Hooks{[this] { aggMenudiz(); }, [this] { settaSpessLinea(); },
                           [this] { m_match->restartAfterSettingChange(); }});
    m_records = std::make_unique<RecordsFlow>(*this, m_state, *m_timer1, *m_timer2, m_messages,
                                              m_services, [this] { return m_playerName->text(); });
    m_match = std::make_unique<MatchFlow>(
        *this, m_state, m_board, *m_timer1, *m_timer2, m_sounds, m_messages, *m_options, *m_records,
        m_services,
        MatchFlow::Screen{
            *m_timeBar, *m_seconds, [this] { return m_playerName->text(); },
            [this] {
                return std::pair{m_playerScore->text().toInt(), m_cpuScore->text().toInt()};
            },
            m_pictures, [this] { focusBoard(); }});
    m_challenges = new ChallengeFlow(
        *this, m_state, *m_timer1, *m_timer2, m_services.outside, m_services.alerts,
        {[this] { aggMenudiz(); }, [this] { salvaImpostazioni(); },
         [this](const SharedBoard& board) { m_match->startOnBoard(board); },
         [this] { return m_playerName->text(); }});
    m_match->setReviewExtra([this](ReviewWindow& review) { m_challenges->addToReview(review); });
    wireMenu();
    new HelpLinks(this, m_menu, m_services.outside, m_services.alerts, m_messages,
                  m_services.folder);
    m_editors = std::make_unique<EditorFlow>(
        EditorContext{m_state, m_dictionary, m_files, m_services.alerts, askOkCancel,
                      m_services.yield, [this] { m_messages.chiudi(); }, m_services.terminate,
                      m_services.folder},
        [this] { m_match->abandon(); }, [this] { nuovaPartita(); }, this);
    connect(m_menu.vocabolario, &QAction::triggered, this, [this] { m_editors->openVocabulary(); });
    connect(m_menu.vocabolarioPrincipale, &QAction::triggered, this,
            [this] { m_editors->openDictionary(); });
}

MainWindow::~MainWindow() = default;

void MainWindow::buildControls() {
    m_announcer =
        new Announcer(*this, m_state, m_messages, [this] { return m_timer1->isActive(); });
    m_keys = new BoardKeys(
        m_board, [this] { return m_timer1->isActive(); },
        [this](PressResult result, char letter) { m_announcer->traced(result, letter); },
        [this] { m_messages.chiudi(); }, this);
    m_messages.setKeyWatcher(m_keys);
    new FocusReturn(
        *this, [this] { return m_timer1->isActive(); }, [this] { focusBoard(); });
    auto* area = new QWidget(this);
    area->setObjectName("client");
    area->setAutoFillBackground(true);
    QPalette palette = area->palette();
    palette.setColor(QPalette::Window, kDarkGreen);
    palette.setColor(QPalette::WindowText, Qt::white);
    area->setPalette(palette);
    area->setMinimumSize(632, 418);
    setCentralWidget(area);

    const QRect cell0 = twipsRect(kBoardLeft, kBoardTop, kDieTwips, kDieTwips);
    const auto frames = boardFrames({kBoardLeft, kBoardTop, kDieTwips, kDieTwips});
    const auto shapes = boardShapes(area, coveredPixels(frames[0]), coveredPixels(frames[1]));
    m_frames = {shapes[0], shapes[1]};
    for (int n = 0; n < kCells; ++n) {
        auto* cell = new DieCell(n, area);
        cell->setGeometry(
            cell0.translated((n % kBoardSide) * cell0.width(), (n / kBoardSide) * cell0.height()));
        connect(cell, &DieCell::pressed, this, [this](int die, int button) {
            m_announcer->traced(m_match->diePressed(die, button), '\0');
        });
        m_keys->watch(cell);
        connect(cell, &DieCell::enterPressed, this, [this] { m_submission->inviaParola(); });
        connect(cell, &DieCell::escapePressed, this, [this] {
            m_board.azzera();
            m_announcer->cleared();
        });
        m_cells[n] = cell;
    }
    m_pathOverlay = new PathOverlay(m_board.path(), cell0.size(), area);
    m_pathOverlay->move(cell0.topLeft());

    // The panel is designed for a wider board and moved to sit just right of it.
    const int d = kBoardLeft + 4 * kDieTwips + kDieTwips + kPanelGap - kDesignPanelLeft;
    const auto at = [d](int left, int top, int width, int height) {
        return twipsRect(left + d, top, width, height);
    };
    label(area, "Label2", tr("Parola composta"), at(5340, 45, 1995, 195), Qt::white, kBlue);
    m_word = label(area, "Label1", "", at(5340, 270, 1995, 330), Qt::black, QColor(255, 255, 192));
    m_word->setFont(tahoma(12));
    auto* ok = pictureButton(area, "Command2", tr("&OK"), at(5340, 660, 984, 915),
                             m_pictures.icon("okbutton.gif"));
    connect(ok, &QToolButton::clicked, this, [this] { m_submission->inviaParola(); });
    m_keys->watch(ok);
    // Alt+O belongs to the "&Opzioni" menu: shared with the button, the first press would only
    // move the focus. Enter submits the word anyway.
    ok->setShortcut(QKeySequence());
    auto* clear = pictureButton(area, "Command1", tr("&Azzera "), at(6360, 660, 984, 915),
                                m_pictures.icon("azzera.gif"));
    connect(clear, &QToolButton::clicked, this, [this] { m_board.azzera(); });
    m_keys->watch(clear);

    m_clockFrame = label(area, "Label3", "", at(5310, 1695, 2025, 345), Qt::white, kRed);
    m_timeBar = new TimeBar(area);
    m_timeBar->setGeometry(at(5340, 1710, 1632, 300));
    m_seconds = label(area, "Label4", "", at(6990, 1770, 300, 225), Qt::white, kRed);

    label(area, "Label6", tr("Giocatore"), at(5325, 2115, 720, 300), Qt::white, kDarkGreen);
    m_playerName = new QLineEdit("BRIVO", area);
    m_playerName->setObjectName("Text1");
    m_playerName->setGeometry(at(6120, 2130, 1188, 252));
    m_playerName->setValidator(new NameValidator(m_playerName));
    m_playerName->installEventFilter(this);

    // The two headings overlap by a few pixels: this one keeps its text clear of the other.
    label(area, "Label5", tr("Trovate da te"), at(5295, 2505, 1050, 195), Qt::white, kBlue)
        ->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label(area, "Label9", "Tobia (CPU)", at(6300, 2505, 1050, 195), Qt::white, kDarkGrey);
    m_playerWords = wordList(area, "List1", at(5295, 2685, 1020, 1590), Qt::cyan);
    m_cpuWords = wordList(area, "List2", at(6300, 2685, 1020, 1590), QColor(192, 192, 192));
    m_keys->watch(m_playerWords);
    m_keys->watch(m_cpuWords);
    m_playerScore = label(area, "Label10", "0", at(5295, 4320, 555, 225), Qt::white, kBlue);
    label(area, "Label7", tr("Punti"), at(6022, 4320, 555, 225), Qt::white, kRed);
    m_cpuScore = label(area, "Label11", "0", at(6750, 4320, 555, 225), Qt::white, kDarkGrey);

    auto* link = label(area, "Label12", QString::fromStdString(testoServizio(indirizzoServizio())),
                       twipsRect(5295 + d, 4590, 1995, 255), QColor(255, 255, 128), kDarkGreen);
    link->setToolTip(tr("Visita il sito dell'autore"));
    m_cpuAttempt = label(area, "Label8", "", at(5340, 4860, 1950, 225), Qt::white, kDarkGreen);
    m_cpuAttempt->hide();

    m_logo = new QLabel(area);
    m_logo->setObjectName("Picture3");
    m_logo->setGeometry(twipsRect(6990, 4920, 3930, 3285));
    m_logo->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    nameMainWindowControls(area);
    // The name box holds the focus when the window opens.
    m_playerName->setFocus();
    setFixedSize(kWindowSize);
}

void MainWindow::wireMenu() {
    connect(m_menu.nuovo, &QAction::triggered, this, &MainWindow::nuovaPartita);
    connect(m_menu.fine, &QAction::triggered, this, &MainWindow::quit);
    connect(m_menu.records, &QAction::triggered, this, [this] { m_records->fromMenu(); });
    connect(m_menu.statistiche, &QAction::triggered, this,
            [this] { StatisticsWindow::open(this, m_services, m_state); });
    connect(m_menu.paroleAmmesse, &QAction::triggered, this, &MainWindow::showRules);
    m_options->wire(this);
    m_challenges->wire(m_menu);
}

void MainWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    fitFrame(10);
}

void MainWindow::fitFrame(int tries) {
    // The frame's size is known only once the window manager has framed the window, a moment
    // after it is shown; without a window manager there is no frame.
    const QSize frame = frameGeometry().size() - geometry().size();
    setFixedSize(kWindowSize - frame);
    move(0, 0);
    if (frame.isEmpty() && tries > 0)
        QTimer::singleShot(50, this, [this, tries] { fitFrame(tries - 1); });
}

void MainWindow::startUp() {
    move(0, 0);
    m_board.lanciaDadi(false);
    m_state.tempoPartita = 120;
    m_state.spessoreLinea = 7;
    m_state.numDizionario = 1;
    m_options->readSettings();
    m_timer1->stop();
    m_clockFrame->setText("");
    std::size_t width = 1;
    if (m_state.spessoreLinea == 1) width = 0;
    if (m_state.spessoreLinea == 13) width = 2;
    m_state.spessoreLinea = static_cast<std::int16_t>(kLineWidths[width].spessore);
    m_menu.spessori[width]->setChecked(true);
    settaSpessLinea();
    aggMenudiz();
    SharpPicture::show(m_logo, m_pictures, "griglione.gif");
}

void MainWindow::salvaImpostazioni() {
    m_options->salvaImpostazioni();
}

void MainWindow::settaSpessLinea() {
    changed(Aspect::Path);
}

void MainWindow::aggMenudiz() {
    std::size_t language = 0;
    if (m_state.numDizionario == 2) language = 1;
    if (m_state.numDizionario == 3) language = 2;
    checkOnly(m_menu.lingue, language);
    m_state.nomeDizionario = std::string(kLanguages[language].nome);
    setWindowTitle(
        tr("Il Griglione - Dizionario %1")
            .arg(QCoreApplication::translate("Options", kLanguages[language].nome.data())));
    m_dictionary.prendidiz();
}

void MainWindow::startPartita() {
    m_match->startPartita();
}

void MainWindow::nuovaPartita() {
    m_match->nuovaPartita();
}

// Typing works at once: the focus goes to the board, to the die that has it last.
void MainWindow::focusBoard() {
    if (qobject_cast<DieCell*>(focusWidget())) return;
    for (DieCell* cell : m_cells)
        if (cell->focusPolicy() == Qt::StrongFocus) cell->setFocus(Qt::OtherFocusReason);
}

void MainWindow::showRules() {
    const std::string& rules = m_rules.text(m_services.alerts);
    if (m_playerName->isVisible()) m_playerName->setFocus();
    m_state.messaggio = {tr("INFO!").toStdString(), tr("Informazioni dizionario").toStdString(),
                         rules};
    m_messages.showToRead(m_state.messaggio);
}

void MainWindow::quit() {
    m_timer2->stop();
    m_timer1->stop();
    m_records->beforeQuit();
    QApplication::quit();
}

void MainWindow::changed(Aspect aspect) {
    switch (aspect) {
    case Aspect::Board:
        for (int n = 0; n < kCells; ++n) {
            m_cells[n]->setPicture(m_pictures, m_state.immagineCella[n]);
            m_cells[n]->setLetter(letteraCella(m_state, n));
        }
        break;
    case Aspect::Word:
        setValueText(m_word, QString::fromStdString(m_state.parolaComposta));
        break;
    case Aspect::Path:
        m_pathOverlay->setLineWidth(m_state.spessoreLinea + 5);
        break;
    case Aspect::PlayerWords:
        showWords(m_playerWords, m_state.paroleGiocatore);
        break;
    case Aspect::CpuWords:
        showWords(m_cpuWords, m_state.paroleCPU);
        m_announcer->opponentFound();
        break;
    case Aspect::Scores:
        setValueText(m_playerScore, QString::number(m_state.puntiGiocatore));
        setValueText(m_cpuScore, QString::number(m_state.puntiCPU));
        break;
    case Aspect::TimeBar:
        m_timeBar->clear();
        break;
    case Aspect::CpuAttempt:
        m_cpuAttempt->setText(QString::fromStdString(m_state.ultimoTentativoCPU));
        break;
    }
}

void MainWindow::setBusy(bool busy) {
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        m_submission->inviaParola();
    else
        QMainWindow::keyPressEvent(event);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    // The name is saved when the focus moves to another control of this window, not when a
    // menu (opened by mouse or keyboard) or another window takes it for a while. The control
    // that takes the focus already holds it when the box hears of the loss.
    if (watched == m_playerName && event->type() == QEvent::FocusOut) {
        const QWidget* next = QApplication::focusWidget();
        if (next && next != m_playerName && next->window() == this &&
            !qobject_cast<const QMenuBar*>(next)) {
            m_playerName->setText(upperName(m_playerName->text()));
            salvaImpostazioni();
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    m_timer1->stop();
    m_timer2->stop();
    event->accept();
    QApplication::quit();
}

} // namespace griglione
