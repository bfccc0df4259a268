#include "animatedlabel.h"
#include "clickableimagelabel.h"
#include "colorbutton.h"
#include "imagelabel.h"
#include "testutils.h"

#include <QColorDialog>
#include <QMovie>
#include <QSignalSpy>
#include <QTimer>

using OrkWidgets::AnimatedLabel;
using OrkWidgets::ClickableImageLabel;
using OrkWidgets::ColorButton;
using OrkWidgets::ImageLabel;

class TestNodeWidgets : public QObject
{
    Q_OBJECT

private slots:
    void clickableLabel_data();
    void clickableLabel();
    void colorButtonSetColor();
    void colorButtonShowsItsColour();
    void colorButtonDialog_data();
    void colorButtonDialog();
    void imageLabelPlacesItsAnimation();
    void animationRestsOnItsLastFrame();
};

void TestNodeWidgets::clickableLabel_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<QPoint>("release");
    QTest::addColumn<int>("clicks");
    QTest::newRow("left click") << int(Qt::LeftButton) << QPoint(10, 10) << 1;
    QTest::newRow("right click") << int(Qt::RightButton) << QPoint(10, 10) << 0;
    QTest::newRow("released outside") << int(Qt::LeftButton) << QPoint(100, 10) << 0;
}

void TestNodeWidgets::clickableLabel()
{
    QFETCH(int, button);
    QFETCH(QPoint, release);
    QFETCH(int, clicks);
    ClickableImageLabel label;
    label.setFixedSize(64, 64);
    QSignalSpy clicked(&label, &ClickableImageLabel::clicked);
    QTest::mousePress(&label, Qt::MouseButton(button), {}, QPoint(10, 10));
    QTest::mouseRelease(&label, Qt::MouseButton(button), {}, release);
    QCOMPARE(clicked.count(), clicks);
}

void TestNodeWidgets::colorButtonSetColor()
{
    ColorButton button(Qt::white);
    QCOMPARE(button.color(), QColor(Qt::white));
    QSignalSpy changes(&button, &ColorButton::colorChanged);
    button.setColor(QColor("#336699"));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.at(0).at(0).value<QColor>(), QColor("#336699"));
    button.setColor(QColor("#336699"));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(ColorButton().color(), QColor(Qt::black));
}

void TestNodeWidgets::colorButtonShowsItsColour()
{
    ColorButton button(QColor("#20a040"));
    const QImage swatch = button.icon().pixmap(button.iconSize()).toImage();
    QCOMPARE(QColor(swatch.pixel(swatch.width() / 2, swatch.height() / 2)), QColor("#20a040"));
}

void TestNodeWidgets::colorButtonDialog_data()
{
    QTest::addColumn<bool>("accept");
    QTest::addColumn<QColor>("expected");
    QTest::addColumn<int>("changes");
    QTest::newRow("accepted") << true << QColor("#abcdef") << 1;
    QTest::newRow("cancelled") << false << QColor("#102030") << 0;
}

void TestNodeWidgets::colorButtonDialog()
{
    QFETCH(bool, accept);
    QFETCH(QColor, expected);
    QFETCH(int, changes);
    ColorButton button(QColor("#102030"));
    QSignalSpy spy(&button, &ColorButton::colorChanged);
    QColor offered;
    QTimer::singleShot(0, [&offered, accept] {
        auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        offered = dialog->currentColor();
        dialog->setCurrentColor(QColor("#abcdef"));
        accept ? dialog->accept() : dialog->reject();
    });
    button.click();
    QCOMPARE(offered, QColor("#102030"));
    QCOMPARE(button.color(), expected);
    QCOMPARE(spy.count(), changes);
}

void TestNodeWidgets::imageLabelPlacesItsAnimation()
{
    ImageLabel label(":/initlabel_en.png");
    AnimatedLabel* arrow =
        label.addAnimation(":/arrow.gif", QSize(100, 100), Qt::AlignLeft | Qt::AlignBottom);
    label.resize(label.sizeHint() + QSize(50, 50));
    label.show();
    QVERIFY(QTest::qWaitForWindowExposed(&label));
    QCOMPARE(arrow->parentWidget(), &label);
    QCOMPARE(arrow->size(), QSize(100, 100));
    QCOMPARE(arrow->geometry().left(), 0);
    QCOMPARE(arrow->geometry().bottom(), label.height() - 1);
}

void TestNodeWidgets::animationRestsOnItsLastFrame()
{
    AnimatedLabel arrow(":/arrow.gif");
    QVERIFY(arrow.movie()->isValid());
    QVERIFY(arrow.movie()->frameCount() > 1);
    arrow.setRepeatDelay(60000);
    QCOMPARE(arrow.repeatDelay(), 60000);
    arrow.show();
    QTRY_COMPARE_WITH_TIMEOUT(arrow.movie()->state(), QMovie::Paused, 20000);
    QCOMPARE(arrow.movie()->currentFrameNumber(), arrow.movie()->frameCount() - 1);
    arrow.hide();
    QCOMPARE(arrow.movie()->state(), QMovie::Paused);
}

PELODINE_TEST_MAIN(TestNodeWidgets)
#include "tst_nodewidgets.moc"
