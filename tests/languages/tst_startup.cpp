// What the program does with its arguments and with a second instance's message: photos to the
// photo side, ".flow" files to the flow panel; and the help slides of each language.
#include "basenode.h"
#include "commondata.h"
#include "flowpanel.h"
#include "mainpage.h"
#include "startup.h"
#include "testutils.h"

#include <QFile>
#include <QImage>

namespace {

// Two nodes, the second inactive, written out by hand in the flow file form.
const char* const twoNodeFlow = "<OperationsFlow>\n"
                                " <Operation name=\"Crop\" index=\"0\">\n"
                                "  <Parameters>\n   <Active>yes</Active>\n  </Parameters>\n"
                                " </Operation>\n"
                                " <Operation name=\"Invert\" index=\"1\">\n"
                                "  <Parameters>\n   <Active>no</Active>\n  </Parameters>\n"
                                " </Operation>\n"
                                "</OperationsFlow>\n";

QString writeFile(const QTemporaryDir& dir, const QString& name, const QByteArray& content)
{
    QFile file(dir.filePath(name));
    file.open(QIODevice::WriteOnly);
    file.write(content);
    return file.fileName();
}

QStringList nodeNames(const FlowPanel* panel)
{
    QStringList names;
    const QMap<int, BaseNode*> flow = panel->flow();
    for (const BaseNode* node : flow)
        names << node->name();
    return names;
}

} // namespace

class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void helpSlides_data();
    void helpSlides();
    void splitPaths_data();
    void splitPaths();
    void fileArguments();
    void openPaths_data();
    void openPaths();
};

void TestStartup::helpSlides_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("shown");
    QTest::newRow("en") << "en"
                        << "en";
    QTest::newRow("de") << "de"
                        << "de";
    QTest::newRow("ru") << "ru"
                        << "ru";
    QTest::newRow("fr falls back to en") << "fr"
                                         << "en";
    QTest::newRow("ar falls back to en") << "ar"
                                         << "en";
}

void TestStartup::helpSlides()
{
    QFETCH(QString, language);
    QFETCH(QString, shown);
    const QStringList slides = Startup::helpSlides(language);
    QCOMPARE(slides.size(), 11);
    QCOMPARE(slides.first(), ":/help/" + shown + "/slide1.png");
    QCOMPARE(slides.last(), ":/help/" + shown + "/slide11.png");
    for (const QString& slide : slides) {
        const QImage image(slide);
        QVERIFY2(!image.isNull(), qPrintable(slide));
        QVERIFY2(image.width() >= 900 && image.height() >= 600, qPrintable(slide));
    }
}

void TestStartup::splitPaths_data()
{
    QTest::addColumn<QString>("lines");
    QTest::addColumn<QStringList>("photos");
    QTest::addColumn<QStringList>("flows");
    QTest::newRow("photos only") << "/p/a.jpg\n/p/b.png\n"
                                 << QStringList{"/p/a.jpg", "/p/b.png"} << QStringList{};
    QTest::newRow("flow only") << "/f/my.flow\n" << QStringList{} << QStringList{"/f/my.flow"};
    QTest::newRow("mixed, order kept")
        << "/p/a.jpg\n/f/one.flow\n/p/b.png\n/f/two.FLOW" << QStringList{"/p/a.jpg", "/p/b.png"}
        << QStringList{"/f/one.flow", "/f/two.FLOW"};
    QTest::newRow("flow in the middle of a name is a photo")
        << "/p/a.flow.jpg\n"
        << QStringList{"/p/a.flow.jpg"} << QStringList{};
    QTest::newRow("empty message") << "\n" << QStringList{} << QStringList{};
}

void TestStartup::splitPaths()
{
    QFETCH(QString, lines);
    QFETCH(QStringList, photos);
    QFETCH(QStringList, flows);
    const Startup::OpenRequest request = Startup::splitPaths(lines);
    QStringList photoPaths;
    for (const QUrl& url : request.photos)
        photoPaths << url.toLocalFile();
    QCOMPARE(photoPaths, photos);
    QCOMPARE(request.flows, flows);
}

void TestStartup::fileArguments()
{
    QTemporaryDir dir;
    const QString flow = writeFile(dir, "my.flow", twoNodeFlow);
    const QString photo = writeFile(dir, "photo.png", "not really");
    QDir::setCurrent(dir.path());
    const QStringList arguments{"pelodine", "my.flow", "missing.png", photo};
    QCOMPARE(Startup::fileArguments(arguments), (QStringList{flow, photo}));
}

void TestStartup::openPaths_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<bool>("opened");
    QTest::addColumn<QStringList>("nodes");
    QTest::addColumn<int>("photos");
    QTest::newRow("pelodine my.flow")
        << QStringList{"my.flow"} << true << QStringList{"Crop", "Invert"} << 0;
    QTest::newRow("photo and flow from a second instance")
        << QStringList{"photo.png", "my.flow"} << true << QStringList{"Crop", "Invert"} << 1;
    QTest::newRow("the last readable flow wins")
        << QStringList{"my.flow", "sample.flow", "gone.flow"} << true << QStringList{"Watermark"}
        << 0;
    QTest::newRow("unreadable flow opens nothing")
        << QStringList{"gone.flow"} << false << QStringList{} << 0;
}

void TestStartup::openPaths()
{
    QFETCH(QStringList, files);
    QFETCH(bool, opened);
    QFETCH(QStringList, nodes);
    QFETCH(int, photos);
    QTemporaryDir dir;
    writeFile(dir, "my.flow", twoNodeFlow);
    writeFile(dir, "sample.flow",
              "<OperationsFlow>\n <Operation name=\"Watermark\" index=\"0\">\n"
              "  <Parameters>\n   <Active>yes</Active>\n  </Parameters>\n"
              " </Operation>\n</OperationsFlow>\n");
    QImage photo = TestUtils::filledImage(40, 30, 0xff336699);
    QVERIFY(photo.save(dir.filePath("photo.png")));
    QStringList lines;
    for (const QString& file : files)
        lines << dir.filePath(file);
    CommonData::instance()->photoCount = 0;

    MainPage page;
    QCOMPARE(Startup::openPaths(&page, lines.join('\n') + '\n'), opened);
    QCOMPARE(nodeNames(page.flowPanel()), nodes);
    QCOMPARE(page.isVisible(), opened);
    QCOMPARE(CommonData::instance()->photoCount, photos);
}

PELODINE_TEST_MAIN(TestStartup)

#include "tst_startup.moc"
