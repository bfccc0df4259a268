// The large view's image viewer: fit, zoom, panning, stepping and leaving.
#include "imageviewer.h"
#include "testutils.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using OrkWidgets::ImageViewer;
using TestUtils::addRow;

class TestImageViewer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void zoomAndPan_data();
    void zoomAndPan();
    void stepsAndLeaving();
    void paintsThePicture();

private:
    ImageViewer* viewer = nullptr;
};

void TestImageViewer::init()
{
    viewer = new ImageViewer;
    viewer->resize(400, 300);
    viewer->show();
    QVERIFY(QTest::qWaitForWindowExposed(viewer));
    // Wide enough that the window's width decides the fit: 400 / 1000 = 0.4.
    viewer->setImage(TestUtils::halvesPicture(1000, 100));
}

void TestImageViewer::cleanup()
{
    delete viewer;
}

namespace {

void drag(QWidget* widget, const QPoint& from, const QPoint& to)
{
    QTest::mousePress(widget, Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, to, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
    QTest::mouseRelease(widget, Qt::LeftButton, Qt::NoModifier, to);
}

} // namespace

void TestImageViewer::zoomAndPan_data()
{
    QTest::addColumn<QSize>("picture");
    // One character: a key; "up", "down": the wheel at x 300; "drag:dx": a drag from x 200;
    // "new:WxH": a new picture; otherwise the name of a button.
    QTest::addColumn<QString>("actions");
    QTest::addColumn<double>("zoom");
    QTest::addColumn<bool>("fitting");
    QTest::addColumn<double>("left");

    // Each step is a factor of 1.25, around the middle of the 400 wide window (x 200) or
    // around the pointer; narrower than the window the picture is centred, wider it covers it.
    const QSize wide(1000, 100);
    addRow("fitted at first", wide, QString(), 0.4, true, 0.0);
    addRow("small picture enlarged to fit", QSize(200, 10), QString(), 2.0, true, 0.0);
    addRow("+ key", wide, QString("+"), 0.5, false, -50.0);
    addRow("- key", wide, QString("-"), 0.32, false, 40.0);
    addRow("1 key shows actual pixels", wide, QString("1"), 1.0, false, -300.0);
    addRow("0 key fits again", wide, QString("+ + 0"), 0.4, true, 0.0);
    addRow("zoom in button", wide, QString("ZoomIn"), 0.5, false, -50.0);
    addRow("zoom out button", wide, QString("ZoomOut"), 0.32, false, 40.0);
    addRow("actual pixels button", wide, QString("Actual"), 1.0, false, -300.0);
    addRow("fit button", wide, QString("1 Fit"), 0.4, true, 0.0);
    // Picture x 600 stays under the pointer.
    addRow("wheel up zooms in", wide, QString("1 up"), 1.25, false, -450.0);
    addRow("wheel down zooms out", wide, QString("1 down"), 0.8, false, -180.0);
    addRow("fitted picture does not pan", wide, QString("drag:-100"), 0.4, true, 0.0);
    addRow("drag pans", wide, QString("1 drag:-100"), 1.0, false, -400.0);
    addRow("far left stops at the right edge", wide, QString("1 drag:-1000"), 1.0, false, -600.0);
    addRow("far right stops at the left edge", wide, QString("1 drag:500"), 1.0, false, 0.0);
    addRow("new picture of the same size keeps zoom and place", wide,
           QString("1 drag:100 new:1000x100"), 1.0, false, -200.0);
    addRow("new picture of another size is fitted", wide, QString("1 new:800x100"), 0.5, true, 0.0);
}

void TestImageViewer::zoomAndPan()
{
    QFETCH(QSize, picture);
    QFETCH(QString, actions);
    QFETCH(double, zoom);
    QFETCH(bool, fitting);
    QFETCH(double, left);

    // The picture is no more than 125 high, so it stays centred vertically.
    const double middle = viewer->imageRect().center().y();
    viewer->setImage(TestUtils::filledImage(picture.width(), picture.height(), 0xff808080));
    for (const QString& action : actions.split(' ', Qt::SkipEmptyParts)) {
        const bool wheel = action == "up" || action == "down";
        const QPoint at(wheel ? 300 : 200, int(middle));
        if (action.size() == 1) {
            QTest::keyClick(viewer, action.at(0).toLatin1());
        } else if (wheel) {
            QWheelEvent event(at, viewer->mapToGlobal(at), QPoint(),
                              QPoint(0, action == "up" ? 120 : -120), Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(viewer, &event);
        } else if (action.startsWith("drag:")) {
            drag(viewer, at, at + QPoint(action.mid(5).toInt(), 40));
        } else if (action.startsWith("new:")) {
            const QStringList size = action.mid(4).split('x');
            viewer->setImage(TestUtils::filledImage(size[0].toInt(), size[1].toInt(), 0xff00ff00));
        } else {
            viewer->findChild<QPushButton*>("ImageViewer" + action + "Button")->click();
        }
    }
    QCOMPARE(viewer->zoomFactor(), zoom);
    QCOMPARE(viewer->isFitting(), fitting);
    const QSizeF shown = QSizeF(viewer->image().size()) * zoom;
    QCOMPARE(viewer->imageRect(), QRectF(QPointF(left, middle - shown.height() / 2), shown));
}

void TestImageViewer::stepsAndLeaving()
{
    QSignalSpy next(viewer, &ImageViewer::next);
    QSignalSpy previous(viewer, &ImageViewer::previous);
    QSignalSpy left(viewer, &ImageViewer::systemPreviewOpened);
    auto* nextButton = viewer->findChild<QPushButton*>("NextImageButton");
    auto* previousButton = viewer->findChild<QPushButton*>("PreviousImageButton");
    QTest::keyClick(viewer, Qt::Key_Right);
    QTest::keyClick(viewer, Qt::Key_Left);
    nextButton->click();
    previousButton->click();
    // As for a single photo: the step buttons go and the arrow keys do nothing.
    viewer->setNavigationHidden(true);
    QVERIFY(!nextButton->isVisible() && !previousButton->isVisible());
    QTest::keyClick(viewer, Qt::Key_Right);
    QTest::keyClick(viewer, Qt::Key_Left);
    QCOMPARE(next.count(), 2);
    QCOMPARE(previous.count(), 2);

    QTest::keyClick(viewer, Qt::Key_Escape);
    viewer->findChild<QPushButton*>("ImageViewerCloseButton")->click();
    QCOMPARE(left.count(), 2);
}

void TestImageViewer::paintsThePicture()
{
    const int y = int(viewer->imageRect().center().y());
    // Fitted: red on the left half, blue on the right.
    const QImage fitted = viewer->grab().toImage();
    QCOMPARE(fitted.pixel(100, y), qRgb(255, 0, 0));
    QCOMPARE(fitted.pixel(300, y), qRgb(0, 0, 255));
    // Actual pixels, scrolled to the right end: all blue.
    QTest::keyClick(viewer, Qt::Key_1);
    drag(viewer, QPoint(200, y), QPoint(-300, y));
    QCOMPARE(viewer->grab().toImage().pixel(10, y), qRgb(0, 0, 255));

    // A picture as tall as the room makes way for a heading above it.
    viewer->setImage(TestUtils::filledImage(100, 1000, 0xff808080));
    viewer->setHeading("<H1>2 of 5</H1>");
    const auto* heading = viewer->findChild<QLabel*>("ImageViewerHeading");
    QTRY_COMPARE(heading->height(), heading->sizeHint().height());
    QVERIFY(viewer->imageRect().top() > heading->geometry().bottom());
}

PELODINE_TEST_MAIN(TestImageViewer)
#include "tst_imageviewer.moc"
