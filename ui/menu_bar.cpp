#include "ui/menu_bar.h"

#include "core/levels.h"

#include <QMenu>
#include <QMenuBar>

namespace griglione {
namespace {

QAction* item(QMenu* menu, const char* caption, const char* name, QKeySequence shortcut = {},
              bool checkable = false) {
    QAction* action = menu->addAction(QString::fromUtf8(caption));
    action->setObjectName(name);
    action->setShortcut(shortcut);
    action->setCheckable(checkable);
    return action;
}

QMenu* submenu(QMenu* parent, const char* caption, const char* name) {
    QMenu* menu = parent->addMenu(QString::fromUtf8(caption));
    menu->setObjectName(name);
    menu->menuAction()->setObjectName(name);
    return menu;
}

void separator(QMenu* menu, const char* name) {
    menu->addSeparator()->setObjectName(name);
}

template <std::size_t N, typename Info>
std::array<QAction*, N> group(QMenu* menu, const std::array<Info, N>& infos,
                              const std::array<const char*, N>& names) {
    std::array<QAction*, N> actions{};
    for (std::size_t i = 0; i < N; ++i)
        actions[i] = item(menu, std::string(infos[i].caption).c_str(), names[i], {}, true);
    return actions;
}

} // namespace

MenuActions buildMenuBar(QMenuBar* bar) {
    MenuActions a;
    QMenu* file = bar->addMenu("&File");
    file->setObjectName("MenuFile");
    a.nuovo = item(file, "&Nuova Partita", "menuNuovo", Qt::Key_F2);
    a.records = item(file, "&Tabella records ...", "MenuHI", Qt::Key_F5);
    a.vocabolario = item(file, "&Edit vocabolario personale ...", "menuVocabola", Qt::Key_F6);
    separator(file, "menum");
    a.vocabolarioPrincipale =
        item(file, "&Vocabolario principale ...", "MenuVocabPri", Qt::CTRL | Qt::Key_F6);
    separator(file, "Menumeno1");
    a.fine = item(file, "&Fine", "MenuFine", Qt::CTRL | Qt::Key_F4);

    QMenu* options = bar->addMenu("&Opzioni");
    options->setObjectName("menuOpzioni");
    a.suono = item(options, "&Suono", "MenuSuono", Qt::CTRL | Qt::Key_S, true);
    a.suono->setChecked(true);
    a.lingue = group(submenu(options, "&Lingua dizionario", "Menuli"), kLanguages,
                     {"Menuita", "Menuing", "Menulat"});
    a.livelli = group(submenu(options, "&Livello di gioco", "MenuLivello"), kLevels,
                      {"MenuBir", "MenuTapo", "MenuMedio", "MenuExpert"});
    a.tempi = group(submenu(options, "&Tempo per partita", "MenuTempo"), kMatchLengths,
                    {"menu30s", "Menu60s", "Menu90s", "Menu300s"});
    separator(options, "menume");
    a.spessori = group(submenu(options, "S&pessore linea blu composizione parola", "menusp"),
                       kLineWidths, {"menuL1", "menuL2", "menuL3"});
    a.paroleAmmesse = item(options, "&Parole ammesse", "MenuAmmesse", Qt::Key_F7);

    QMenu* help = bar->addMenu("&?");
    help->setObjectName("MenuPi");
    a.help = item(help, "&Help", "menuHelp", Qt::Key_F1);
    a.mail = item(help, "&Contatta l'autore ...", "menuMail", Qt::CTRL | Qt::Key_F8);
    a.homePage = item(help, "&Visita Home Page dell'autore ...", "MenuPHP", Qt::CTRL | Qt::Key_F9);
    separator(help, "MenuMeno2");
    a.info = item(help, "&Informazioni su 'Il Griglione' ...", "MenuInfo", Qt::Key_F4);
    return a;
}

} // namespace griglione
