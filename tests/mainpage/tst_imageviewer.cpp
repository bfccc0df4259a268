// The large view's image viewer: fit, zoom, actual pixels, panning, stepping and leaving.
#include "imageviewer.h"
#include "photofixtures.h"
#include "testutils.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

class TestImageViewer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void fitsAtFirst_data();
    void fitsAtFirst();
    void zoomKeys_data();
    void zoomKeys();
    void wheelZoomKeepsPointUnderCursor_data();
    void wheelZoomKeepsPointUnderCursor();
    void zoomButtons_data();
    void zoomButtons();
    void dragPansWithinBounds_data();
    void dragPansWithinBounds();
    void noPanningWhenItFits();
    void sameSizeKeepsZoomOtherSizeFits();
    void navigation_data();
    void navigation();
    void heading();
    void leaving_data();
    void leaving();
    void paintsThePicture();

private:
    OrkWidgets::ImageViewer* viewer = nullptr;
};

namespace {

// Wide enough that its width decides the fit: 400 / 1000 = 0.4.
const QSize widePicture(1000, 100);

void drag(QWidget* widget, const QPoint& from, const QPoint& to)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, to, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, to);
}

} // namespace

void TestImageViewer::init()
{
    viewer = new OrkWidgets::ImageViewer;
    viewer->resize(400, 300);
    viewer->show();
    QVERIFY(QTest::qWaitForWindowExposed(viewer));
    viewer->setImage(PhotoFixtures::halvesPicture(widePicture.width(), widePicture.height()));
}

void TestImageViewer::cleanup()
{
    delete viewer;
    viewer = nullptr;
}

void TestImageViewer::fitsAtFirst_data()
{
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<double>("shownWidth");

    QTest::newRow("larger than the window") << QSize(1000, 100) << 0.4 << 400.0;
    QTest::newRow("smaller than the window") << QSize(200, 10) << 2.0 << 400.0;
}

void TestImageViewer::fitsAtFirst()
{
    QFETCH(QSize, picture);
    QFETCH(double, zoom);
    QFETCH(double, shownWidth);

    viewer->setImage(TestUtils::filledImage(picture.width(), picture.height(), 0xff808080));
    QVERIFY(viewer->isFitting());
    QCOMPARE(viewer->zoomFactor(), zoom);
    QCOMPARE(viewer->imageRect().left(), 0.0);
    QCOMPARE(viewer->imageRect().width(), shownWidth);
}

void TestImageViewer::zoomKeys_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<bool>("fitting");

    // Each step is a factor of 1.25 from the fitted 0.4.
    QTest::newRow("plus") << QList<int>{Qt::Key_Plus} << 0.5 << false;
    QTest::newRow("equals as plus") << QList<int>{Qt::Key_Equal} << 0.5 << false;
    QTest::newRow("minus") << QList<int>{Qt::Key_Minus} << 0.32 << false;
    QTest::newRow("plus twice") << QList<int>{Qt::Key_Plus, Qt::Key_Plus} << 0.625 << false;
    QTest::newRow("actual pixels") << QList<int>{Qt::Key_1} << 1.0 << false;
    QTest::newRow("actual then fit") << QList<int>{Qt::Key_1, Qt::Key_0} << 0.4 << true;
    QTest::newRow("zoomed then fit") << QList<int>{Qt::Key_Plus, Qt::Key_0} << 0.4 << true;
}

void TestImageViewer::zoomKeys()
{
    QFETCH(QList<int>, keys);
    QFETCH(double, zoom);
    QFETCH(bool, fitting);

    for (int key : keys)
        QTest::keyClick(viewer, Qt::Key(key));
    QCOMPARE(viewer->zoomFactor(), zoom);
    QCOMPARE(viewer->isFitting(), fitting);
    QCOMPARE(viewer->imageRect().width(), widePicture.width() * zoom);
}

void TestImageViewer::wheelZoomKeepsPointUnderCursor_data()
{
    QTest::addColumn<int>("delta");
    QTest::addColumn<double>("zoom");

    // From actual pixels, one step of 1.25 either way.
    QTest::newRow("wheel up zooms in") << 120 << 1.25;
    QTest::newRow("wheel down zooms out") << -120 << 0.8;
}

void TestImageViewer::wheelZoomKeepsPointUnderCursor()
{
    QFETCH(int, delta);
    QFETCH(double, zoom);

    // Actual pixels first, so that the picture is wider than the window either way.
    QTest::keyClick(viewer, Qt::Key_1);
    const QRectF before = viewer->imageRect();
    const QPointF cursor(300, before.center().y());
    const double pictureX = (cursor.x() - before.left()) / viewer->zoomFactor();

    QWheelEvent wheel(cursor, viewer->mapToGlobal(cursor.toPoint()), QPoint(), QPoint(0, delta),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(viewer, &wheel);

    QCOMPARE(viewer->zoomFactor(), zoom);
    const QRectF after = viewer->imageRect();
    QCOMPARE((cursor.x() - after.left()) / viewer->zoomFactor(), pictureX);
}

void TestImageViewer::zoomButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<double>("zoom");

    QTest::newRow("zoom in") << "ImageViewerZoomInButton" << 0.5;
    QTest::newRow("zoom out") << "ImageViewerZoomOutButton" << 0.32;
    QTest::newRow("actual pixels") << "ImageViewerActualButton" << 1.0;
    QTest::newRow("fit") << "ImageViewerFitButton" << 0.4;
}

