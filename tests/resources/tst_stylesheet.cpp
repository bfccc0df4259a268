// The compiled-in style sheet draws the picture buttons by object name: each one shows its
// picture, a checkable one looks different when checked, and a disabled one is dimmer.
#include "app.h"
#include "testutils.h"

#include <QPushButton>

class TestStyleSheet : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pictureButton_data();
    void pictureButton();

private:
    static QImage grabButton(const QString& objectName, const QSize& size, bool checked,
                             bool enabled);
};

void TestStyleSheet::initTestCase()
{
    const QString styleSheet = OrkWidgets::App::resourceText(":/stylesheet.qss");
    QVERIFY(!styleSheet.isEmpty());
    qApp->setStyleSheet(styleSheet);
}

QImage TestStyleSheet::grabButton(const QString& objectName, const QSize& size, bool checked,
                                  bool enabled)
{
    QWidget window;
    window.setAttribute(Qt::WA_DontShowOnScreen);
    auto* button = new QPushButton(&window);
    button->setObjectName(objectName);
    button->setFlat(true);
    button->setCheckable(true);
    button->setChecked(checked);
    button->setEnabled(enabled);
    button->setGeometry(QRect(QPoint(0, 0), size));
    window.resize(size);
    window.show();
    return button->grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

// Light pixels: the pictures are light strokes on the dark panels.
static int lightPixels(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x)
            count += qGray(line[x]) > 160 ? 1 : 0;
    }
    return count;
}

void TestStyleSheet::pictureButton_data()
{
    QTest::addColumn<QString>("objectName");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("checkable");

    const QSize usual(32, 32);
    QTest::newRow("RotateLeftButton") << "RotateLeftButton" << usual << false;
    QTest::newRow("RotateRightButton") << "RotateRightButton" << usual << false;
    QTest::newRow("MirrorVButton") << "MirrorVButton" << usual << true;
    QTest::newRow("MirrorHButton") << "MirrorHButton" << usual << true;
    QTest::newRow("DirectionButton") << "DirectionButton" << QSize(16, 16) << true;
    QTest::newRow("BoldButton") << "BoldButton" << usual << true;
    QTest::newRow("ItalicButton") << "ItalicButton" << usual << true;
    QTest::newRow("UnderlinedButton") << "UnderlinedButton" << usual << true;
    QTest::newRow("WMRBrowseButton") << "WMRBrowseButton" << usual << false;
    QTest::newRow("WMRShrinkButton") << "WMRShrinkButton" << usual << true;
    QTest::newRow("SettingsButton") << "SettingsButton" << QSize(36, 36) << false;
    QTest::newRow("PreviewButton") << "PreviewButton" << usual << false;
    QTest::newRow("IconViewButton") << "IconViewButton" << usual << true;
    QTest::newRow("PushButtonAdd") << "PushButtonAdd" << QSize(40, 40) << false;
    QTest::newRow("PushButtonRemove") << "PushButtonRemove" << QSize(40, 40) << false;
    QTest::newRow("NextImageButton") << "NextImageButton" << QSize(32, 48) << false;
    QTest::newRow("PreviousImageButton") << "PreviousImageButton" << QSize(32, 48) << false;
}

void TestStyleSheet::pictureButton()
{
    QFETCH(QString, objectName);
    QFETCH(QSize, size);
    QFETCH(bool, checkable);

    const QImage normal = grabButton(objectName, size, false, true);
    const QImage checked = grabButton(objectName, size, true, true);
    const QImage disabled = grabButton(objectName, size, false, false);

    // Without its picture an empty flat button would be one flat dark colour.
    QVERIFY2(lightPixels(normal) > 0, "no picture drawn");
    if (checkable)
        QVERIFY2(checked != normal, "checked looks like unchecked");
    QVERIFY2(lightPixels(disabled) < lightPixels(normal), "disabled is not dimmer");
}

PELODINE_TEST_MAIN(TestStyleSheet)

#include "tst_stylesheet.moc"
