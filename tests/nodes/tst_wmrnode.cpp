#include "commondata.h"
#include "directionswidget.h"
#include "nodetesthelpers.h"
#include "testutils.h"
#include "wmrnode.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFontComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>

using NodeTest::Keys;

class TestWMRNode : public QObject
{
    Q_OBJECT

private slots:
    void newNodeParametersText();
    void position_data();
    void position();
    void offsetsClampToTheSpinBoxes_data();
    void offsetsClampToTheSpinBoxes();
    void fontBuildsAPlainFontOfTheFamily();
    void browseStoresPngWhateverTheFormat_data();
    void browseStoresPngWhateverTheFormat();
    void unreadableLogoWarnsAndKeepsTheLogo();
    void imageDataDecoding_data();
    void imageDataDecoding();
    void headlessEmptyImageDataIsTheBuiltInLogo();
    void modeShowsItsRows_data();
    void modeShowsItsRows();
    void shrinkKeepsTheEssentialRows();
    void everyControlReportsChanges();

private:
    QTemporaryDir folder;
};

namespace {
QString imageData(const QString& text)
{
    QDomDocument document;
    document.setContent(text);
    return document.documentElement().firstChildElement("ImageData").text();
}

QImage decodeDataUri(const QString& uri)
{
    const QString prefix = "data:image/png;base64,";
    if (!uri.startsWith(prefix))
        return QImage();
    return QImage::fromData(QByteArray::fromBase64(uri.mid(prefix.size()).toLatin1()), "PNG");
}

QString dataUri(const QImage& image, const char* format, const QString& type)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return "data:image/" + type + ";base64," + QString::fromLatin1(bytes.toBase64());
}

// A logo with sharp colour blocks, so that a lossy format keeps it recognisable.
QImage userLogo()
{
    QImage logo(8, 4, QImage::Format_ARGB32);
    logo.fill(qRgb(0, 0, 255));
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 4; ++x)
            logo.setPixel(x, y, qRgb(255, 255, 0));
    }
    return logo;
}

QLabel* rowLabel(WMRNode& node, const QString& caption)
{
    const QList<QLabel*> labels = node.findChildren<QLabel*>();
    for (QLabel* label : labels) {
        if (label->text() == caption)
            return label;
    }
    return nullptr;
}

} // namespace

void TestWMRNode::newNodeParametersText()
{
    const QString family = QFontComboBox().currentFont().family();
    WMRNode node;
    const QString expected = "<Parameters>\n"
                             " <Active>yes</Active>\n"
                             " <Mode>0</Mode>\n"
                             " <Size>60</Size>\n"
                             " <Text>Watermark</Text>\n"
                             " <Position>BottomRight</Position>\n"
                             " <Expand>no</Expand>\n"
                             " <Bold>no</Bold>\n"
                             " <Italic>no</Italic>\n"
                             " <Underlined>no</Underlined>\n"
                             " <XOffset>0</XOffset>\n"
                             " <YOffset>0</YOffset>\n"
                             " <Transparency>25</Transparency>\n"
                             " <Color>#ffffff</Color>\n"
                             " <Background>#000000</Background>\n"
                             " <BackgroundEnabled>no</BackgroundEnabled>\n"
                             " <Font>" +
                             family +
                             "</Font>\n"
                             " <ImageData></ImageData>\n"
                             " <ImageName>qubrast.png</ImageName>\n"
                             "</Parameters>\n";
    QCOMPARE(node.parametersText(), expected);
}

void TestWMRNode::position_data()
{
    QTest::addColumn<QString>("position");
    QTest::addColumn<int>("checked");
    QTest::newRow("Middle checks the centre") << "Middle" << 4;
    QTest::newRow("TopLeft") << "TopLeft" << 0;
    QTest::newRow("BottomMiddle") << "BottomMiddle" << 7;
    QTest::newRow("letter case must match") << "middle" << 8;
    QTest::newRow("a number is not a name") << "4" << 8;
}

