// Chooses the user-interface language and installs the matching translators.
#pragma once

#include <QObject>
#include <QString>

class QTranslator;

namespace OrkWidgets {

class TranslationsManager : public QObject
{
    Q_OBJECT

public:
    // Reads "Language" (default: the system locale's name) and applies it.
    explicit TranslationsManager(QObject* parent = nullptr);

    // Replaces the installed translators and stores the choice under "Language".
    void setLanguage(const QString& language);
    // The language of the texts on screen, fixed for the run by the last setLanguage.
    QString language() const { return current; }

    // Stores the choice under "Language" and installs nothing: the texts already on screen
    // were made in the running language and would otherwise change only where they happen to
    // be made again.
    void chooseForNextStart(const QString& language);
    // The language the next start will apply.
    QString chosenLanguage() const;
    // The program's own text in language, from its translation file; source when there is none.
    QString programText(const QString& language, const char* context, const char* source) const;

    // "pt_BR" gives "pt", "ar_EG" gives "ar"; a value naming no supported language gives "en".
    static QString languageForLocale(const QString& locale);

    // How many of the three translators are installed now.
    int installedCount() const;

private:
    void removeTranslators();
    // The program's translation file for language.
    QString programFile(const QString& language) const;
    QTranslator* loadAndInstall(const QString& path);

    QTranslator* qtTranslator = nullptr;
    QTranslator* libsTranslator = nullptr;
    QTranslator* appTranslator = nullptr;
    QString prefix;
    QString current;
};

} // namespace OrkWidgets