void TestImageViewer::zoomButtons()
{
    QFETCH(QString, button);
    QFETCH(double, zoom);

    auto* pushButton = viewer->findChild<QPushButton*>(button);
    QVERIFY(pushButton);
    QVERIFY(pushButton->isVisible());
    pushButton->click();
    QCOMPARE(viewer->zoomFactor(), zoom);
}

void TestImageViewer::dragPansWithinBounds_data()
{
    QTest::addColumn<int>("dx");
    QTest::addColumn<double>("left");

    // At actual pixels the 1000 wide picture is centred on the 400 wide window: left -300.
    QTest::newRow("a little to the left") << -100 << -400.0;
    QTest::newRow("a little to the right") << 50 << -250.0;
    // The window stays covered: left between 400 - 1000 and 0.
    QTest::newRow("far to the left stops at the right edge") << -1000 << -600.0;
    QTest::newRow("far to the right stops at the left edge") << 500 << 0.0;
}

void TestImageViewer::dragPansWithinBounds()
{
    QFETCH(int, dx);
    QFETCH(double, left);

    QTest::keyClick(viewer, Qt::Key_1);
    QCOMPARE(viewer->imageRect().left(), -300.0);
    const double top = viewer->imageRect().top();
    const QPoint from(200, viewer->height() / 2);
    drag(viewer, from, from + QPoint(dx, 40));
    QCOMPARE(viewer->imageRect().left(), left);
    // Only 100 high: it stays centred vertically.
    QCOMPARE(viewer->imageRect().top(), top);
}

void TestImageViewer::noPanningWhenItFits()
{
    const QRectF fitted = viewer->imageRect();
    drag(viewer, QPoint(200, 150), QPoint(100, 120));
    QCOMPARE(viewer->imageRect(), fitted);
}

void TestImageViewer::sameSizeKeepsZoomOtherSizeFits()
{
    QTest::keyClick(viewer, Qt::Key_1);
    drag(viewer, QPoint(200, 150), QPoint(300, 150));
    const QRectF shown = viewer->imageRect();

    viewer->setImage(TestUtils::filledImage(1000, 100, 0xff00ff00));
    QCOMPARE(viewer->zoomFactor(), 1.0);
    QCOMPARE(viewer->imageRect(), shown);

    viewer->setImage(TestUtils::filledImage(800, 100, 0xff00ff00));
    QVERIFY(viewer->isFitting());
    QCOMPARE(viewer->zoomFactor(), 0.5);
}

void TestImageViewer::navigation_data()
{
    QTest::addColumn<bool>("hidden");

    QTest::newRow("two photos or more") << false;
    QTest::newRow("fewer than two photos") << true;
}

void TestImageViewer::navigation()
{
    QFETCH(bool, hidden);

    viewer->setNavigationHidden(hidden);
    QCOMPARE(viewer->isNavigationHidden(), hidden);
    auto* nextButton = viewer->findChild<QPushButton*>("NextImageButton");
    auto* previousButton = viewer->findChild<QPushButton*>("PreviousImageButton");
    QVERIFY(nextButton && previousButton);
    QCOMPARE(nextButton->isVisible(), !hidden);
    QCOMPARE(previousButton->isVisible(), !hidden);

    QSignalSpy next(viewer, &OrkWidgets::ImageViewer::next);
    QSignalSpy previous(viewer, &OrkWidgets::ImageViewer::previous);
    QTest::keyClick(viewer, Qt::Key_Right);
    QTest::keyClick(viewer, Qt::Key_Left);
    QTest::keyClick(viewer, Qt::Key_Left);
    QCOMPARE(next.count(), hidden ? 0 : 1);
    QCOMPARE(previous.count(), hidden ? 0 : 2);
    if (!hidden) {
        nextButton->click();
        previousButton->click();
        QCOMPARE(next.count(), 2);
        QCOMPARE(previous.count(), 3);
    }
}

void TestImageViewer::heading()
{
    viewer->setHeading("<H1>2 of 5</H1>");
    QCOMPARE(viewer->heading(), QString("<H1>2 of 5</H1>"));
    auto* label = viewer->findChild<QLabel*>("ImageViewerHeading");
    QVERIFY(label);
    QCOMPARE(label->text(), QString("<H1>2 of 5</H1>"));
    // The picture stays below the heading.
    QVERIFY(viewer->imageRect().top() > label->geometry().bottom());
}

void TestImageViewer::leaving_data()
{
    QTest::addColumn<bool>("byKey");

    QTest::newRow("Escape") << true;
    QTest::newRow("close button") << false;
}

void TestImageViewer::leaving()
{
    QFETCH(bool, byKey);

    QSignalSpy left(viewer, &OrkWidgets::ImageViewer::systemPreviewOpened);
    if (byKey)
        QTest::keyClick(viewer, Qt::Key_Escape);
    else
        viewer->findChild<QPushButton*>("ImageViewerCloseButton")->click();
    QCOMPARE(left.count(), 1);
}

void TestImageViewer::paintsThePicture()
{
    const QImage shot = viewer->grab().toImage();
    const int y = int(viewer->imageRect().center().y());
    // Red on the left half of the fitted picture, blue on the right.
    QCOMPARE(shot.pixel(100, y), qRgb(255, 0, 0));
    QCOMPARE(shot.pixel(300, y), qRgb(0, 0, 255));

    QTest::keyClick(viewer, Qt::Key_1);
    drag(viewer, QPoint(200, 150), QPoint(-300, 150));
    // Scrolled to the right end: all blue.
    const QImage scrolled = viewer->grab().toImage();
    QCOMPARE(scrolled.pixel(10, y), qRgb(0, 0, 255));
}

PELODINE_TEST_MAIN(TestImageViewer)
#include "tst_imageviewer.moc"
