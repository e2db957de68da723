#include "platform/fonts.h"

#include <QFile>
#include <QFontDatabase>

namespace griglione {

void registerFonts() {
    if (QFontDatabase::hasFamily("Tahoma")) return;
    for (const char* file :
         {"/usr/share/wine/fonts/tahoma.ttf", "/usr/share/wine/fonts/tahomabd.ttf"})
        if (QFile::exists(file)) QFontDatabase::addApplicationFont(file);
}

QFont tahoma(double points, bool bold) {
    QFont font("Tahoma");
    font.setStyleHint(QFont::SansSerif);
    font.setPointSizeF(points);
    font.setBold(bold);
    return font;
}

QFont courier(double points) {
    QFont font("Courier New");
    font.setFamilies({"Courier New", "Liberation Mono", "Courier"});
    font.setStyleHint(QFont::Monospace);
    font.setPointSizeF(points);
    return font;
}

} // namespace griglione
