// The information window (Form3): the program's picture, version, credits and its two links, the
// web site and the author's mail.
#pragma once

#include <QDialog>
#include <QPixmap>

#include <functional>

class QLabel;

namespace griglione {

class MessageHost;

class InformationWindow final : public QDialog {
    Q_OBJECT
public:
    // `picture` is the program's picture; `openMail` and `openSite` do what the menu's mail and
    // home-page items do.
    InformationWindow(const QPixmap& picture, MessageHost& messages, std::function<void()> openMail,
                      std::function<void()> openSite, QWidget* parent);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLabel* link(const char* name, const QString& text, const QString& toolTip, int top);

    MessageHost& m_messages;
    std::function<void()> m_openMail;
    std::function<void()> m_openSite;
    QLabel* m_picture = nullptr; // Picture2
    QLabel* m_site = nullptr;    // Label6
    QLabel* m_mail = nullptr;    // Label3
};

} // namespace griglione
