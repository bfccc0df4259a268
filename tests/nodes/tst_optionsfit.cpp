// Every node's options fit the options area of the main window (731 x 175 inside its frame)
// under the program's own style sheet, in English and with words a quarter longer, as German
// and Russian captions are; no caption is cut off.
#include "app.h"
#include "basenode.h"
#include "nodesoptionspanel.h"
#include "nodetesthelpers.h"
#include "testutils.h"

#include <QGroupBox>
#include <QLabel>
#include <QScopeGuard>
#include <QTranslator>

namespace {
// The options area the main window leaves between the photos and the flow panel.
const QSize optionsArea(731, 175);

// Every text the program translates comes back longer by the given share of its letters, made
// of its own letters so that the widths stay those of real words. Rich texts stay as they are.
class LongerWords : public QTranslator
{
public:
    explicit LongerWords(int percent)
        : percent(percent)
    {
    }

    bool isEmpty() const override { return false; }

    QString translate(const char* /*context*/, const char* sourceText,
                      const char* /*disambiguation*/, int /*n*/) const override
    {
        const QString text = QString::fromUtf8(sourceText);
        if (text.startsWith('<'))
            return QString();
        QString letters;
        for (const QChar c : text) {
            if (c.isLetter())
                letters += c.toLower();
        }
        const int extra = (letters.size() * percent + 99) / 100;
        QString longer;
        while (longer.size() < extra)
            longer += letters.left(extra - longer.size());
        // Before any trailing punctuation: "Size:" becomes "Sizes:".
        int end = text.size();
        while (end > 0 && !text.at(end - 1).isLetter())
            --end;
        return text.left(end) + longer + text.mid(end);
    }

private:
    int percent;
};

} // namespace

class TestOptionsFit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void nodeFitsTheOptionsArea_data();
    void nodeFitsTheOptionsArea();
};

void TestOptionsFit::initTestCase()
{
    const QString styleSheet = OrkWidgets::App::resourceText(":/stylesheet.qss");
    QVERIFY(!styleSheet.isEmpty());
    qApp->setStyleSheet(styleSheet);
}

void TestOptionsFit::cleanupTestCase()
{
    qApp->setStyleSheet(QString());
}

void TestOptionsFit::nodeFitsTheOptionsArea_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("parameters");
    QTest::addColumn<int>("longerBy");

    const QStringList names = {"RGB-Order", "Brightness, Contrast, Saturation",
                               "Rotate",    "Blur",
                               "Invert",    "Mirror",
                               "Grayscale", "Crop",
                               "Resize",    "Histogram optimizer",
                               "Frame",     "Binarization",
                               "Vignetting"};
    for (const int percent : {0, 25}) {
        const QString words = percent ? QString(" %1% longer words").arg(percent) : QString();
        for (const QString& name : names)
            QTest::newRow(qPrintable(name + words)) << name << QString() << percent;
        QTest::newRow(qPrintable("Watermark text" + words))
            << "Watermark"
            << "<Parameters><Mode>0</Mode></Parameters>" << percent;
        QTest::newRow(qPrintable("Watermark logo" + words))
            << "Watermark"
            << "<Parameters><Mode>1</Mode></Parameters>" << percent;
    }
}

void TestOptionsFit::nodeFitsTheOptionsArea()
{
    QFETCH(QString, name);
    QFETCH(QString, parameters);
    QFETCH(int, longerBy);

    LongerWords longer(longerBy);
    if (longerBy > 0)
        qApp->installTranslator(&longer);
    const auto englishAfterwards = qScopeGuard([&longer] { qApp->removeTranslator(&longer); });

    NodesOptionsPanel panel;
    BaseNode* node = panel.createNode(name);
    QVERIFY(node);
    if (!parameters.isEmpty())
        NodeTest::readText(node, parameters);
    const QSize needed = panel.minimumSizeHint();
    QVERIFY2(needed.width() <= optionsArea.width() && needed.height() <= optionsArea.height(),
             qPrintable(QString("needs %1 x %2").arg(needed.width()).arg(needed.height())));

    panel.setFixedSize(optionsArea);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    const QList<QLabel*> labels = node->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        if (!label->isVisibleTo(node) || label->text().isEmpty())
            continue;
        const QSize wanted = label->sizeHint();
        QVERIFY2(wanted.width() <= label->width() && wanted.height() <= label->height(),
                 qPrintable(QString("\"%1\" needs %2 x %3, has %4 x %5")
                                .arg(label->text())
                                .arg(wanted.width())
                                .arg(wanted.height())
                                .arg(label->width())
                                .arg(label->height())));
        QVERIFY2(panel.rect().contains(QRect(label->mapTo(&panel, QPoint()), label->size())),
                 qPrintable(label->text()));
    }
    // The group box's own minimum holds its title with the check box.
    const auto* box = node->findChild<QGroupBox*>(QString(), Qt::FindDirectChildrenOnly);
    QVERIFY(box);
    QVERIFY2(box->minimumSizeHint().width() <= box->width(), qPrintable(box->title()));
}

PELODINE_TEST_MAIN(TestOptionsFit)
#include "tst_optionsfit.moc"
