// The settings file and the "&Opzioni" menu: reading ZARMOLO.INI at start-up, writing it after
// every change, and what a choice of match length, level, language or line width does.
#pragma once

#include "core/game_state.h"
#include "core/ports.h"
#include "core/settings.h"
#include "ui/menu_bar.h"

#include <array>
#include <filesystem>
#include <functional>

class QLineEdit;
class QObject;
class QTimer;

namespace griglione {

class OptionsFlow {
public:
    // What a choice asks of the main window: load the language's dictionary and name it in
    // the caption, redraw the path at its new width, announce and start a new match.
    struct Hooks {
        std::function<void()> aggMenudiz;
        std::function<void()> settaSpessLinea;
        std::function<void()> restartMatch;
    };

    OptionsFlow(GameState& state, const MenuActions& menu, QTimer& timer2, QLineEdit& playerName,
                Alerts& alerts, std::filesystem::path folder, Hooks hooks);

    // Connects the items of "&Opzioni" and "&Suono" to their handlers.
    void wire(QObject* context);
    // Applies ZARMOLO.INI, when there is one, to the menu, the name box and the state.
    void readSettings();
    void salvaImpostazioni();
    // The check marks of the four levels, in the order of kLevels.
    std::array<bool, 4> levelChecks() const;

private:
    Settings currentSettings() const;
    void chooseMatchLength(std::size_t item);
    void chooseLevel(std::size_t item);
    void chooseLanguage(std::size_t item, bool wasChecked);
    void chooseLineWidth(std::size_t item);

    GameState& m_state;
    const MenuActions& m_menu;
    QTimer& m_timer2;
    QLineEdit& m_playerName;
    Alerts& m_alerts;
    std::filesystem::path m_folder;
    Hooks m_hooks;
};

} // namespace griglione