void TestWMRNode::position()
{
    QFETCH(QString, position);
    QFETCH(int, checked);
    WMRNode node;
    NodeTest::readText(&node, "<Parameters><Position>" + position + "</Position></Parameters>");
    const QList<QPushButton*> buttons = node.findChildren<QPushButton*>("DirectionButton");
    QCOMPARE(buttons.size(), 9);
    for (int cell = 0; cell < 9; ++cell)
        QCOMPARE(buttons.at(cell)->isChecked(), cell == checked);
    QCOMPARE(int(node.findChild<DirectionsWidget*>()->direction()), checked);
}

void TestWMRNode::offsetsClampToTheSpinBoxes_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("expected");
    TestUtils::addRow("XOffset 50", "XOffset", "50", "33");
    TestUtils::addRow("XOffset -50", "XOffset", "-50", "-33");
    TestUtils::addRow("YOffset 34", "YOffset", "34", "33");
    TestUtils::addRow("YOffset in range", "YOffset", "-20", "-20");
    TestUtils::addRow("Size 0 clamps to 1", "Size", "0", "1");
    TestUtils::addRow("Transparency 101", "Transparency", "101", "100");
}

void TestWMRNode::offsetsClampToTheSpinBoxes()
{
    QFETCH(QString, key);
    QFETCH(QString, stored);
    QFETCH(QString, expected);
    WMRNode node;
    NodeTest::readText(&node, "<Parameters><" + key + ">" + stored + "</" + key + "></Parameters>");
    QVERIFY(node.parametersText().contains("<" + key + ">" + expected + "</" + key + ">"));
}

void TestWMRNode::fontBuildsAPlainFontOfTheFamily()
{
    const QFontComboBox fonts;
    const QString family = fonts.itemText(fonts.count() / 2);
    WMRNode node;
    NodeTest::readText(&node, "<Parameters><Font>" + family + "</Font></Parameters>");
    const QFont font = node.findChild<QFontComboBox*>()->currentFont();
    QCOMPARE(font.family(), family);
    QVERIFY(!font.italic());
    QCOMPARE(font.weight(), int(QFont::Normal));
    QVERIFY(node.parametersText().contains("<Font>" + family + "</Font>"));
}

void TestWMRNode::browseStoresPngWhateverTheFormat_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("JPEG") << "logo.jpg" << QByteArray("JPG");
    QTest::newRow("BMP") << "logo.bmp" << QByteArray("BMP");
    QTest::newRow("PNG") << "logo.png" << QByteArray("PNG");
}

void TestWMRNode::browseStoresPngWhateverTheFormat()
{
    QFETCH(QString, fileName);
    QFETCH(QByteArray, format);
    const QString path = folder.filePath(fileName);
    QVERIFY(userLogo().save(path, format.constData()));

    WMRNode node;
    QSignalSpy changes(&node, &BaseNode::parametersChanged);
    QVERIFY(node.openLogoFile(path));
    QCOMPARE(changes.count(), 1);

    const QString text = node.parametersText();
    QVERIFY(text.contains("<ImageName>" + fileName + "</ImageName>"));
    const QString data = imageData(text);
    QVERIFY2(data.startsWith("data:image/png;base64,"), qPrintable(data.left(40)));
    const QImage decoded = decodeDataUri(data);
    QCOMPARE_IMAGES(decoded, QImage(path).convertToFormat(QImage::Format_ARGB32));
}

void TestWMRNode::unreadableLogoWarnsAndKeepsTheLogo()
{
    const QString path = folder.filePath("notes.png");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("this is no picture");
    file.close();

    WMRNode node;
    const QString before = node.parametersText();
    QSignalSpy changes(&node, &BaseNode::parametersChanged);
    QString shown;
    QTimer::singleShot(0, [&shown] {
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            shown = box->windowTitle() + "|" + box->text() + "|" +
                    QString::number(box->buttons().size());
            box->accept();
        }
    });
    QVERIFY(!node.openLogoFile(path));
    QCOMPARE(shown, "Warning|Can not open the image file:" + path + "|1");
    QCOMPARE(node.parametersText(), before);
    QCOMPARE(changes.count(), 0);
}

