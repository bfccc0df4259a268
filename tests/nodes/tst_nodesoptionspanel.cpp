#include "app.h"
#include "basenode.h"
#include "comboslider.h"
#include "commondata.h"
#include "directionswidget.h"
#include "nodesoptionspanel.h"
#include "nodetesthelpers.h"
#include "testutils.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMovie>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>

class TestNodesOptionsPanel : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void comboSliderTyping_data();
    void comboSliderTyping();
    void comboSliderSliderAndCalls();
    void comboSliderUnitAndTitle();
    void directionsStartBottomRight();
    void directionsClick_data();
    void directionsClick();
    void directionsSetDirectionIsSilent();
    void previewReduction_data();
    void previewReduction();
    void previewModeFollowsTheFlag();
    void setImageKeepsARGB32AndReportsRealPreview();
    void createNode_data();
    void createNode();
    void showOptions();
    void flowRunsInPositionOrder();
    void parameterChangeRunsTheFlow();
    void nodeRemoved();
    void startPage();
};

void TestNodesOptionsPanel::cleanup()
{
    CommonData::instance()->previewMode = 1;
}

void TestNodesOptionsPanel::comboSliderTyping_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QList<int>>("moves");
    QTest::newRow("one digit") << "7" << QList<int>{7};
    // Every change of the value is reported once, also the one on the way to 42.
    QTest::newRow("two digits") << "42" << QList<int>{4, 42};
    QTest::newRow("back to the same value") << "10" << QList<int>{1, 10};
}

void TestNodesOptionsPanel::comboSliderTyping()
{
    QFETCH(QString, typed);
    QFETCH(QList<int>, moves);
    ComboSlider combo;
    combo.setRange(0, 100);
    combo.setValue(10);
    auto* slider = combo.findChild<QSlider*>();
    auto* spin = combo.findChild<QSpinBox*>();
    QSignalSpy moved(&combo, &ComboSlider::sliderMoved);
    QSignalSpy sliderOwn(slider, &QSlider::valueChanged);

    spin->selectAll();
    QTest::keyClicks(spin, typed);

    QCOMPARE(moved.count(), moves.size());
    for (int i = 0; i < moves.size(); ++i)
        QCOMPARE(moved.at(i).at(0).toInt(), moves.at(i));
    QCOMPARE(sliderOwn.count(), 0);
    QCOMPARE(slider->value(), typed.toInt());
    QCOMPARE(combo.value(), typed.toInt());
}

void TestNodesOptionsPanel::comboSliderSliderAndCalls()
{
    ComboSlider combo;
    combo.setRange(-10, 10);
    auto* slider = combo.findChild<QSlider*>();
    auto* spin = combo.findChild<QSpinBox*>();
    QSignalSpy moved(&combo, &ComboSlider::sliderMoved);

    slider->setValue(5);
    QCOMPARE(moved.count(), 1);
    QCOMPARE(spin->value(), 5);

    combo.setValue(-3);
    QCOMPARE(moved.count(), 2);
    QCOMPARE(moved.last().at(0).toInt(), -3);
    QCOMPARE(slider->value(), -3);

    combo.setValue(-3);
    QCOMPARE(moved.count(), 2);

    combo.setValue(99);
    QCOMPARE(combo.value(), 10);
    QCOMPARE(spin->value(), 10);
    QCOMPARE(moved.count(), 3);

    // Narrowing the range pulls the value in, once.
    combo.setRange(0, 4);
    QCOMPARE(combo.value(), 4);
    QCOMPARE(spin->value(), 4);
    QCOMPARE(moved.count(), 4);
}

void TestNodesOptionsPanel::comboSliderUnitAndTitle()
{
    ComboSlider untitled;
    QList<QLabel*> labels = untitled.findChildren<QLabel*>();
    QCOMPARE(labels.size(), 2);
    QVERIFY(labels.at(0)->isHidden());
    QVERIFY(labels.at(1)->isHidden());
    untitled.setUnit("%");
    QVERIFY(!labels.at(1)->isHidden());
    QCOMPARE(labels.at(1)->text(), QString("%"));
    untitled.setUnit(QString());
    QVERIFY(labels.at(1)->isHidden());

    ComboSlider titled("Blur:");
    QVERIFY(!titled.findChildren<QLabel*>().at(0)->isHidden());
    auto* slider = titled.findChild<QSlider*>();
    QCOMPARE(slider->tickPosition(), QSlider::TicksBothSides);
    QCOMPARE(slider->tickInterval(), 20);
    QCOMPARE(slider->orientation(), Qt::Horizontal);
}

