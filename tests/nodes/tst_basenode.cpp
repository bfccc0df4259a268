#include "basenode.h"
#include "clrnode.h"
#include "commondata.h"
#include "nodecatalogue.h"
#include "nodetesthelpers.h"
#include "shsnode.h"
#include "testutils.h"

#include <QBuffer>
#include <QSignalSpy>
#include <QtConcurrent/QtConcurrentRun>

#include <memory>

using NodeTest::Keys;

class TestBaseNode : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void grayscaleParametersText();
    void activeText_data();
    void activeText();
    void inactiveNodePassesThrough_data();
    void inactiveNodePassesThrough();
    void activeNodePreviewsItsResult();
    void roundTrip_data();
    void roundTrip();
    void dormantNodesStoreNothing();
    void processMatchesHeadless_data();
    void processMatchesHeadless();
    void headlessStartsAtZero_data();
    void headlessStartsAtZero();
    void headlessWidensOtherDepths();
    void headlessRunsOnAnyThread();
};

namespace {
std::unique_ptr<BaseNode> newNode(const QString& name)
{
    return std::unique_ptr<BaseNode>(createNodeByName(name));
}

QString pngDataUri(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return "data:image/png;base64," + QString::fromLatin1(bytes.toBase64());
}

QImage pureRed()
{
    return TestUtils::filledImage(4, 3, qRgb(255, 0, 0));
}
} // namespace

void TestBaseNode::cleanup()
{
    CommonData::instance()->previewMode = 1;
}

void TestBaseNode::grayscaleParametersText()
{
    auto node = newNode("Grayscale");
    QCOMPARE(node->parametersText(),
             QString("<Parameters>\n <Active>yes</Active>\n</Parameters>\n"));
}

void TestBaseNode::activeText_data()
{
    QTest::addColumn<bool>("before");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("after");
    QTest::addColumn<int>("threshold");

    const auto text = [](const QString& active) {
        return "<Parameters><Active>" + active + "</Active><Threshold>40</Threshold></Parameters>";
    };
    QTest::newRow("yes") << false << text("yes") << true << 40;
    QTest::newRow("upper case YES") << false << text("YES") << true << 40;
    QTest::newRow("mixed case Yes") << false << text("Yes") << true << 40;
    QTest::newRow("trailing blank") << true << text("yes ") << false << 40;
    QTest::newRow("leading blank") << true << text(" yes") << false << 40;
    QTest::newRow("no") << true << text("no") << false << 40;
    QTest::newRow("true") << true << text("true") << false << 40;
    QTest::newRow("empty") << true << text("") << false << 40;
    QTest::newRow("missing keeps on")
        << true << "<Parameters><Threshold>41</Threshold></Parameters>" << true << 41;
    QTest::newRow("missing keeps off")
        << false << "<Parameters><Threshold>42</Threshold></Parameters>" << false << 42;
    QTest::newRow("nested Active is not a direct child")
        << true << "<Parameters><Group><Active>no</Active></Group></Parameters>" << true << 127;
}

void TestBaseNode::activeText()
{
    QFETCH(bool, before);
    QFETCH(QString, text);
    QFETCH(bool, after);
    QFETCH(int, threshold);

    auto node = newNode("Binarization");
    node->setActive(before);
    NodeTest::readText(node.get(), text);
    QCOMPARE(node->isActive(), after);
    QVERIFY(node->parametersText().contains(QString("<Threshold>%1</Threshold>").arg(threshold)));
}

void TestBaseNode::inactiveNodePassesThrough_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : factoryNodeNames())
        QTest::newRow(qPrintable(name)) << name;
}

void TestBaseNode::inactiveNodePassesThrough()
{
    QFETCH(QString, name);
    auto node = newNode(name);
    NodeTest::readText(node.get(), "<Parameters><Active>no</Active></Parameters>");
    QSignalSpy previews(node.get(), &BaseNode::previewChanged);

    const QImage input = NodeTest::photo();
    QImage image = input;
    node->process(image);

    QCOMPARE(image.format(), input.format());
    QCOMPARE_IMAGES(image, input);
    QCOMPARE(previews.count(), 1);
    const QImage disabled(":/DisabledNode.png");
    QVERIFY(!disabled.isNull());
    QCOMPARE_IMAGES(previews.at(0).at(0).value<QImage>(), disabled);
}

void TestBaseNode::activeNodePreviewsItsResult()
{
    auto node = newNode("Invert");
    QSignalSpy previews(node.get(), &BaseNode::previewChanged);
    QImage image = NodeTest::photo();
    node->process(image);
    QCOMPARE(previews.count(), 1);
    QCOMPARE_IMAGES(previews.at(0).at(0).value<QImage>(), image);
    QCOMPARE(image.pixel(0, 0), qRgb(255, 255, 255));
}

