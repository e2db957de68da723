// The main window's menu bar: "&File", "&Opzioni" and "&?", every item with its access key,
// shortcut and check mark. What the items do is wired by the main window.
#pragma once

#include <QAction>

#include <array>

class QMenuBar;

namespace griglione {

struct MenuActions {
    QAction* nuovo = nullptr;
    QAction* tabellone = nullptr; // a board by its code or a challenge link
    QAction* giorno = nullptr;    // the board of the day
    QAction* records = nullptr;
    QAction* statistiche = nullptr;
    QAction* vocabolario = nullptr;
    QAction* vocabolarioPrincipale = nullptr;
    QAction* fine = nullptr;
    QAction* suono = nullptr;
    std::array<QAction*, 3> lingue{};
    std::array<QAction*, 4> livelli{};  // in the order of kLevels
    std::array<QAction*, 4> tempi{};    // in the order of kMatchLengths
    std::array<QAction*, 3> spessori{}; // in the order of kLineWidths
    QAction* paroleAmmesse = nullptr;
    QAction* help = nullptr;
    QAction* mail = nullptr;
    QAction* homePage = nullptr;
    QAction* info = nullptr;
};

MenuActions buildMenuBar(QMenuBar* bar);

// Checks `chosen` and unchecks the rest of its group.
template <std::size_t N> void checkOnly(const std::array<QAction*, N>& group, std::size_t chosen) {
    for (std::size_t i = 0; i < N; ++i)
        group[i]->setChecked(i == chosen);
}

} // namespace griglione
