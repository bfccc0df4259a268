#include "basenode.h"
#include "clrnode.h"
#include "comboslider.h"
#include "commondata.h"
#include "nodecatalogue.h"
#include "nodetesthelpers.h"
#include "rttnode.h"
#include "shsnode.h"
#include "testutils.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

#include <algorithm>
#include <memory>

using NodeTest::Keys;

class TestNodeCatalogue : public QObject
{
    Q_OBJECT

private slots:
    void nodeByName_data();
    void nodeByName();
    void factoryNames();
    void colorizeHasNoIcon();
    void unknownOperationKeepsImage();
    void saturationFiftyKeepsColours();
    void histogramClipsAreCrossed_data();
    void histogramClipsAreCrossed();
    void newMirrorMirrorsHorizontally();
    void mirrorObjectNamesAreCrossed();
    void rotateWalk_data();
    void rotateWalk();
    void rotateAngle450();
    void resizeLoad_data();
    void resizeLoad();
    void resizeFollowsThePreviewFlag_data();
    void resizeFollowsThePreviewFlag();
    void resizeModeResetsSliders_data();
    void resizeModeResetsSliders();
    void nodesWithoutOptions_data();
    void nodesWithoutOptions();
    void sliderCaptions_data();
    void sliderCaptions();
    void sharpnessRunsOnTheCallingThread();
};

namespace {
std::unique_ptr<BaseNode> newNode(const QString& name)
{
    return std::unique_ptr<BaseNode>(createNodeByName(name));
}

// The ComboSliders of a node in the order they were created.
QList<ComboSlider*> sliders(BaseNode* node)
{
    return node->findChildren<ComboSlider*>();
}
} // namespace

void TestNodeCatalogue::nodeByName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("icon");
    TestUtils::addRow("RGB-Order", "RGB-Order", "RGBNode", "Icon_RGB.png");
    TestUtils::addRow("BCS", "Brightness, Contrast, Saturation", "BCSNode", "Icon_BRT.png");
    TestUtils::addRow("Rotate", "Rotate", "RTTNode", "Icon_RTT.png");
    TestUtils::addRow("Blur", "Blur", "BLRNode", "Icon_BLR.png");
    TestUtils::addRow("Invert", "Invert", "INVNode", "Icon_INV.png");
    TestUtils::addRow("Mirror", "Mirror", "MRRNode", "Icon_MRR.png");
    TestUtils::addRow("Grayscale", "Grayscale", "GRSNode", "Icon_GRS.png");
    TestUtils::addRow("Watermark", "Watermark", "WMRNode", "Icon_WMR.png");
    TestUtils::addRow("Crop", "Crop", "CRPNode", "Icon_CRP.png");
    TestUtils::addRow("Resize", "Resize", "RSZNode", "Icon_RSZ.png");
    TestUtils::addRow("Histogram", "Histogram optimizer", "HSTNode", "Icon_HST.png");
    TestUtils::addRow("Frame", "Frame", "FRMNode", "Icon_FRM.png");
    TestUtils::addRow("Binarization", "Binarization", "BINNode", "Icon_BIN.png");
    TestUtils::addRow("Vignetting", "Vignetting", "UCSNode", "Icon_WGN.png");
    // The factory wants the whole name; the icon lookup a part of it, first word in its order.
    TestUtils::addRow("part of a longer name", "My Watermark 2", "", "Icon_WMR.png");
    TestUtils::addRow("first word in lookup order wins", "Crop, then Blur", "", "Icon_BLR.png");
    TestUtils::addRow("trailing blank", "Blur ", "", "Icon_BLR.png");
    TestUtils::addRow("letter case", "blur", "", "");
    TestUtils::addRow("sharpness is dormant", "Sharpness", "", "");
    TestUtils::addRow("colorize is dormant", "Colorize", "", "");
    TestUtils::addRow("empty", "", "", "");
}

