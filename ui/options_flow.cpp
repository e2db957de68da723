#include "ui/options_flow.h"

#include "core/atomic_file.h"
#include "core/file_names.h"
#include "core/levels.h"
#include "core/match_clock.h"
#include "ui/name_validator.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QTimer>

namespace griglione {

OptionsFlow::OptionsFlow(GameState& state, const MenuActions& menu, QTimer& timer2,
                         QLineEdit& playerName, Alerts& alerts, std::filesystem::path folder,
                         Hooks hooks)
    : m_state(state), m_menu(menu), m_timer2(timer2), m_playerName(playerName), m_alerts(alerts),
      m_folder(std::move(folder)), m_hooks(std::move(hooks)) {}

void OptionsFlow::wire(QObject* context) {
    QObject::connect(m_menu.suono, &QAction::triggered, context, [this] { salvaImpostazioni(); });
    for (std::size_t i = 0; i < m_menu.tempi.size(); ++i)
        QObject::connect(m_menu.tempi[i], &QAction::triggered, context,
                         [this, i] { chooseMatchLength(i); });
    for (std::size_t i = 0; i < m_menu.livelli.size(); ++i)
        QObject::connect(m_menu.livelli[i], &QAction::triggered, context,
                         [this, i] { chooseLevel(i); });
    for (std::size_t i = 0; i < m_menu.lingue.size(); ++i)
        QObject::connect(m_menu.lingue[i], &QAction::triggered, context,
                         [this, i](bool checkedNow) { chooseLanguage(i, !checkedNow); });
    for (std::size_t i = 0; i < m_menu.spessori.size(); ++i)
        QObject::connect(m_menu.spessori[i], &QAction::triggered, context,
                         [this, i] { chooseLineWidth(i); });
}

void OptionsFlow::readSettings() {
    const auto bytes = readWholeFile(resolveFileName(m_folder, kSettingsFileName));
    if (!bytes) return;
    Settings settings = currentSettings();
    applySettingsFile(*bytes, settings);

    m_timer2.setInterval(settings.timer2Interval);
    for (std::size_t i = 0; i < m_menu.livelli.size(); ++i)
        if (settings.levelChecked[i]) m_menu.livelli[i]->setChecked(true);
    m_menu.suono->setChecked(settings.sound);
    for (std::size_t i = 0; i < m_menu.tempi.size(); ++i)
        m_menu.tempi[i]->setChecked(settings.timeChecked[i]);
    m_state.tempoPartita = static_cast<std::int16_t>(settings.tempoPartita);
    NameValidator::setName(&m_playerName, QString::fromStdString(settings.playerName));
    m_state.spessoreLinea = static_cast<std::int16_t>(
        settings.spessoreLinea == 1 || settings.spessoreLinea == 13 ? settings.spessoreLinea : 7);
    m_state.numDizionario = static_cast<std::int16_t>(settings.numDizionario);
}

Settings OptionsFlow::currentSettings() const {
    Settings settings;
    settings.timer2Interval = m_timer2.interval();
    settings.sound = m_menu.suono->isChecked();
    settings.tempoPartita = tempoDelGiocatore(m_state);
    settings.playerName = m_playerName.text().toStdString();
    settings.spessoreLinea = m_state.spessoreLinea;
    settings.numDizionario = m_state.numDizionario;
    return settings;
}

void OptionsFlow::salvaImpostazioni() {
    if (!writeFileAtomically(resolveFileName(m_folder, kSettingsFileName),
                             settingsFileBytes(currentSettings())))
        m_alerts.avviso(
            QCoreApplication::translate(
                "OptionsFlow",
                "Errore 001: impossibile riscivere il file di inizializzazione ZARMOLO.INI")
                .toStdString());
}

std::array<bool, 4> OptionsFlow::levelChecks() const {
    std::array<bool, 4> checks{};
    for (std::size_t i = 0; i < checks.size(); ++i)
        checks[i] = m_menu.livelli[i]->isChecked();
    return checks;
}

void OptionsFlow::chooseMatchLength(std::size_t item) {
    checkOnly(m_menu.tempi, item);
    ripristinaTempoPartita(m_state);
    m_state.tempoPartita = static_cast<std::int16_t>(kMatchLengths[item].seconds);
    salvaImpostazioni();
    m_hooks.restartMatch();
}

void OptionsFlow::chooseLevel(std::size_t item) {
    checkOnly(m_menu.livelli, item);
    m_timer2.setInterval(kLevels[item].interval);
    salvaImpostazioni();
}

void OptionsFlow::chooseLanguage(std::size_t item, bool wasChecked) {
    if (wasChecked) {
        m_menu.lingue[item]->setChecked(true);
        return;
    }
    m_state.numDizionario = static_cast<std::int16_t>(kLanguages[item].numero);
    // Latin is saved before its dictionary is loaded: a missing file then ends the program with
    // the settings already naming Latin.
    if (item == 2) {
        salvaImpostazioni();
        m_hooks.aggMenudiz();
    } else {
        m_hooks.aggMenudiz();
        salvaImpostazioni();
    }
    m_hooks.restartMatch();
}

void OptionsFlow::chooseLineWidth(std::size_t item) {
    checkOnly(m_menu.spessori, item);
    m_state.spessoreLinea = static_cast<std::int16_t>(kLineWidths[item].spessore);
    salvaImpostazioni();
    m_hooks.settaSpessLinea();
}

} // namespace griglione
