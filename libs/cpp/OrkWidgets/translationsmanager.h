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
    QString language() const { return current; }

    // "pt_BR" gives "pt", "ar_EG" gives "ar"; a value naming no supported language gives "en".
    static QString languageForLocale(const QString& locale);

    // How many of the three translators are installed now.
    int installedCount() const;

signals:
    void languageChanged(const QString& language);

private:
    void removeTranslators();
    QTranslator* loadAndInstall(const QString& path);

    QTranslator* qtTranslator = nullptr;
    QTranslator* libsTranslator = nullptr;
    QTranslator* appTranslator = nullptr;
    QString prefix;
    QString current;
};

} // namespace OrkWidgets
