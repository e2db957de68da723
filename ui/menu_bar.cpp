#include "ui/menu_bar.h"

#include "core/levels.h"

#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>

namespace griglione {
namespace {

// The context of the menu's own texts in the translation.
struct MenuBar {
    Q_DECLARE_TR_FUNCTIONS(MenuBar)
};

QAction* item(QMenu* menu, const QString& caption, const char* name, QKeySequence shortcut = {},
              bool checkable = false) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(name);
    action->setShortcut(shortcut);
    action->setCheckable(checkable);
    return action;
}

QMenu* submenu(QMenu* parent, const QString& caption, const char* name) {
    QMenu* menu = parent->addMenu(caption);
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
        actions[i] = item(menu, QCoreApplication::translate("Options", infos[i].caption.data()),
                          names[i], {}, true);
    return actions;
}

} // namespace

MenuActions buildMenuBar(QMenuBar* bar) {
    MenuActions a;
    QMenu* file = bar->addMenu(MenuBar::tr("&File"));
    file->setObjectName("MenuFile");
    a.nuovo = item(file, MenuBar::tr("&Nuova Partita"), "menuNuovo", Qt::Key_F2);
    a.tabellone = item(file, MenuBar::tr("&Gioca un tabellone…"), "MenuTabellone", Qt::Key_F3);
    a.giorno = item(file, MenuBar::tr("Tabellone del gi&orno"), "MenuGiorno", Qt::Key_F9);
    a.records = item(file, MenuBar::tr("&Tabella records ..."), "MenuHI", Qt::Key_F5);
    a.statistiche = item(file, MenuBar::tr("&Statistiche ..."), "MenuStatistiche", Qt::Key_F8);
    a.vocabolario =
        item(file, MenuBar::tr("&Edit vocabolario personale ..."), "menuVocabola", Qt::Key_F6);
    separator(file, "menum");
    a.vocabolarioPrincipale = item(file, MenuBar::tr("&Vocabolario principale ..."), "MenuVocabPri",
                                   Qt::CTRL | Qt::Key_F6);
    separator(file, "Menumeno1");
    a.fine = item(file, MenuBar::tr("&Fine"), "MenuFine", Qt::CTRL | Qt::Key_F4);

    QMenu* options = bar->addMenu(MenuBar::tr("&Opzioni"));
    options->setObjectName("menuOpzioni");
    a.suono = item(options, MenuBar::tr("&Suono"), "MenuSuono", Qt::CTRL | Qt::Key_S, true);
    a.suono->setChecked(true);
    a.lingue = group(submenu(options, MenuBar::tr("&Lingua dizionario"), "Menuli"), kLanguages,
                     {"Menuita", "Menuing", "Menulat"});
    a.livelli = group(submenu(options, MenuBar::tr("&Livello di gioco"), "MenuLivello"), kLevels,
                      {"MenuBir", "MenuTapo", "MenuMedio", "MenuExpert"});
    a.tempi = group(submenu(options, MenuBar::tr("&Tempo per partita"), "MenuTempo"), kMatchLengths,
                    {"menu30s", "Menu60s", "Menu90s", "Menu300s"});
    separator(options, "menume");
    a.spessori =
        group(submenu(options, MenuBar::tr("S&pessore linea blu composizione parola"), "menusp"),
              kLineWidths, {"menuL1", "menuL2", "menuL3"});
    a.paroleAmmesse = item(options, MenuBar::tr("&Parole ammesse"), "MenuAmmesse", Qt::Key_F7);

    QMenu* help = bar->addMenu(MenuBar::tr("&?"));
    help->setObjectName("MenuPi");
    a.help = item(help, MenuBar::tr("&Help"), "menuHelp", Qt::Key_F1);
    a.mail = item(help, MenuBar::tr("&Contatta l'autore ..."), "menuMail", Qt::CTRL | Qt::Key_F8);
    a.homePage = item(help, MenuBar::tr("&Visita Home Page dell'autore ..."), "MenuPHP",
                      Qt::CTRL | Qt::Key_F9);
    separator(help, "MenuMeno2");
    a.info = item(help, MenuBar::tr("&Informazioni su 'Il Griglione' ..."), "MenuInfo", Qt::Key_F4);
    return a;
}

} // namespace griglione