void TestWMRNode::imageDataDecoding_data()
{
    QTest::addColumn<QString>("data");
    QTest::addColumn<bool>("replaces");
    QTest::newRow("PNG") << dataUri(userLogo(), "PNG", "png") << true;
    QTest::newRow("JPEG under its own type") << dataUri(userLogo(), "JPG", "jpeg") << true;
    QTest::newRow("BMP declared as PNG") << dataUri(userLogo(), "BMP", "png") << true;
    QTest::newRow("base64 of no picture") << "data:image/png;base64,AAAAAAAA" << false;
    QTest::newRow("no data URI") << "hello" << false;
    QTest::newRow("no base64 marker") << "data:image/png,abc" << false;
}

void TestWMRNode::imageDataDecoding()
{
    QFETCH(QString, data);
    QFETCH(bool, replaces);
    WMRNode node;
    // A user logo first, so that "keeps the previous one" can be told from "built-in".
    const QString first = dataUri(TestUtils::filledImage(2, 2, qRgb(1, 2, 3)), "PNG", "png");
    NodeTest::readText(&node, "<Parameters><ImageData>" + first +
                                  "</ImageData><ImageName>first.png</ImageName></Parameters>");
    QCOMPARE_IMAGES(decodeDataUri(imageData(node.parametersText())),
                    TestUtils::filledImage(2, 2, qRgb(1, 2, 3)));

    NodeTest::readText(&node, "<Parameters><ImageData>" + data + "</ImageData></Parameters>");
    const QImage logo = decodeDataUri(imageData(node.parametersText()));
    if (replaces) {
        QCOMPARE(logo.size(), QSize(8, 4));
        // Lossy formats stay close: the corners keep their blocks' colours.
        QVERIFY(qAbs(qRed(logo.pixel(0, 0)) - 255) < 16);
        QVERIFY(qAbs(qBlue(logo.pixel(7, 3)) - 255) < 16);
    } else {
        QCOMPARE_IMAGES(logo, TestUtils::filledImage(2, 2, qRgb(1, 2, 3)));
    }
}

void TestWMRNode::headlessEmptyImageDataIsTheBuiltInLogo()
{
    const QImage builtIn(":/qubrast.png");
    QVERIFY(!builtIn.isNull());
    const Keys expanded = {{"Mode", "1"}, {"Expand", "yes"}, {"Transparency", "0"}};
    Keys withEmpty = expanded;
    withEmpty.append(qMakePair(QString("ImageData"), QString()));
    Keys withBuiltIn = expanded;
    withBuiltIn.append(qMakePair(QString("ImageData"), dataUri(builtIn, "PNG", "png")));

    const QImage photo = NodeTest::photo(96, 30);
    const QImage fromEmpty =
        WMRNode::applyParameters(photo, NodeTest::parametersText("yes", withEmpty));
    const QImage fromMissing =
        WMRNode::applyParameters(photo, NodeTest::parametersText("yes", expanded));
    const QImage fromData =
        WMRNode::applyParameters(photo, NodeTest::parametersText("yes", withBuiltIn));
    QVERIFY(TestUtils::imageDifference(fromEmpty, photo) != QString());
    QCOMPARE_IMAGES(fromEmpty, fromData);
    QCOMPARE_IMAGES(fromMissing, fromData);
}

void TestWMRNode::modeShowsItsRows_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QStringList>("hidden");
    QTest::newRow("text") << 0
                          << QStringList{"Kind:",       "Text:", "Font:",         "Text color:",
                                         "Background:", "Size:", "Transparency:", "Position:"}
                          << QStringList{"Logo:", "Expand:"};
    QTest::newRow("image") << 1 << QStringList{"Kind:", "Logo:",         "Expand:",
                                               "Size:", "Transparency:", "Position:"}
                           << QStringList{"Text:", "Font:", "Text color:", "Background:"};
}

