// Opens documents, web addresses and "mailto:" addresses with the desktop's own programs.
#include "platform/outside_opener.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace griglione {

void OutsideOpener::apri(const std::string& target) {
    const QString text = QString::fromStdString(target);
    // A bare file name is a document beside the program; anything with a scheme is an address.
    const QUrl url = QUrl(text).scheme().size() > 1
                         ? QUrl(text)
                         : QUrl::fromLocalFile(QFileInfo(text).absoluteFilePath());
    QDesktopServices::openUrl(url);
}

} // namespace griglione