void TestBaseNode::roundTrip_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");

    QImage logo(3, 2, QImage::Format_ARGB32);
    logo.fill(qRgba(10, 200, 30, 128));
    logo.setPixel(1, 1, qRgba(255, 0, 0, 255));
    // A family the install step provides under its own name; an alias would come back resolved.
    const QString family = "DejaVu Sans";

    const auto row = [](const QString& name, const QString& active, const Keys& keys) {
        QTest::newRow(qPrintable(name)) << name << NodeTest::parametersText(active, keys);
    };
    row("RGB-Order", "no", {{"Mode", "2"}});
    row("Brightness, Contrast, Saturation", "yes",
        {{"Brightness", "-40"}, {"Contrast", "25"}, {"Saturation", "30"}});
    row("Rotate", "yes", {{"Angle", "-180"}});
    row("Blur", "no", {{"Radius", "15"}});
    row("Invert", "no", {});
    row("Mirror", "yes", {{"Horizontal", "no"}, {"Vertical", "yes"}});
    row("Grayscale", "no", {});
    row("Watermark", "no",
        TestUtils::keyValues(
            QString("Mode=1|Size=35|Text=Copyright 2026 Ünïcode|Position=TopMiddle|Expand=yes|"
                    "Bold=yes|Italic=yes|Underlined=yes|XOffset=-12|YOffset=7|Transparency=60|"
                    "Color=#12ab34|Background=#fedcba|BackgroundEnabled=yes|Font=%1|"
                    "ImageData=%2|ImageName=mylogo.jpg")
                .arg(family, pngDataUri(logo))));
    row("Crop", "yes", {{"Left", "5"}, {"Right", "10"}, {"Top", "15"}, {"Bottom", "20"}});
    row("Resize", "yes", {{"Mode", "1"}, {"Width", "1024"}, {"Height", "768"}});
    row("Histogram optimizer", "no", {{"Left", "3"}, {"Right", "7"}});
    row("Frame", "yes", {{"Width", "12"}, {"Color", "#102030"}});
    row("Binarization", "no", {{"Threshold", "200"}});
    row("Vignetting", "yes", {{"Radius", "30"}, {"Opacity", "45"}, {"Color", "#ff8000"}});
}

void TestBaseNode::roundTrip()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    auto node = newNode(name);
    NodeTest::readText(node.get(), text);
    QCOMPARE(node->parametersText(), text);

    // And once more through a fresh node, as a flow saved and opened again.
    auto copy = newNode(name);
    NodeTest::readText(copy.get(), node->parametersText());
    QCOMPARE(copy->parametersText(), text);
}

void TestBaseNode::dormantNodesStoreNothing()
{
    SHSNode sharpness;
    CLRNode colorize;
    QCOMPARE(sharpness.name(), QString("Blur"));
    QCOMPARE(colorize.name(), QString("Colorize"));
    const QString off = "<Parameters>\n <Active>no</Active>\n</Parameters>\n";
    NodeTest::readText(&sharpness, off);
    NodeTest::readText(&colorize, off);
    QCOMPARE(sharpness.parametersText(), off);
    QCOMPARE(colorize.parametersText(), off);
}

void TestBaseNode::processMatchesHeadless_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");

    const auto row = [](const QString& rowName, const QString& name, const Keys& keys) {
        QTest::newRow(qPrintable(rowName)) << name << NodeTest::parametersText("yes", keys);
    };
    row("RGB-Order red/green", "RGB-Order", {{"Mode", "1"}});
    row("RGB-Order green/blue", "RGB-Order", {{"Mode", "2"}});
    row("BCS bright", "Brightness, Contrast, Saturation",
        {{"Brightness", "30"}, {"Contrast", "-20"}, {"Saturation", "70"}});
    row("BCS grey", "Brightness, Contrast, Saturation",
        {{"Brightness", "-50"}, {"Contrast", "40"}, {"Saturation", "0"}});
    row("Rotate 90", "Rotate", {{"Angle", "90"}});
    row("Rotate -180", "Rotate", {{"Angle", "-180"}});
    row("Rotate 270", "Rotate", {{"Angle", "270"}});
    row("Blur 3", "Blur", {{"Radius", "3"}});
    row("Blur 20", "Blur", {{"Radius", "20"}});
    row("Invert", "Invert", {});
    row("Mirror vertical", "Mirror", {{"Horizontal", "no"}, {"Vertical", "yes"}});
    row("Mirror both", "Mirror", {{"Horizontal", "yes"}, {"Vertical", "yes"}});
    row("Grayscale", "Grayscale", {});
    row("Watermark text", "Watermark",
        TestUtils::keyValues("Size=40|Text=Pelodine|Position=Middle|Bold=yes|XOffset=5|"
                             "Transparency=10|Color=#ff0000|BackgroundEnabled=yes"));
    row("Watermark logo", "Watermark",
        {{"Mode", "1"}, {"Size", "50"}, {"Position", "TopLeft"}, {"Transparency", "0"}});
    row("Watermark logo expanded", "Watermark", {{"Mode", "1"}, {"Expand", "yes"}});
    row("Crop", "Crop", {{"Left", "10"}, {"Right", "20"}, {"Top", "5"}, {"Bottom", "15"}});
    row("Resize percent", "Resize", {{"Mode", "0"}, {"Width", "50"}, {"Height", "70"}});
    row("Resize maximum pixels", "Resize", {{"Mode", "1"}, {"Width", "20"}, {"Height", "20"}});
    row("Resize pixels", "Resize", {{"Mode", "2"}, {"Width", "25"}, {"Height", "10"}});
    row("Histogram", "Histogram optimizer", {{"Left", "10"}, {"Right", "30"}});
    row("Frame", "Frame", {{"Width", "10"}, {"Color", "#336699"}});
    row("Binarization", "Binarization", {{"Threshold", "100"}});
    row("Vignetting", "Vignetting", {{"Radius", "40"}, {"Opacity", "70"}, {"Color", "#204060"}});
}