void TestNodesOptionsPanel::directionsStartBottomRight()
{
    DirectionsWidget directions;
    QCOMPARE(directions.direction(), BottomRight);
    const QList<QPushButton*> buttons = directions.findChildren<QPushButton*>("DirectionButton");
    QCOMPARE(buttons.size(), 9);
    for (int cell = 0; cell < 9; ++cell) {
        QCOMPARE(buttons.at(cell)->isChecked(), cell == 8);
        QVERIFY(buttons.at(cell)->isFlat() && buttons.at(cell)->isCheckable());
        QCOMPARE(buttons.at(cell)->size(), QSize(16, 16));
    }
    QCOMPARE(directions.findChild<QGroupBox*>()->size(), QSize(58, 58));
}

void TestNodesOptionsPanel::directionsClick_data()
{
    QTest::addColumn<QList<int>>("clicks");
    QTest::addColumn<QList<int>>("emitted");
    QTest::newRow("centre") << QList<int>{4} << QList<int>{4};
    QTest::newRow("top left then bottom middle") << QList<int>{0, 7} << QList<int>{0, 7};
    QTest::newRow("the checked one again stays") << QList<int>{8} << QList<int>{8};
    QTest::newRow("twice the same") << QList<int>{3, 3} << QList<int>{3, 3};
}

void TestNodesOptionsPanel::directionsClick()
{
    QFETCH(QList<int>, clicks);
    QFETCH(QList<int>, emitted);
    DirectionsWidget directions;
    const QList<QPushButton*> buttons = directions.findChildren<QPushButton*>("DirectionButton");
    QSignalSpy changes(&directions, &DirectionsWidget::directionChanged);
    for (int cell : clicks)
        buttons.at(cell)->click();
    QCOMPARE(changes.count(), emitted.size());
    for (int i = 0; i < emitted.size(); ++i)
        QCOMPARE(changes.at(i).at(0).value<Direction>(), Direction(emitted.at(i)));
    for (int cell = 0; cell < 9; ++cell)
        QCOMPARE(buttons.at(cell)->isChecked(), cell == clicks.last());
    QCOMPARE(int(directions.direction()), clicks.last());
}

void TestNodesOptionsPanel::directionsSetDirectionIsSilent()
{
    DirectionsWidget directions;
    QSignalSpy changes(&directions, &DirectionsWidget::directionChanged);
    directions.setDirection(MiddleLeft);
    QCOMPARE(changes.count(), 0);
    QCOMPARE(directions.direction(), MiddleLeft);
    const QList<QPushButton*> buttons = directions.findChildren<QPushButton*>("DirectionButton");
    for (int cell = 0; cell < 9; ++cell)
        QCOMPARE(buttons.at(cell)->isChecked(), cell == MiddleLeft);
}

void TestNodesOptionsPanel::previewReduction_data()
{
    QTest::addColumn<int>("previewMode");
    QTest::addColumn<QSize>("photo");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("wide photo fits 360") << 1 << QSize(2000, 1000) << QSize(360, 180);
    QTest::newRow("tall photo narrower than 360 stays") << 1 << QSize(300, 900) << QSize(300, 900);
    QTest::newRow("exactly 360 wide stays") << 1 << QSize(360, 2000) << QSize(360, 2000);
    QTest::newRow("361 wide is reduced") << 1 << QSize(361, 361) << QSize(360, 360);
    QTest::newRow("full size while the large view is open")
        << 0 << QSize(2000, 1000) << QSize(2000, 1000);
}

