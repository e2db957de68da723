// Installing the English translation with Qt's translator, for the windows and the logic alike.
#include "platform/interface_translation.h"

#include "core/file_names.h"
#include "core/player_text.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace griglione {

InterfaceLanguage systemInterfaceLanguage() {
    std::vector<std::string> preferred;
    for (const QString& tag : QLocale::system().uiLanguages())
        preferred.push_back(tag.toStdString());
    return chooseInterfaceLanguage(preferred);
}

bool useInterfaceLanguage(InterfaceLanguage language, const std::filesystem::path& folder) {
    static QTranslator translator;
    QCoreApplication::removeTranslator(&translator);
    setTextTranslator(nullptr);
    if (language == InterfaceLanguage::Italian) return true;
    const auto file = resolveFileName(folder, kEnglishTranslationFile);
    if (!translator.load(QString::fromStdString(file.string()))) return false;
    QCoreApplication::installTranslator(&translator);
    setTextTranslator([](const char* context, const char* source) {
        return QCoreApplication::translate(context, source).toStdString();
    });
    return true;
}

} // namespace griglione
