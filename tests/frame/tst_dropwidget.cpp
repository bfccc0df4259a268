#include "dropwidget.h"
#include "testutils.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QSignalSpy>

using OrkWidgets::DropWidget;

class TestDropWidget : public QObject
{
    Q_OBJECT

private slots:
    void dragAcceptance_data();
    void dragAcceptance();
    void dropEmitsTheUrlsInOrder();
};

void TestDropWidget::dragAcceptance_data()
{
    QTest::addColumn<QString>("mimeType");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("uri list") << "text/uri-list" << true;
    QTest::newRow("plain text") << "text/plain" << false;
    QTest::newRow("image") << "image/png" << false;
}

void TestDropWidget::dragAcceptance()
{
    QFETCH(QString, mimeType);
    QFETCH(bool, accepted);
    DropWidget widget;
    QMimeData data;
    data.setData(mimeType, "file:///tmp/a.jpg\r\n");
    QDragEnterEvent event(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    event.ignore();
    QApplication::sendEvent(&widget, &event);
    QCOMPARE(event.isAccepted(), accepted);
}

void TestDropWidget::dropEmitsTheUrlsInOrder()
{
    DropWidget widget;
    QSignalSpy dropped(&widget, &DropWidget::dropped);
    const QList<QUrl> urls = {QUrl::fromLocalFile("/photos/b.jpg"),
                              QUrl::fromLocalFile("/photos/a.jpg")};
    QMimeData data;
    data.setUrls(urls);
    // A real drop is always preceded by the drag entering the window.
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &enter);
    QDropEvent event(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
    QCOMPARE(dropped.count(), 1);
    QCOMPARE(dropped.first().first().value<QList<QUrl>>(), urls);
}

PELODINE_TEST_MAIN(TestDropWidget)

#include "tst_dropwidget.moc"