void TestNodesOptionsPanel::previewReduction()
{
    QFETCH(int, previewMode);
    QFETCH(QSize, photo);
    QFETCH(QSize, expected);
    QCOMPARE(OrkWidgets::App::devicePixelRatio(), 1.0);
    CommonData::instance()->previewMode = previewMode;

    const QImage source = NodeTest::photo(photo.width(), photo.height());
    NodesOptionsPanel panel;
    QSignalSpy images(&panel, &NodesOptionsPanel::imageChanged);
    panel.setImage(source);
    QCOMPARE(images.count(), 1);
    const QImage result = images.at(0).at(0).value<QImage>();
    QCOMPARE(result.size(), expected);
    // An empty flow hands on the working copy itself.
    const QImage working =
        source.width() > 360 && previewMode
            ? source.scaled(360, 360, Qt::KeepAspectRatio, Qt::SmoothTransformation)
            : source;
    QCOMPARE_IMAGES(result, working);
}

void TestNodesOptionsPanel::previewModeFollowsTheFlag()
{
    NodesOptionsPanel panel;
    QSignalSpy images(&panel, &NodesOptionsPanel::imageChanged);
    panel.setImage(NodeTest::photo(2000, 1000));
    QCOMPARE(images.last().at(0).value<QImage>().size(), QSize(360, 180));
    CommonData::instance()->previewMode = 0;
    panel.slotParametersChanged();
    QCOMPARE(images.last().at(0).value<QImage>().size(), QSize(2000, 1000));
    CommonData::instance()->previewMode = 1;
    panel.slotParametersChanged();
    QCOMPARE(images.last().at(0).value<QImage>().size(), QSize(360, 180));
    // Another photo is reduced afresh.
    panel.setImage(NodeTest::photo(720, 720));
    QCOMPARE(images.last().at(0).value<QImage>().size(), QSize(360, 360));
}

void TestNodesOptionsPanel::setImageKeepsARGB32AndReportsRealPreview()
{
    NodesOptionsPanel panel;
    QStringList order;
    connect(&panel, &NodesOptionsPanel::imageChanged, [&order] { order << "image"; });
    connect(&panel, &NodesOptionsPanel::realPreview, [&order] { order << "real"; });
    panel.setImage(NodeTest::photo().convertToFormat(QImage::Format_RGB888));
    QCOMPARE(order, (QStringList{"image", "real"}));
    QCOMPARE(panel.sourceImage().format(), QImage::Format_ARGB32);

    order.clear();
    panel.slotParametersChanged();
    QCOMPARE(order, QStringList{"image"});
}

void TestNodesOptionsPanel::createNode_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("known");
    QTest::newRow("Watermark") << "Watermark" << true;
    QTest::newRow("Histogram optimizer") << "Histogram optimizer" << true;
    QTest::newRow("unknown") << "Sharpness" << false;
    QTest::newRow("letter case") << "watermark" << false;
}

void TestNodesOptionsPanel::createNode()
{
    QFETCH(QString, name);
    QFETCH(bool, known);
    NodesOptionsPanel panel;
    auto* stack = panel.findChild<QStackedWidget*>();
    QCOMPARE(stack->count(), 1);
    BaseNode* node = panel.createNode(name);
    QCOMPARE(node != nullptr, known);
    QCOMPARE(stack->count(), known ? 2 : 1);
    if (!known) {
        QCOMPARE(stack->currentIndex(), 0);
        return;
    }
    QCOMPARE(node->name(), name);
    QCOMPARE(stack->currentWidget(), node);
    QVERIFY(!node->parentWidget() || node->parentWidget() == stack);

    QSignalSpy images(&panel, &NodesOptionsPanel::imageChanged);
    emit node->parametersChanged();
    QCOMPARE(images.count(), 1);
}

void TestNodesOptionsPanel::showOptions()
{
    NodesOptionsPanel panel;
    auto* stack = panel.findChild<QStackedWidget*>();
    BaseNode* first = panel.createNode("Blur");
    BaseNode* second = panel.createNode("Crop");
    QCOMPARE(stack->currentWidget(), second);
    panel.slotShowOptions(first);
    QCOMPARE(stack->currentWidget(), first);
    panel.slotShowOptions(nullptr);
    QCOMPARE(stack->currentWidget(), first);
}

