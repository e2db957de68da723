#include "ui/help_links.h"

#include "core/addresses.h"
#include "core/file_names.h"
#include "platform/picture_book.h"
#include "records/record_address.h"
#include "ui/accessibility.h"
#include "ui/information_window.h"
#include "ui/link_cursor.h"
#include "ui/menu_bar.h"
#include "ui/twips.h"

#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>

namespace griglione {

HelpLinks::HelpLinks(QWidget* window, const MenuActions& menu, Outside& outside, Alerts& alerts,
                     MessageHost& messages, std::filesystem::path folder)
    : QObject(window), m_window(window), m_outside(outside), m_alerts(alerts), m_messages(messages),
      m_folder(std::move(folder)) {
    connect(menu.help, &QAction::triggered, this, &HelpLinks::help);
    connect(menu.mail, &QAction::triggered, this, &HelpLinks::mail);
    connect(menu.homePage, &QAction::triggered, this, &HelpLinks::homePage);
    connect(menu.info, &QAction::triggered, this, &HelpLinks::info);

    // Picture4: the hidden picture box that keeps the links' hand pointer.
    auto* hand = new QLabel(window);
    hand->setObjectName("Picture4");
    hand->setGeometry(twipsRect(7920, 930, 510, 510));
    hand->setPixmap(linkCursor().pixmap());
    hand->hide();

    m_siteLink = window->findChild<QLabel*>("Label12");
    if (m_siteLink) {
        m_siteLink->setCursor(linkCursor());
        m_siteLink->installEventFilter(this);
        presentAsLink(m_siteLink);
    }
}

void HelpLinks::help() {
    // The page in the player's language, or the Italian one when that is missing.
    const std::string page = QCoreApplication::translate("HelpLinks", kHelpFile).toStdString();
    std::error_code error;
    for (const std::string& name : {page, std::string(kHelpFile)}) {
        const std::filesystem::path file = resolveFileName(m_folder, name);
        if (std::filesystem::is_regular_file(file, error)) return m_outside.apri(file.string());
    }
    m_alerts.avviso(tr("Non trovato file di documentazione/help %1")
                        .arg(QString::fromStdString(page))
                        .toStdString());
}

void HelpLinks::mail() {
    m_outside.apri(std::string("mailto:") + kEmailAutore);
}

void HelpLinks::homePage() {
    m_outside.apri(indirizzoServizio());
}

void HelpLinks::info() {
    if (m_info) {
        m_info->close();
        delete m_info;
    }
    // The picture is read again each time, as the window loads it whenever it opens.
    const QPixmap picture =
        PictureBook(m_folder).picture("griglione.gif", m_window->devicePixelRatioF());
    m_info = new InformationWindow(
        picture, m_messages, [this] { mail(); }, [this] { homePage(); }, m_window);
    m_info->show();
}

bool HelpLinks::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_siteLink && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton &&
        m_siteLink->rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint()))
        homePage();
    return QObject::eventFilter(watched, event);
}

} // namespace griglione