void TestNodeCatalogue::nodeByName()
{
    QFETCH(QString, name);
    QFETCH(QString, className);
    QFETCH(QString, icon);
    const QPixmap pixmap = ::iconForNodeName(name);
    const QImage expected(":/" + icon);
    if (icon.isEmpty()) {
        QVERIFY(pixmap.isNull());
    } else {
        QVERIFY(!expected.isNull());
        QCOMPARE_IMAGES(pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
                        expected.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    }

    QWidget parent;
    BaseNode* node = ::createNodeByName(name, &parent);
    if (className.isEmpty()) {
        QVERIFY(!node);
        return;
    }
    QVERIFY(node);
    QCOMPARE(node->metaObject()->className(), qPrintable(className));
    QCOMPARE(node->name(), name);
    QVERIFY(node->isActive());
    QCOMPARE(node->parentWidget(), &parent);
    auto* box = node->findChild<QGroupBox*>();
    QVERIFY(box && box->isCheckable() && box->isChecked());
    QCOMPARE(box->title(), name);
    auto* label = node->findChild<QLabel*>("NodeIconLabel");
    QVERIFY(label);
    QCOMPARE(label->size(), QSize(64, 64));
    QCOMPARE_IMAGES(label->pixmap(Qt::ReturnByValue)
                        .toImage()
                        .convertToFormat(QImage::Format_ARGB32_Premultiplied),
                    expected.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

void TestNodeCatalogue::factoryNames()
{
    QCOMPARE(factoryNodeNames(),
             QString("RGB-Order|Brightness, Contrast, Saturation|Rotate|Blur|Invert|Mirror|"
                     "Grayscale|Watermark|Crop|Resize|Histogram optimizer|Frame|Binarization|"
                     "Vignetting")
                 .split('|'));
}

void TestNodeCatalogue::colorizeHasNoIcon()
{
    CLRNode colorize;
    QVERIFY(colorize.findChild<QLabel*>("NodeIconLabel")->pixmap(Qt::ReturnByValue).isNull());
}

void TestNodeCatalogue::unknownOperationKeepsImage()
{
    const QImage photo = NodeTest::photo();
    QCOMPARE_IMAGES(applyOperation("Colorize", photo, "<Parameters/>"), photo);
}

void TestNodeCatalogue::saturationFiftyKeepsColours()
{
    auto node = newNode("Brightness, Contrast, Saturation");
    const QImage photo = NodeTest::photo();
    QImage image = photo;
    node->process(image);
    QVERIFY2(TestUtils::imageDifference(image, photo) != QString(), "100 doubles the saturation");

    NodeTest::readText(node.get(), "<Parameters><Saturation>50</Saturation></Parameters>");
    image = photo;
    node->process(image);
    QCOMPARE_IMAGES(image, photo);
}

void TestNodeCatalogue::histogramClipsAreCrossed_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QRgb>("dark");
    QTest::addColumn<QRgb>("bright");
    // Half the pixels at level 50, half at 200. Clipping half of the bright end leaves the
    // high level at 50, so everything from 50 up is white; clipping half of the dark end puts
    // the low level at 200, so 50 becomes black and 200 white.
    QTest::newRow("Left clips the bright end")
        << "<Left>100</Left>" << qRgb(255, 255, 255) << qRgb(255, 255, 255);
    QTest::newRow("Right clips the dark end")
        << "<Right>100</Right>" << qRgb(0, 0, 0) << qRgb(255, 255, 255);
}

void TestNodeCatalogue::histogramClipsAreCrossed()
{
    QFETCH(QString, keys);
    QFETCH(QRgb, dark);
    QFETCH(QRgb, bright);
    QImage levels = TestUtils::filledImage(8, 2, qRgb(200, 200, 200));
    QImage expected = TestUtils::filledImage(8, 2, bright);
    for (int x = 0; x < 4; ++x) {
        for (int y = 0; y < 2; ++y) {
            levels.setPixel(x, y, qRgb(50, 50, 50));
            expected.setPixel(x, y, dark);
        }
    }
    auto node = newNode("Histogram optimizer");
    NodeTest::readText(node.get(), "<Parameters>" + keys + "</Parameters>");
    node->process(levels);
    QCOMPARE_IMAGES(levels, expected);
}

void TestNodeCatalogue::newMirrorMirrorsHorizontally()
{
    const QImage photo = NodeTest::photo();
    QImage expected(photo.size(), QImage::Format_ARGB32);
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = 0; x < photo.width(); ++x)
            expected.setPixel(x, y, photo.pixel(photo.width() - 1 - x, y));
    }
    auto node = newNode("Mirror");
    QImage image = photo;
    node->process(image);
    QCOMPARE_IMAGES(image, expected);
}

void TestNodeCatalogue::mirrorObjectNamesAreCrossed()
{
    auto node = newNode("Mirror");
    auto* v = node->findChild<QPushButton*>("MirrorVButton");
    auto* h = node->findChild<QPushButton*>("MirrorHButton");
    QVERIFY(v && h);
    QVERIFY(v->isChecked());
    QVERIFY(!h->isChecked());
    QVERIFY(v->isFlat() && h->isFlat());
    h->click();
    v->click();
    QCOMPARE(node->parametersText(),
             NodeTest::parametersText("yes", {{"Horizontal", "no"}, {"Vertical", "yes"}}));
}

void TestNodeCatalogue::rotateWalk_data()
{
    QTest::addColumn<QString>("clicks");
    QTest::addColumn<QList<int>>("angles");
    QTest::newRow("right all round") << "RRRR" << QList<int>{90, 180, 270, 0};
    QTest::newRow("left all round") << "LLLL" << QList<int>{-90, -180, -270, 0};
    QTest::newRow("right then left") << "RLL" << QList<int>{90, 0, -90};
    QTest::newRow("directions are not normalised") << "LLLR" << QList<int>{-90, -180, -270, -180};
}

