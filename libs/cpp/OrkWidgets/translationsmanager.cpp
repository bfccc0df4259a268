#include "translationsmanager.h"

#include "app.h"
#include "appdata.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLocale>
#include <QTranslator>

namespace OrkWidgets {

TranslationsManager::TranslationsManager(QObject* parent)
    : QObject(parent)
{
    const QString stored =
        OrkTools::AppData::readSetting("Language", QLocale::system().name()).toString();
    setLanguage(languageForLocale(stored));
}

QString TranslationsManager::languageForLocale(const QString& locale)
{
    static const char* const codes[] = {"de", "ru", "es", "fr", "hi",
                                        "it", "pt", "ko", "ar", "zh_CN"};
    for (const char* code : codes) {
        if (locale.contains(QLatin1String(code)))
            return QLatin1String(code);
    }
    return QStringLiteral("en");
}

void TranslationsManager::setLanguage(const QString& language)
{
    removeTranslators();
    if (language != QLatin1String("en")) {
        qtTranslator = loadAndInstall(":/" + prefix + "Translations/qt_" + language);
        // The extra "/" after the prefix is how the libraries' files have always been addressed.
        libsTranslator = loadAndInstall(":/" + prefix + "/Translations/libs_" + language);
        appTranslator = loadAndInstall(":/" + prefix + "Translations/" +
                                       QCoreApplication::applicationName() + "_" + language);
    }
    QGuiApplication::setLayoutDirection(language == QLatin1String("ar") ? Qt::RightToLeft
                                                                        : Qt::LeftToRight);
    current = language;
    OrkTools::AppData::writeSetting("Language", language);
    emit languageChanged(language);
}

int TranslationsManager::installedCount() const
{
    return (qtTranslator ? 1 : 0) + (libsTranslator ? 1 : 0) + (appTranslator ? 1 : 0);
}

void TranslationsManager::removeTranslators()
{
    for (QTranslator** translator : {&qtTranslator, &libsTranslator, &appTranslator}) {
        if (*translator) {
            QCoreApplication::removeTranslator(*translator);
            delete *translator;
            *translator = nullptr;
        }
    }
}

QTranslator* TranslationsManager::loadAndInstall(const QString& path)
{
    auto* translator = new QTranslator(this);
    if (!translator->load(path) || !QCoreApplication::installTranslator(translator)) {
        delete translator;
        return nullptr;
    }
    return translator;
}

} // namespace OrkWidgets
