// The German and Russian translations: complete, in step with the sources, compiled in where
// the translations manager loads them, and taking effect on real widgets.
#include "dropwidget.h"
#include "nodecatalogue.h"
#include "testutils.h"
#include "translationsmanager.h"

#include <QDomDocument>
#include <QFile>
#include <QHash>
#include <QLabel>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QSettings>

using OrkWidgets::TranslationsManager;

namespace {

QString tsPath(const QString& name)
{
    return QString(PELODINE_TS_DIR) + "/" + name + ".ts";
}

QDomDocument readTs(const QString& path)
{
    QFile file(path);
    QDomDocument document;
    if (file.open(QIODevice::ReadOnly))
        document.setContent(&file);
    return document;
}

// "context|source" of every message of a .ts file.
QSet<QString> messageKeys(const QDomDocument& document)
{
    QSet<QString> keys;
    const QDomNodeList contexts = document.elementsByTagName("context");
    for (int i = 0; i < contexts.size(); ++i) {
        const QDomElement context = contexts.at(i).toElement();
        const QString name = context.firstChildElement("name").text();
        const QDomNodeList messages = context.elementsByTagName("message");
        for (int j = 0; j < messages.size(); ++j)
            keys << name + "|" + messages.at(j).firstChildElement("source").text();
    }
    return keys;
}

// The placeholders and the markup tags of a text, sorted: a translation must keep them all.
QStringList fixedParts(const QString& text)
{
    static const QRegularExpression parts("%[0-9n]|<[^<>]*>");
    QStringList found;
    QRegularExpressionMatchIterator it = parts.globalMatch(text);
    while (it.hasNext())
        found << it.next().captured().toUpper();
    found.sort();
    return found;
}

const char* const tsNames[] = {"Pelodine_de", "Pelodine_ru", "libs_de", "libs_ru"};

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyEntryTranslated_data();
    void everyEntryTranslated();
    void sourcesMatchTs_data();
    void sourcesMatchTs();
    void translatorsInstalled_data();
    void translatorsInstalled();
    void germanChangesVisibleTexts_data();
    void germanChangesVisibleTexts();
    void nodeNamesTranslated_data();
    void nodeNamesTranslated();
    void nodeIcon_data();
    void nodeIcon();

private:
    TranslationsManager* manager = nullptr;
};

void TestTranslations::initTestCase()
{
    QSettings("Qubrast", "Pelodine").setValue("Language", "en");
    manager = new TranslationsManager(this);
    QCOMPARE(manager->installedCount(), 0);
}

void TestTranslations::everyEntryTranslated_data()
{
    QTest::addColumn<QString>("path");
    for (const char* name : tsNames)
        QTest::newRow(name) << tsPath(name);
}

void TestTranslations::everyEntryTranslated()
{
    QFETCH(QString, path);
    const QDomDocument document = readTs(path);
    const QDomNodeList messages = document.elementsByTagName("message");
    QVERIFY2(messages.size() > 10, qPrintable(path));
    for (int i = 0; i < messages.size(); ++i) {
        const QDomElement message = messages.at(i).toElement();
        const QString source = message.firstChildElement("source").text();
        const QDomElement translation = message.firstChildElement("translation");
        QVERIFY2(!translation.hasAttribute("type"),
                 qPrintable(translation.attribute("type") + ": " + source));
        QStringList texts;
        const QDomNodeList forms = translation.elementsByTagName("numerusform");
        for (int f = 0; f < forms.size(); ++f)
            texts << forms.at(f).toElement().text();
        if (forms.isEmpty())
            texts << translation.text();
        for (const QString& text : qAsConst(texts)) {
            QVERIFY2(!text.trimmed().isEmpty() || source.trimmed().isEmpty(), qPrintable(source));
            QCOMPARE(fixedParts(text), fixedParts(source));
        }
    }
}

void TestTranslations::sourcesMatchTs_data()
{
    QTest::addColumn<QString>("tsName");
    QTest::addColumn<QStringList>("folders");
    const QString appFolders = PELODINE_APP_TEXT_DIRS;
    const QString libsFolders = PELODINE_LIBS_TEXT_DIRS;
    for (const char* name : tsNames) {
        const QString folders = QString(name).startsWith("libs") ? libsFolders : appFolders;
        QTest::newRow(name) << QString(name) << folders.split(',');
    }
}

// A fresh scan of the sources finds exactly the texts of the committed .ts file.
void TestTranslations::sourcesMatchTs()
{
    QFETCH(QString, tsName);
    QFETCH(QStringList, folders);
    QTemporaryDir scratch;
    QVERIFY(scratch.isValid());
    const QString scanned = scratch.filePath(tsName + ".ts");
    QProcess lupdate;
    lupdate.setWorkingDirectory(PELODINE_SOURCE_ROOT);
    lupdate.start(PELODINE_LUPDATE,
                  QStringList{"-silent", "-no-obsolete"} + folders + QStringList{"-ts", scanned});
    QVERIFY(lupdate.waitForFinished(120000));
    QCOMPARE(lupdate.exitCode(), 0);
    const QSet<QString> fresh = messageKeys(readTs(scanned));
    const QSet<QString> committed = messageKeys(readTs(tsPath(tsName)));
    QVERIFY(fresh.size() > 10);
    QCOMPARE(QSet<QString>(fresh).subtract(committed), QSet<QString>());
    QCOMPARE(QSet<QString>(committed).subtract(fresh), QSet<QString>());
}

