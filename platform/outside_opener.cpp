// Opens documents, web addresses and "mailto:" addresses with the desktop's own programs.
#include "platform/outside_opener.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace griglione {

QUrl OutsideOpener::urlOf(const std::string& target) {
    const QString text = QString::fromStdString(target);
    // A bare file name is a document beside the program; anything with a scheme is an address,
    // already percent-encoded by whoever built it: taken as it is, so that nothing encodes it
    // again (a record's "%C8" must not become "%25C8", nor its Windows-1252 bytes UTF-8).
    if (QUrl(text).scheme().size() > 1)
        return QUrl::fromEncoded(QByteArray::fromStdString(target), QUrl::StrictMode);
    return QUrl::fromLocalFile(QFileInfo(text).absoluteFilePath());
}

void OutsideOpener::apri(const std::string& target) {
    QDesktopServices::openUrl(urlOf(target));
}

} // namespace griglione