void TestNodeCatalogue::rotateWalk()
{
    QFETCH(QString, clicks);
    QFETCH(QList<int>, angles);
    RTTNode node;
    auto* right = node.findChild<QPushButton*>("RotateRightButton");
    auto* left = node.findChild<QPushButton*>("RotateLeftButton");
    QVERIFY(right && left);
    QSignalSpy changes(&node, &BaseNode::parametersChanged);
    for (int i = 0; i < clicks.size(); ++i) {
        (clicks.at(i) == 'R' ? right : left)->click();
        QCOMPARE(changes.count(), i + 1);
        QCOMPARE(node.parametersText(),
                 NodeTest::parametersText("yes", {{"Angle", QString::number(angles.at(i))}}));
    }
}

void TestNodeCatalogue::rotateAngle450()
{
    RTTNode node;
    NodeTest::readText(&node, "<Parameters><Angle>450</Angle></Parameters>");
    QCOMPARE(node.parametersText(), NodeTest::parametersText("yes", {{"Angle", "450"}}));
    const QImage photo = NodeTest::photo();
    QImage image = photo;
    node.process(image);
    QCOMPARE_IMAGES(image, photo);
    node.slotRightClicked();
    QCOMPARE(node.parametersText(), NodeTest::parametersText("yes", {{"Angle", "0"}}));
}

void TestNodeCatalogue::resizeLoad_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("mode first, as saved") << "<Mode>2</Mode><Width>1200</Width><Height>800</Height>"
                                          << "px" << 1200 << 800;
    QTest::newRow("width 5000 in mode 0 clamps") << "<Mode>0</Mode><Width>5000</Width>"
                                                 << "%" << 100 << 50;
    QTest::newRow("width below the pixel range clamps")
        << "<Mode>1</Mode><Width>2</Width><Height>9000</Height>"
        << "px" << 8 << 5000;
    QTest::newRow("mode after the sizes resets them")
        << "<Width>1200</Width><Height>800</Height><Mode>2</Mode>"
        << "px" << 300 << 300;
    QTest::newRow("unparsable mode keeps percent") << "<Mode>two</Mode><Width>70</Width>"
                                                   << "%" << 70 << 50;
}

void TestNodeCatalogue::resizeLoad()
{
    QFETCH(QString, keys);
    QFETCH(QString, unit);
    QFETCH(int, width);
    QFETCH(int, height);
    auto node = newNode("Resize");
    NodeTest::readText(node.get(), "<Parameters>" + keys + "</Parameters>");
    const QList<ComboSlider*> both = sliders(node.get());
    QCOMPARE(both.size(), 2);
    QCOMPARE(both.at(0)->unit(), unit);
    QCOMPARE(both.at(1)->unit(), unit);
    QCOMPARE(both.at(0)->value(), width);
    QCOMPARE(both.at(1)->value(), height);
}

void TestNodeCatalogue::resizeFollowsThePreviewFlag_data()
{
    QTest::addColumn<int>("previewMode");
    QTest::addColumn<QSize>("processed");
    // "Maximum Pixels" is skipped while the reduced preview runs; the headless form never is.
    QTest::newRow("preview") << 1 << QSize(48, 36);
    QTest::newRow("full size") << 0 << QSize(20, 15);
}

void TestNodeCatalogue::resizeFollowsThePreviewFlag()
{
    QFETCH(int, previewMode);
    QFETCH(QSize, processed);
    auto node = newNode("Resize");
    NodeTest::readText(node.get(), "<Parameters><Mode>1</Mode><Width>20</Width>"
                                   "<Height>20</Height></Parameters>");
    CommonData::instance()->previewMode = previewMode;
    QImage image = NodeTest::photo(48, 36);
    node->process(image);
    CommonData::instance()->previewMode = 1;
    QCOMPARE(image.size(), processed);
    const QImage headless =
        applyOperation("Resize", NodeTest::photo(48, 36), node->parametersText());
    QCOMPARE(headless.size(), QSize(20, 15));
}

void TestNodeCatalogue::resizeModeResetsSliders_data()
{
    QTest::addColumn<int>("mode");
    QTest::newRow("maximum pixels") << 1;
    QTest::newRow("pixels") << 2;
}

