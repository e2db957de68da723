#include "platform/fonts.h"

#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>

namespace griglione {
namespace {

// The windows are laid out in fixed logical pixels for text at the usual 96 dpi. A larger font
// resolution set for the desktop alone (QT_FONT_DPI) would grow the text out of its places, so
// the sizes are taken at 96 dpi; a screen scale (a device pixel ratio) enlarges the whole window,
// text included, and leaves the font resolution at 96.
double designPoints(double points) {
    const QScreen* screen = qGuiApp ? QGuiApplication::primaryScreen() : nullptr;
    const double dpi = screen ? screen->logicalDotsPerInchY() : 96;
    return dpi > 0 ? points * 96 / dpi : points;
}

} // namespace

void registerFonts() {
    if (QFontDatabase::hasFamily("Tahoma")) return;
    for (const char* file :
         {"/usr/share/wine/fonts/tahoma.ttf", "/usr/share/wine/fonts/tahomabd.ttf"})
        if (QFile::exists(file)) QFontDatabase::addApplicationFont(file);
}

QFont tahoma(double points, bool bold) {
    QFont font("Tahoma");
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(designPoints(points));
    font.setBold(bold);
    return font;
}

QFont courier(double points) {
    QFont font("Courier New");
    font.setFamilies({"Courier New", "Liberation Mono", "Courier"});
    font.setStyleHint(QFont::Monospace);
    font.setPointSizeF(designPoints(points));
    return font;
}

} // namespace griglione