void TestTranslations::translatorsInstalled_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("installed");
    QTest::addColumn<int>("direction");
    QTest::newRow("de: qt, libs and program") << "de" << 3 << int(Qt::LeftToRight);
    QTest::newRow("ru: qt, libs and program") << "ru" << 3 << int(Qt::LeftToRight);
    QTest::newRow("ar: no files, right to left") << "ar" << 0 << int(Qt::RightToLeft);
    QTest::newRow("en after ar: none, left to right") << "en" << 0 << int(Qt::LeftToRight);
    QTest::newRow("de again") << "de" << 3 << int(Qt::LeftToRight);
    QTest::newRow("en after de removes all") << "en" << 0 << int(Qt::LeftToRight);
}

void TestTranslations::translatorsInstalled()
{
    QFETCH(QString, language);
    QFETCH(int, installed);
    QFETCH(int, direction);
    manager->setLanguage(language);
    QCOMPARE(manager->installedCount(), installed);
    QCOMPARE(int(QGuiApplication::layoutDirection()), direction);
    QCOMPARE(QSettings("Qubrast", "Pelodine").value("Language").toString(), language);
}

void TestTranslations::germanChangesVisibleTexts_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("cancel");
    QTest::newRow("en") << "en"
                        << "<H2>Drop the photos here</H2>"
                        << "Cancel";
    QTest::newRow("de") << "de"
                        << "<H2>Fotos hierher ziehen</H2>"
                        << "Abbrechen";
    QTest::newRow("ru") << "ru"
                        << "<H2>Перетащите фото сюда</H2>"
                        << "Отмена";
}

// The drop window's caption (the libraries' file) and Qt's own "Cancel" (the "qt_" file).
void TestTranslations::germanChangesVisibleTexts()
{
    QFETCH(QString, language);
    QFETCH(QString, caption);
    QFETCH(QString, cancel);
    manager->setLanguage(language);
    OrkWidgets::DropWidget dropWidget;
    const auto* label = dropWidget.findChild<QLabel*>("DropWidgetCaption");
    QVERIFY(label);
    QCOMPARE(label->text(), caption);
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), cancel);
    manager->setLanguage("en");
}

void TestTranslations::nodeNamesTranslated_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("german");
    QTest::newRow("Watermark") << "Watermark"
                               << "Wasserzeichen";
    QTest::newRow("Resize") << "Resize"
                            << "Größe ändern";
    QTest::newRow("Vignetting") << "Vignetting"
                                << "Vignettierung";
    QTest::newRow("not a node") << "Sharpen"
                                << "Sharpen";
}

// The program's file: the names the user reads, while the names themselves stay the keys.
void TestTranslations::nodeNamesTranslated()
{
    QFETCH(QString, name);
    QFETCH(QString, german);
    manager->setLanguage("de");
    QCOMPARE(displayNameForNodeName(name), german);
    manager->setLanguage("en");
    QCOMPARE(displayNameForNodeName(name), name);
}

void TestTranslations::nodeIcon_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("icon");
    const QStringList names = factoryNodeNames();
    QCOMPARE(names.size(), 14);
    const QHash<QString, QString> icons = {{"RGB-Order", "RGB"},
                                           {"Brightness, Contrast, Saturation", "BRT"},
                                           {"Rotate", "RTT"},
                                           {"Blur", "BLR"},
                                           {"Invert", "INV"},
                                           {"Mirror", "MRR"},
                                           {"Grayscale", "GRS"},
                                           {"Watermark", "WMR"},
                                           {"Crop", "CRP"},
                                           {"Resize", "RSZ"},
                                           {"Histogram optimizer", "HST"},
                                           {"Frame", "FRM"},
                                           {"Binarization", "BIN"},
                                           {"Vignetting", "WGN"}};
    for (const QString& name : names)
        QTest::newRow(qPrintable(name)) << name << ":/Icon_" + icons.value(name, "?") + ".png";
}

void TestTranslations::nodeIcon()
{
    QFETCH(QString, name);
    QFETCH(QString, icon);
    const QImage expected(icon);
    QVERIFY2(!expected.isNull(), qPrintable(icon));
    const QPixmap pixmap = iconForNodeName(name);
    QVERIFY(!pixmap.isNull());
    QCOMPARE_IMAGES(pixmap.toImage().convertToFormat(QImage::Format_ARGB32),
                    expected.convertToFormat(QImage::Format_ARGB32));
}

PELODINE_TEST_MAIN(TestTranslations)

#include "tst_translations.moc"