void TestNodeCatalogue::resizeModeResetsSliders()
{
    QFETCH(int, mode);
    auto node = newNode("Resize");
    auto* combo = node->findChild<QComboBox*>();
    QCOMPARE(combo->count(), 3);
    QCOMPARE(combo->itemText(0), QString("Percentage"));
    QCOMPARE(combo->itemText(1), QString("Maximum Pixels"));
    QCOMPARE(combo->itemText(2), QString("Pixels"));
    for (ComboSlider* slider : sliders(node.get()))
        slider->setValue(77);
    combo->setCurrentIndex(mode);
    // Both pixel modes: range 8 to 5000 and 300, whatever the percentages were.
    for (ComboSlider* slider : sliders(node.get())) {
        QCOMPARE(slider->minimum(), 8);
        QCOMPARE(slider->maximum(), 5000);
        QCOMPARE(slider->value(), 300);
        QCOMPARE(slider->unit(), QString("px"));
    }
    // Back to percent: range 1 to 100 and 50, whatever the pixels were.
    combo->setCurrentIndex(0);
    for (ComboSlider* slider : sliders(node.get())) {
        QCOMPARE(slider->minimum(), 1);
        QCOMPARE(slider->maximum(), 100);
        QCOMPARE(slider->value(), 50);
        QCOMPARE(slider->unit(), QString("%"));
    }
}

void TestNodeCatalogue::nodesWithoutOptions_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("Grayscale") << "Grayscale";
    QTest::newRow("Invert") << "Invert";
}

void TestNodeCatalogue::nodesWithoutOptions()
{
    QFETCH(QString, name);
    auto node = newNode(name);
    const QList<QLabel*> labels = node->findChildren<QLabel*>();
    const bool found = std::any_of(labels.begin(), labels.end(), [](QLabel* label) {
        return label->text() == "<H2>No options</H2>" && label->textFormat() == Qt::RichText;
    });
    QVERIFY(found);
}

void TestNodeCatalogue::sliderCaptions_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("captions");
    QTest::addColumn<QList<int>>("values");
    QTest::addColumn<QList<int>>("ranges");
    QTest::newRow("BCS") << "Brightness, Contrast, Saturation"
                         << QStringList{"Brightness:", "Contrast:", "Saturation:"}
                         << QList<int>{0, 0, 100} << QList<int>{-127, 128, -127, 128, 0, 100};
    QTest::newRow("Crop keeps its Buttom")
        << "Crop" << QStringList{"Left:", "Right:", "Top:", "Buttom:"} << QList<int>{0, 0, 0, 0}
        << QList<int>{0, 100, 0, 100, 0, 100, 0, 100};
    QTest::newRow("Blur") << "Blur" << QStringList{"Blur:"} << QList<int>{10} << QList<int>{0, 20};
    QTest::newRow("Vignetting") << "Vignetting" << QStringList{"Radius:", "Opacity:"}
                                << QList<int>{65, 80} << QList<int>{0, 100, 0, 100};
    QTest::newRow("Binarization") << "Binarization" << QStringList{"Threshold:"} << QList<int>{127}
                                  << QList<int>{0, 255};
    QTest::newRow("Frame") << "Frame" << QStringList{"Width:"} << QList<int>{2}
                           << QList<int>{0, 100};
    QTest::newRow("Histogram") << "Histogram optimizer" << QStringList{"Left:", "Right:"}
                               << QList<int>{0, 0} << QList<int>{0, 100, 0, 100};
}

void TestNodeCatalogue::sliderCaptions()
{
    QFETCH(QString, name);
    QFETCH(QStringList, captions);
    QFETCH(QList<int>, values);
    QFETCH(QList<int>, ranges);
    auto node = newNode(name);
    const QList<ComboSlider*> all = sliders(node.get());
    QCOMPARE(all.size(), captions.size());
    auto* form = node->findChild<QFormLayout*>();
    QVERIFY(form);
    for (int i = 0; i < all.size(); ++i) {
        auto* label = qobject_cast<QLabel*>(form->labelForField(all.at(i)));
        QVERIFY(label);
        QCOMPARE(label->text(), captions.at(i));
        QCOMPARE(all.at(i)->value(), values.at(i));
        QCOMPARE(all.at(i)->minimum(), ranges.at(2 * i));
        QCOMPARE(all.at(i)->maximum(), ranges.at(2 * i + 1));
    }
}

void TestNodeCatalogue::sharpnessRunsOnTheCallingThread()
{
    // A flat picture has no edges: every written pixel is black and opaque.
    SHSNode node;
    QImage image = TestUtils::filledImage(8, 6, qRgba(90, 120, 150, 255));
    node.process(image);
    QCOMPARE(image.size(), QSize(8, 6));
    for (int y = 1; y <= 3; ++y) {
        for (int x = 1; x <= 5; ++x)
            QCOMPARE(image.pixel(x, y), qRgba(0, 0, 0, 255));
    }
}

PELODINE_TEST_MAIN(TestNodeCatalogue)
#include "tst_nodecatalogue.moc"
