// The three ways into the records window and the steps around it: after a match, before the
// program ends with "&Fine", and from the menu while the match goes on behind it.
#pragma once

#include "core/game_state.h"

#include <QPointer>
#include <QString>

#include <functional>

class QTimer;
class QWidget;

namespace griglione {

class MessageHost;
class RecordsWindow;
struct Services;

class RecordsFlow {
public:
    RecordsFlow(QWidget& mainWindow, GameState& state, QTimer& timer1, QTimer& timer2,
                MessageHost& messages, const Services& services,
                std::function<QString()> playerName);

    // At the end of a match: more than 1000 points enter the table, modally.
    void afterMatch();
    // Before "&Fine" ends the program: 1000 points are enough, modally.
    void beforeQuit();
    // "&Tabella records ...": the table only, not modal, with the main window disabled.
    void fromMenu();

private:
    void open(bool modal);
    void closing();
    void submit(const QString& notes, const QString& email);

    QWidget& m_main;
    GameState& m_state;
    QTimer& m_timer1;
    QTimer& m_timer2;
    MessageHost& m_messages;
    const Services& m_services;
    std::function<QString()> m_playerName;
    QPointer<RecordsWindow> m_window;
};

} // namespace griglione
