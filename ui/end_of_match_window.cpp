#include "ui/end_of_match_window.h"

#include "core/announcements.h"
#include "platform/fonts.h"
#include "ui/colours.h"
#include "ui/message_window.h"
#include "ui/sharp_picture.h"
#include "ui/twips.h"

#include <QCoreApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>

#include <string>

namespace griglione {
namespace {

QLabel* label(QWidget* parent, const char* name, const QString& text, int left, int top, int width,
              int height) {
    auto* l = new QLabel(text, parent);
    l->setObjectName(name);
    l->setGeometry(twipsRect(left, top, width, height));
    return l;
}

// A name of twelve wide letters fits its place in a smaller type rather than being cut.
void fitText(QLabel* label, const QString& text) {
    QFont font = tahoma(8.25);
    label->setText(text);
    while (QFontMetrics(font).horizontalAdvance(text) > label->width() && font.pointSizeF() > 5)
        font.setPointSizeF(font.pointSizeF() - 0.5);
    label->setFont(font);
}

} // namespace

EndOfMatchWindow::EndOfMatchWindow(QTimer& matchClock, QTimer& opponentClock, Sounds& sounds,
                                   MessageHost& messages, std::function<void()> terminate,
                                   QWidget* parent)
    : QDialog(parent), m_matchClock(matchClock), m_opponentClock(opponentClock), m_sounds(sounds),
      m_messages(messages), m_terminate(std::move(terminate)) {
    setObjectName("Form2");
    setWindowTitle(tr("Il Griglione - Tempo scaduto"));
    setFixedSize(px(6525), px(5475));
    setGround(this, QColor(192, 192, 192), Qt::black);

    m_result = label(this, "Label1", "", 720, 120, 5400, 480);
    m_result->setFont(tahoma(14, true));
    setTextColour(m_result, QColor(128, 0, 0));
    m_names[0] = label(this, "Label3_0", tr("Brivo (Umano)"), 630, 780, 1680, 300);
    m_scores[0] = label(this, "Label4_0", "0", 2310, 720, 800, 360);
    m_scores[1] = label(this, "Label4_1", "0", 3150, 720, 800, 360);
    m_names[1] = label(this, "Label3_1", "(Computer)", 3990, 780, 2300, 300);
    for (QLabel* score : m_scores) {
        score->setFont(tahoma(12, true));
        score->setAlignment(Qt::AlignCenter);
        setTextColour(score, QColor(0, 0, 128));
    }

    m_history = new QListWidget(this);
    m_history->setObjectName("List1");
    m_history->setGeometry(twipsRect(600, 1110, 5295, 1980));
    m_history->setFont(courier(9));
    m_history->setAccessibleName(tr("Partite giocate"));

    m_statisticsHeading = label(this, "Label5", tr("STATISTICHE"), 660, 3090, 2000, 300);
    m_statisticsHeading->setFont(tahoma(8.25, true));
    const QString headings[] = {tr("Vinte"), tr("Perse"), tr("Pareggi")};
    const char* countNames[] = {"Label9", "Label10", "Label11"};
    const char* headingNames[] = {"Label6", "Label7", "Label8"};
    const int lefts[] = {630, 2430, 4200};
    for (int i = 0; i < 3; ++i) {
        label(this, headingNames[i], headings[i], lefts[i], 3450, 1200, 300);
        m_counts[i] = label(this, countNames[i], "", lefts[i], 3840, 1200, 300);
        m_counts[i]->setFont(tahoma(10, true));
    }

    label(this, "Label2", tr("Vuoi fare un'altra partitina?"), 600, 4410, 3200, 400);
    auto* ok = new QPushButton(tr("&OK"), this);
    ok->setObjectName("Command1");
    ok->setGeometry(twipsRect(3870, 4410, 960, 420));
    ok->setDefault(true);
    // On the question's answer, so that a screen reader reads the window and then the button.
    ok->setFocus();
    connect(ok, &QPushButton::clicked, this, &EndOfMatchWindow::goOn);
    auto* cancel = new QPushButton(tr("&Annulla"), this);
    cancel->setObjectName("Command2");
    cancel->setGeometry(twipsRect(4890, 4410, 960, 420));
    connect(cancel, &QPushButton::clicked, this, [this] { m_terminate(); });
    auto* review = new QPushButton(tr("&Parole del tabellone"), this);
    review->setObjectName("Command3");
    review->setGeometry(twipsRect(3870, 4920, 1980, 420));
    review->setAutoDefault(false);
    connect(review, &QPushButton::clicked, this, [this] {
        if (m_openReview) m_openReview();
    });

    // Right of the statistics, the one free corner of the window.
    m_picture = label(this, "Picture3", "", 5430, 3090, 1000, 1200);
    m_picture->setAccessibleName(tr("Il Griglione"));
    m_picture->setAlignment(Qt::AlignCenter);

    m_matchClock.stop();
    m_opponentClock.stop();
    centreOnScreen(this);
}

void EndOfMatchWindow::showResult(const QString& playerName, int playerScore, int cpuScore,
                                  const std::array<bool, 4>& levelChecked) {
    m_messages.chiudi();
    const EndOfMatchTexts report =
        m_statistics.record(playerName.toStdString(), levelChecked, playerScore, cpuScore);
    m_names[1]->setText(QString::fromStdString(report.cpuName));
    fitText(m_names[0], playerName);
    m_scores[0]->setText(QString::fromStdString(report.humanScore));
    m_scores[1]->setText(QString::fromStdString(report.cpuScore));
    m_result->setText(QString::fromStdString(report.result));
    m_sounds.suona(report.sound);
    m_history->addItem(QString::fromStdString(report.historyLine));
    m_history->setCurrentRow(m_history->count() - 1);
    m_counts[0]->setText(QString::fromStdString(report.humanWins));
    m_counts[1]->setText(QString::fromStdString(report.cpuWins));
    m_counts[2]->setText(QString::fromStdString(report.draws));
    // A screen reader reads a window's sentences, not its one-word labels: the result carries
    // both scores, the heading the three counts.
    m_result->setAccessibleName(QString::fromStdString(
        Announcements::endOfMatch(report.result, report.humanName, std::stoi(report.humanScore),
                                  report.cpuName, std::stoi(report.cpuScore))));
    m_statisticsHeading->setAccessibleName(
        tr("Statistiche: vinte %1, perse %2, pareggi %3")
            .arg(QString::fromStdString(report.humanWins).trimmed(),
                 QString::fromStdString(report.cpuWins).trimmed(),
                 QString::fromStdString(report.draws).trimmed()));
    exec();
}

void EndOfMatchWindow::setPicture(const PictureBook& book, const std::string& name) {
    SharpPicture::show(m_picture, book, name, m_picture->size());
}

void EndOfMatchWindow::goOn() {
    m_matchClock.start();
    m_opponentClock.start();
    QCoreApplication::processEvents();
    hide();
    QCoreApplication::processEvents();
}

void EndOfMatchWindow::reject() {
    goOn();
}

} // namespace griglione
