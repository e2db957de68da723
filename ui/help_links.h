// The main window's help and information side: the help page, the author's mail and web site
// (menu items and the link Label12), and the information window.
#pragma once

#include "core/ports.h"

#include <QObject>
#include <QPointer>

#include <filesystem>

class QLabel;

namespace griglione {

class InformationWindow;
class MessageHost;
struct MenuActions;

//: The help page in this language, a file beside the game's own files.
inline constexpr const char* kHelpFile = QT_TRANSLATE_NOOP("HelpLinks", "GRIGLIONE.htm");

class HelpLinks final : public QObject {
    Q_OBJECT
public:
    // Wires the menu's "&?" items and the window's Label12; owned by `window`.
    HelpLinks(QWidget* window, const MenuActions& menu, Outside& outside, Alerts& alerts,
              MessageHost& messages, std::filesystem::path folder);

    void help();
    void mail();
    void homePage();
    // Closes the information window if it is open and shows a new one.
    void info();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* m_window;
    Outside& m_outside;
    Alerts& m_alerts;
    MessageHost& m_messages;
    std::filesystem::path m_folder;
    QLabel* m_siteLink = nullptr; // Label12
    QPointer<InformationWindow> m_info;
};

} // namespace griglione
