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
    setLanguage(chosenLanguage());
}

QString TranslationsManager::chosenLanguage() const
{
    return languageForLocale(
        OrkTools::AppData::readSetting("Language", QLocale::system().name()).toString());
}

void TranslationsManager::chooseForNextStart(const QString& language)
{
    OrkTools::AppData::writeSetting("Language", language);
}

QString TranslationsManager::programText(const QString& language, const char* context,
                                         const char* source) const
{
    QTranslator translator;
    if (language == QLatin1String("en") || !translator.load(programFile(language)))
        return QString::fromUtf8(source);
    const QString text = translator.translate(context, source);
    return text.isEmpty() ? QString::fromUtf8(source) : text;
}

QString TranslationsManager::programFile(const QString& language) const
{
    return ":/" + prefix + "Translations/" + QCoreApplication::applicationName() + "_" + language;
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
        appTranslator = loadAndInstall(programFile(language));
    }
    QGuiApplication::setLayoutDirection(language == QLatin1String("ar") ? Qt::RightToLeft
                                                                        : Qt::LeftToRight);
    current = language;
    chooseForNextStart(language);
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