void TestBaseNode::processMatchesHeadless()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    // The headless form never reduces; the full-size run is the one to compare with.
    CommonData::instance()->previewMode = 0;

    auto node = newNode(name);
    NodeTest::readText(node.get(), text);
    const QImage input = NodeTest::photo();
    QImage processed = input;
    node->process(processed);
    const QImage headless = applyOperation(name, input, node->parametersText());

    QVERIFY(!processed.isNull());
    QVERIFY2(TestUtils::imageDifference(processed, input) != QString(),
             "the settings should change the photo");
    QCOMPARE(headless.format(), processed.format());
    QCOMPARE_IMAGES(headless, processed);
}

void TestBaseNode::headlessStartsAtZero_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QRgb>("expected");

    // Pure red has the perceived brightness sqrt(0.299) * 255 = 139.43.
    QTest::newRow("not XML: saturation 0 greys") << "Brightness, Contrast, Saturation"
                                                 << "this is not XML" << qRgb(139, 139, 139);
    QTest::newRow("empty text") << "Brightness, Contrast, Saturation"
                                << "" << qRgb(139, 139, 139);
    QTest::newRow("missing saturation is 0, not the default 100")
        << "Brightness, Contrast, Saturation"
        << "<Parameters><Brightness>10</Brightness></Parameters>" << qRgb(149, 149, 149);
    QTest::newRow("saturation 50 is the factor 1.0")
        << "Brightness, Contrast, Saturation"
        << "<Parameters><Saturation>50</Saturation></Parameters>" << qRgb(255, 0, 0);
    QTest::newRow("unparsable number keeps 0")
        << "Brightness, Contrast, Saturation"
        << "<Parameters><Saturation>fifty</Saturation></Parameters>" << qRgb(139, 139, 139);
    QTest::newRow("a later valid value wins")
        << "Brightness, Contrast, Saturation"
        << "<Parameters><Saturation>50</Saturation><Saturation>x</Saturation></Parameters>"
        << qRgb(255, 0, 0);
    QTest::newRow("binarization threshold 0 whitens") << "Binarization"
                                                      << "<<<" << qRgb(255, 255, 255);
    QTest::newRow("tags match exactly")
        << "Binarization"
        << "<Parameters><threshold>255</threshold></Parameters>" << qRgb(255, 255, 255);
    QTest::newRow("unknown operation") << "Sharpness"
                                       << "" << qRgb(255, 0, 0);
}

void TestBaseNode::headlessStartsAtZero()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QRgb, expected);
    const QImage result = applyOperation(name, pureRed(), text);
    QCOMPARE_IMAGES(result, TestUtils::filledImage(4, 3, expected));
}

void TestBaseNode::headlessWidensOtherDepths()
{
    const QImage photo = NodeTest::photo();
    const QImage narrow = photo.convertToFormat(QImage::Format_RGB888);
    const QString text = "<Parameters><Active>yes</Active></Parameters>";
    QCOMPARE_IMAGES(applyOperation("Invert", narrow, text), applyOperation("Invert", photo, text));
}

void TestBaseNode::headlessRunsOnAnyThread()
{
    // The batch calls the headless forms from a thread of its own.
    const QImage photo = NodeTest::photo(64, 40);
    for (const QString& name : factoryNodeNames()) {
        auto node = newNode(name);
        const QString text = node->parametersText();
        const QImage here = applyOperation(name, photo, text);
        const QImage there = QtConcurrent::run([name, photo, text] {
                                 return applyOperation(name, photo, text);
                             }).result();
        QVERIFY2(TestUtils::imageDifference(there, here).isEmpty(), qPrintable(name));
    }
}

PELODINE_TEST_MAIN(TestBaseNode)
#include "tst_basenode.moc"