void TestNodesOptionsPanel::flowRunsInPositionOrder()
{
    NodesOptionsPanel panel;
    BaseNode* invert = panel.createNode("Invert");
    BaseNode* crop = panel.createNode("Crop");
    BaseNode* grey = panel.createNode("Grayscale");
    NodeTest::readText(crop, "<Parameters><Left>50</Left></Parameters>");
    grey->setActive(false);

    // Crop the left half away, then invert; the switched-off grey node passes through.
    QImage photo(4, 2, QImage::Format_ARGB32);
    for (int x = 0; x < 4; ++x) {
        photo.setPixel(x, 0, qRgb(10 * x, 20, 30));
        photo.setPixel(x, 1, qRgb(40, 10 * x, 50));
    }
    QImage expected(2, 2, QImage::Format_ARGB32);
    for (int x = 0; x < 2; ++x) {
        expected.setPixel(x, 0, qRgb(255 - 10 * (x + 2), 235, 225));
        expected.setPixel(x, 1, qRgb(215, 255 - 10 * (x + 2), 205));
    }

    QSignalSpy images(&panel, &NodesOptionsPanel::imageChanged);
    panel.slotFlowChanged({{0, crop}, {1, grey}, {2, invert}});
    QCOMPARE(panel.flow().size(), 3);
    panel.setImage(photo);
    QCOMPARE_IMAGES(images.last().at(0).value<QImage>(), expected);
}

void TestNodesOptionsPanel::parameterChangeRunsTheFlow()
{
    NodesOptionsPanel panel;
    panel.setImage(TestUtils::filledImage(3, 3, qRgb(100, 100, 100)));
    BaseNode* threshold = panel.createNode("Binarization");
    panel.slotFlowChanged({{0, threshold}});
    QSignalSpy images(&panel, &NodesOptionsPanel::imageChanged);
    NodeTest::readText(threshold, "<Parameters><Threshold>101</Threshold></Parameters>");
    QVERIFY(images.count() >= 1);
    QCOMPARE_IMAGES(images.last().at(0).value<QImage>(),
                    TestUtils::filledImage(3, 3, qRgb(0, 0, 0)));
}

void TestNodesOptionsPanel::nodeRemoved()
{
    NodesOptionsPanel panel;
    auto* stack = panel.findChild<QStackedWidget*>();
    panel.setImage(TestUtils::filledImage(2, 2, qRgb(0, 0, 0)));
    BaseNode* invert = panel.createNode("Invert");
    QPointer<BaseNode> removed = panel.createNode("Grayscale");
    panel.slotFlowChanged({{0, removed}, {1, invert}});

    QSignalSpy images(&panel, &NodesOptionsPanel::imageChanged);
    panel.slotNodeRemoved({{0, invert}}, removed, invert);
    QCOMPARE(stack->count(), 2);
    QCOMPARE(stack->currentWidget(), invert);
    QCOMPARE(panel.flow().size(), 1);
    QCOMPARE(images.count(), 1);
    QCOMPARE_IMAGES(images.last().at(0).value<QImage>(),
                    TestUtils::filledImage(2, 2, qRgb(255, 255, 255)));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(removed.isNull());
}

void TestNodesOptionsPanel::startPage()
{
    NodesOptionsPanel panel;
    auto* stack = panel.findChild<QStackedWidget*>();
    QCOMPARE(panel.minimumHeight(), 175);
    auto* start = qobject_cast<QLabel*>(stack->widget(0));
    QVERIFY(start && !start->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE_IMAGES(start->pixmap(Qt::ReturnByValue).toImage(), QImage(":/initlabel_en.png"));
    const QList<QLabel*> children = start->findChildren<QLabel*>();
    QCOMPARE(children.size(), 1);
    QCOMPARE(children.at(0)->size(), QSize(100, 100));
    QVERIFY(children.at(0)->movie() && children.at(0)->movie()->isValid());
}

PELODINE_TEST_MAIN(TestNodesOptionsPanel)
#include "tst_nodesoptionspanel.moc"