void TestWMRNode::modeShowsItsRows()
{
    QFETCH(int, mode);
    QFETCH(QStringList, shown);
    QFETCH(QStringList, hidden);
    WMRNode node;
    NodeTest::readText(&node, QString("<Parameters><Mode>%1</Mode></Parameters>").arg(1 - mode));
    QSignalSpy changes(&node, &BaseNode::parametersChanged);
    NodeTest::readText(&node, QString("<Parameters><Mode>%1</Mode></Parameters>").arg(mode));
    QVERIFY(changes.count() >= 1);
    // The field of the caption's row, in whichever of the node's forms holds it; a field of
    // several widgets is empty when all of them are hidden.
    const auto fieldOf = [&node](QLabel* label) -> QLayoutItem* {
        const QList<QFormLayout*> forms = node.findChildren<QFormLayout*>();
        for (QFormLayout* form : forms) {
            int row = -1;
            QFormLayout::ItemRole role;
            form->getWidgetPosition(label, &row, &role);
            if (row >= 0 && role == QFormLayout::LabelRole)
                return form->itemAt(row, QFormLayout::FieldRole);
        }
        return nullptr;
    };
    for (const QString& caption : shown) {
        QLabel* label = rowLabel(node, caption);
        QVERIFY2(label && !label->isHidden(), qPrintable(caption));
        QVERIFY2(fieldOf(label) && !fieldOf(label)->isEmpty(), qPrintable(caption));
    }
    for (const QString& caption : hidden) {
        QLabel* label = rowLabel(node, caption);
        QVERIFY2(label && label->isHidden(), qPrintable(caption));
        QVERIFY2(fieldOf(label) && fieldOf(label)->isEmpty(), qPrintable(caption));
    }
}

void TestWMRNode::shrinkKeepsTheEssentialRows()
{
    WMRNode node;
    auto* shrink = node.findChild<QPushButton*>("WMRShrinkButton");
    QVERIFY(shrink && shrink->isCheckable() && !shrink->isChecked());
    const QString before = node.parametersText();
    QSignalSpy changes(&node, &BaseNode::parametersChanged);
    shrink->click();
    QCOMPARE(changes.count(), 1);
    QVERIFY(!rowLabel(node, "Kind:")->isHidden());
    QVERIFY(!rowLabel(node, "Text:")->isHidden());
    for (const char* caption : {"Font:", "Text color:", "Size:", "Transparency:", "Position:"})
        QVERIFY2(rowLabel(node, caption)->isHidden(), caption);
    QCOMPARE(node.parametersText(), before);
    shrink->click();
    QVERIFY(!rowLabel(node, "Size:")->isHidden());
}

void TestWMRNode::everyControlReportsChanges()
{
    WMRNode node;
    QSignalSpy changes(&node, &BaseNode::parametersChanged);
    for (const char* name : {"BoldButton", "ItalicButton", "UnderlinedButton"}) {
        auto* button = node.findChild<QPushButton*>(name);
        QVERIFY2(button && button->isFlat() && button->isCheckable(), name);
        button->click();
    }
    QCOMPARE(changes.count(), 3);
    const QList<QSpinBox*> offsets = node.findChildren<QSpinBox*>();
    for (QSpinBox* box : offsets) {
        if (box->minimum() == -33)
            box->setValue(box->value() + 1);
    }
    QCOMPARE(changes.count(), 5);
    node.findChildren<QPushButton*>("DirectionButton").at(2)->click();
    QCOMPARE(changes.count(), 6);
    const QString text = node.parametersText();
    QVERIFY(text.contains("<Bold>yes</Bold>") && text.contains("<Italic>yes</Italic>") &&
            text.contains("<Underlined>yes</Underlined>"));
    QVERIFY(text.contains("<XOffset>1</XOffset>") && text.contains("<YOffset>1</YOffset>"));
    QVERIFY(text.contains("<Position>TopRight</Position>"));
}

PELODINE_TEST_MAIN(TestWMRNode)
#include "tst_wmrnode.moc"
