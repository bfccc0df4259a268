// The operation nodes as the rest of the program sees them (catalogue, parameter text, live run
// against the batch's headless form, controls) and the options panel that runs the flow.
#include "app.h"
#include "basenode.h"
#include "bcsnode.h"
#include "binnode.h"
#include "blrnode.h"
#include "clrnode.h"
#include "colorbutton.h"
#include "commondata.h"
#include "crpnode.h"
#include "flowoperations.h"
#include "flowtext.h"
#include "frmnode.h"
#include "hstnode.h"
#include "nodecatalogue.h"
#include "nodesoptionspanel.h"
#include "rsznode.h"
#include "shsnode.h"
#include "testutils.h"
#include "ucsnode.h"
#include "ui/comboslider.h"
#include "wmrnode.h"

#include <QBuffer>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTranslator>
#include <QtConcurrent/QtConcurrentRun>

#include <memory>

using TestUtils::addColumns;
using TestUtils::addRow;
using TestUtils::fetch;

namespace {
// An opaque picture whose every pixel differs from its neighbours in all channels.
QImage photo(int width = 48, int height = 36)
{
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x * 255 / width, y * 255 / height, (x * 7 + y * 13) % 256));
    }
    return image;
}

// The elements of "key=value|key=value", in order, each between the two affixes.
QString elements(const QString& keys, const QString& before = {}, const QString& after = {})
{
    QString text;
    for (const auto& key : TestUtils::keyValues(keys)) {
        if (!key.first.isEmpty())
            text += before + "<" + key.first + ">" + key.second + "</" + key.first + ">" + after;
    }
    return text;
}

// The parameter text as the nodes write it: indentation 1, one child a line.
QString parametersText(const QString& active, const QString& keys = {})
{
    return "<Parameters>\n <Active>" + active + "</Active>\n" + elements(keys, " ", "\n") +
           "</Parameters>\n";
}

// Hands a parameter text, or keys as "key=value|key=value", to the node as a flow loader does.
void load(BaseNode* node, const QString& text)
{
    QDomDocument document;
    document.setContent(text.startsWith('<') ? text
                                             : "<Parameters>" + elements(text) + "</Parameters>");
    node->readParameters(document.documentElement());
}

std::unique_ptr<BaseNode> newNode(const QString& name)
{
    return std::unique_ptr<BaseNode>(createNodeByName(name));
}

QString dataUri(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return "data:image/png;base64," + QString::fromLatin1(bytes.toBase64());
}

QImage lastImage(const QSignalSpy& spy)
{
    return spy.last().at(0).value<QImage>();
}

// Every text the program translates comes back a quarter longer, as German and Russian
// captions are; rich texts stay as they are. It notes the texts it is asked for.
class LongerWords : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int) const override
    {
        const QString text = QString::fromUtf8(source);
        asked << text;
        const QString letters = text.toLower().remove(QRegularExpression("\\P{L}"));
        // Before any trailing punctuation: "Size:" becomes "Sizes:".
        const int end = text.lastIndexOf(QRegularExpression("\\p{L}")) + 1;
        return text.startsWith('<')
                   ? QString()
                   : text.left(end) + letters.left((letters.size() + 3) / 4) + text.mid(end);
    }
    mutable QStringList asked;
};

// A flow of the given steps, each a name and its key=value pairs in the order given.
using Steps = QVector<QPair<QString, QVector<QPair<QString, QString>>>>;
QString flowOf(const Steps& steps)
{
    QString text = "<OperationsFlow>";
    for (int i = 0; i < steps.size(); ++i) {
        text +=
            QString("<Operation name=\"%1\" index=\"%2\"><Parameters>").arg(steps[i].first).arg(i);
        for (const auto& [key, value] : steps[i].second)
            text += QString("<%1>%2</%1>").arg(key, value.toHtmlEscaped());
        text += "</Parameters></Operation>";
    }
    return text + "</OperationsFlow>";
}

// What the window makes of a flow: its nodes, then the active ones' names and texts.
BatchOperations windowOperations(const QString& flow)
{
    std::vector<std::unique_ptr<BaseNode>> nodes;
    FlowText::createNodes(flow, [&nodes](const QString& name) {
        nodes.emplace_back(createNodeByName(name));
        return nodes.back().get();
    });
    BatchOperations operations;
    for (const auto& node : nodes) {
        if (node && node->isActive())
            operations.append({node->name(), node->parametersText()});
    }
    return operations;
}

// The controls a node builds from its table carry the table's range, step, ticks, unit and
// default, and a value 1000 beyond either end loads as that end.
template <typename Node> void checkControlsAgainstTable()
{
    Node node;
    for (const auto& key : Node::Operation::table().keys()) {
        const QString where = QString(Node::Name) + " " + key.name;
        QObject* control = node.controlFor(key.name);
        if (key.kind == ParamKind::Slider) {
            const auto* slider = qobject_cast<ComboSlider*>(control);
            QVERIFY2(slider && slider->minimum() == key.range.minimum &&
                         slider->maximum() == key.range.maximum &&
                         slider->singleStep() == key.range.singleStep &&
                         slider->tickInterval() == key.range.tickInterval &&
                         slider->unit() == QString::fromUtf8(key.unit) &&
                         slider->value() == key.uiDefault.toInt(),
                     qPrintable(where));
        } else if (key.kind == ParamKind::SpinBox) {
            const auto* box = qobject_cast<QSpinBox*>(control);
            QVERIFY2(box && box->minimum() == key.range.minimum &&
                         box->maximum() == key.range.maximum &&
                         box->value() == key.uiDefault.toInt(),
                     qPrintable(where));
        } else {
            continue;
        }
        for (const int end : {key.range.minimum, key.range.maximum}) {
            QDomDocument document;
            document.setContent(QString("<P><%1>%2</%1></P>")
                                    .arg(key.name)
                                    .arg(end + (end == key.range.minimum ? -1000 : 1000)));
            node.readParameters(document.documentElement());
            document.setContent(node.parametersText());
            QVERIFY2(document.documentElement().firstChildElement(key.name).text() ==
                         QString::number(end),
                     qPrintable(where));
        }
    }
}

} // namespace

class TestNodes : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir folder;

private slots:
    void cleanup() { CommonData::instance()->previewMode = 1; }

    void controlsFollowTheTables()
    {
        checkControlsAgainstTable<BCSNode>();
        checkControlsAgainstTable<HSTNode>();
        checkControlsAgainstTable<CRPNode>();
        checkControlsAgainstTable<FRMNode>();
        checkControlsAgainstTable<BLRNode>();
        checkControlsAgainstTable<UCSNode>();
        checkControlsAgainstTable<BINNode>();
        checkControlsAgainstTable<RSZNode>();
        checkControlsAgainstTable<WMRNode>();
    }

    void catalogue()
    {
        QCOMPARE(factoryNodeNames(),
                 QString("RGB-Order|Brightness, Contrast, Saturation|Rotate|Blur|Invert|Mirror|"
                         "Grayscale|Watermark|Crop|Resize|Histogram optimizer|Frame|"
                         "Binarization|Vignetting")
                     .split('|'));
        // Only the exact name makes a node; the dormant nodes are never made.
        for (const char* name : {"blur", "Blur ", "Sharpness", "Colorize", ""})
            QVERIFY2(!createNodeByName(name), name);
        // The dormant nodes keep their old names and store nothing but Active.
        SHSNode sharpness;
        CLRNode colorize;
        QCOMPARE(sharpness.name() + colorize.name(), QString("BlurColorize"));
        QCOMPARE(sharpness.parametersText() + colorize.parametersText(),
                 parametersText("yes") + parametersText("yes"));
    }

    void everyNode_data()
    {
        addColumns<QString, QString, QString>("name", "keys", "caption");
        // Every key away from its default, so that a key the reader or the writer drops shows.
        const QString watermark =
            "Size=35|Text=Copyright 2026 Ünïcode|Position=TopMiddle|Expand=yes|Bold=yes|"
            "Italic=yes|Underlined=yes|XOffset=-12|YOffset=7|Transparency=10|Color=#12ab34|"
            "Background=#fedcba|BackgroundEnabled=yes|Font=DejaVu Sans|ImageData=" +
            dataUri(TestUtils::halvesPicture(8, 2, 0xffffff00, 0xff0000ff), "PNG") +
            "|ImageName=mylogo.jpg";
        const QString none = "<H2>No options</H2>";
        addRow("RGB-Order", "RGB-Order", "Mode=2", "");
        addRow("BCS", "Brightness, Contrast, Saturation",
               "Brightness=-40|Contrast=25|Saturation=30", "");
        addRow("Rotate", "Rotate", "Angle=-90", "");
        addRow("Blur", "Blur", "Radius=15", "");
        addRow("Invert", "Invert", "", none);
        addRow("Mirror", "Mirror", "Horizontal=no|Vertical=yes", "");
        addRow("Grayscale", "Grayscale", "", none);
        addRow("Watermark text", "Watermark", "Mode=0|" + watermark, "");
        addRow("Watermark logo", "Watermark", "Mode=1|" + watermark, "");
        // The translations know the bottom margin by its old spelling.
        addRow("Crop", "Crop", "Left=5|Right=10|Top=15|Bottom=20", "Buttom:");
        addRow("Resize", "Resize", "Mode=1|Width=40|Height=20|NoEnlarge=yes", "");
        addRow("Histogram", "Histogram optimizer", "Left=10|Right=30", "");
        addRow("Frame", "Frame", "Width=12|Color=#102030", "");
        addRow("Binarization", "Binarization", "Threshold=200", "");
        addRow("Vignetting", "Vignetting", "Radius=30|Opacity=45|Color=#ff8000", "");
    }

    void everyNode()
    {
        auto [name, keys, caption] = fetch<QString, QString, QString>("name", "keys", "caption");
        const QString text = parametersText("yes", keys);
        const QString english = newNode(name)->parametersText();
        // Under the program's style sheet, with every caption longer.
        LongerWords longer;
        qApp->installTranslator(&longer);
        qApp->setStyleSheet(OrkWidgets::App::resourceText(":/stylesheet.qss"));
        const auto restore = qScopeGuard([&longer] {
            qApp->removeTranslator(&longer);
            qApp->setStyleSheet(QString());
        });
        NodesOptionsPanel panel;
        BaseNode* node = panel.createNode(name);
        QVERIFY(node);
        QCOMPARE(node->name(), name);
        QVERIFY(!node->findChild<QLabel*>("NodeIconLabel")->pixmap(Qt::ReturnByValue).isNull());
        QVERIFY(caption.isEmpty() || longer.asked.contains(caption));
        // What a node stores, the watermark's text among it, is the same in every language.
        QCOMPARE(node->parametersText(), english);

        // Saved, opened in a fresh node and saved again, as a flow file is: the same text.
        load(node, text);
        QCOMPARE(node->parametersText(), text);
        auto copy = newNode(name);
        load(copy.get(), node->parametersText());
        QCOMPARE(copy->parametersText(), text);

        // The options fit the area the main window leaves them, and no caption is cut off.
        panel.setFixedSize(731, 175);
        panel.show();
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        QCOMPARE(panel.minimumSizeHint().boundedTo(panel.size()), panel.minimumSizeHint());
        for (const QLabel* label : node->findChildren<QLabel*>()) {
            const QRect shown(label->mapTo(&panel, QPoint()), label->size());
            QVERIFY2(!label->isVisibleTo(node) ||
                         (label->sizeHint().boundedTo(label->size()) == label->sizeHint() &&
                          panel.rect().contains(shown)),
                     qPrintable(label->text()));
        }
        // The group box's own minimum holds its title with the check box.
        const auto* box = node->findChild<QGroupBox*>();
        QVERIFY(box->minimumSizeHint().width() <= box->width());

        // The batch runs the headless form on a thread of its own, on photos as decoded.
        CommonData::instance()->previewMode = 0;
        const QImage original = photo();
        const QImage decoded = original.convertToFormat(QImage::Format_RGB888);
        const QImage headless = QtConcurrent::run(&applyOperation, name, decoded, text).result();
        QSignalSpy previews(node, &BaseNode::previewChanged);
        QImage processed = original;
        node->process(processed);
        QVERIFY2(!TestUtils::imageDifference(processed, original).isEmpty(), "nothing changed");
        QCOMPARE(headless.format(), processed.format());
        QCOMPARE_IMAGES(headless, processed);
        QCOMPARE_IMAGES(lastImage(previews), processed);

        // Switched off, the node hands the photo on and previews the disabled picture.
        node->setActive(false);
        QCOMPARE(node->parametersText(), parametersText("no", keys));
        processed = original;
        node->process(processed);
        QCOMPARE_IMAGES(processed, original);
        QCOMPARE_IMAGES(lastImage(previews), QImage(":/DisabledNode.png"));
    }

    void everyControlReportsItsChange_data() { everyNode_data(); }

    // Each change has to rerun the flow and reach the stored text; only the watermark's compact
    // form is a view of its own, not stored.
    void everyControlReportsItsChange()
    {
        QFETCH(QString, name);
        auto node = newNode(name);
        QSignalSpy changes(node.get(), &BaseNode::parametersChanged);
        QString before = node->parametersText();
        QStringList faults;
        const auto check = [&](QObject* control, const std::function<void()>& change) {
            change();
            const QString text = node->parametersText();
            const QString what =
                control->metaObject()->className() + QString(" ") + control->objectName();
            if (changes.isEmpty() || (text == before && control->objectName() != "WMRShrinkButton"))
                faults << "silent " + what;
            // A value the controls allow reaches the batch as it is, at the ends too.
            const BatchOperations read =
                batchOperationsFromFlow(FlowText::flowText({{0, node.get()}}));
            if (node->isActive() && read.value(0).second != text)
                faults << "misread " + what;
            changes.clear();
            before = text;
        };
        // To one end and then the other, each a change.
        const auto ends = [&](auto* control) {
            const bool atMaximum = control->value() == control->maximum();
            for (const int end : {atMaximum ? control->minimum() : control->maximum(),
                                  atMaximum ? control->maximum() : control->minimum()})
                check(control, [&] { control->setValue(end); });
        };
        for (QSpinBox* spin : node->findChildren<QSpinBox*>())
            ends(spin);
        for (QSlider* slider : node->findChildren<QSlider*>())
            ends(slider);
        for (QComboBox* combo : node->findChildren<QComboBox*>())
            check(combo,
                  [&] { combo->setCurrentIndex((combo->currentIndex() + 1) % combo->count()); });
        for (QLineEdit* edit : node->findChildren<QLineEdit*>()) {
            if (!edit->isReadOnly() && !qobject_cast<QAbstractSpinBox*>(edit->parent()) &&
                !qobject_cast<QComboBox*>(edit->parent()))
                check(edit, [&] { edit->setText(edit->text() + "!"); });
        }
        for (QAbstractButton* button : node->findChildren<QAbstractButton*>()) {
            auto* colorButton = qobject_cast<OrkWidgets::ColorButton*>(button);
            auto* menuButton = qobject_cast<QToolButton*>(button);
            const QAction* opener = menuButton ? menuButton->defaultAction() : nullptr;
            // Browsing ends in openLogoFile, which has a test of its own.
            if (opener && opener->menu())
                check(button, [&] { opener->menu()->actions().constFirst()->trigger(); });
            else if (colorButton)
                check(button, [&] { colorButton->setColor(QColor("#123456")); });
            else if (button->objectName() != "WMRBrowseButton")
                check(button, [&] { button->click(); });
        }
        // Last: switched off, the group box disables the controls inside it.
        auto* box = node->findChild<QGroupBox*>();
        check(box, [&] {
            box->setChecked(false);
            emit box->clicked(false);
        });
        QCOMPARE(faults.join(", "), QString());
    }

    void stored_data()
    {
        addColumns<QString, QString, QString, QString>("name", "loaded", "clicks", "stored");
        const QString bin = "Binarization";
        addRow("Active in any case", bin, "Active=no|Active=Yes", "", "Active=yes");
        addRow("missing Active", bin, "Threshold=40", "", "Active=yes|Threshold=40");
        const QString wmr = "Watermark";
        addRow("offset beyond the end", wmr, "XOffset=50", "", "XOffset=33");
        addRow("size below the end", wmr, "Size=0", "", "Size=1");
        addRow("transparency beyond", wmr, "Transparency=101", "", "Transparency=100");
        const QString rsz = "Resize";
        // Mode comes first when saved: it resets the sizes to its own range and value.
        addRow("percent clamped", rsz, "Mode=0|Width=5000", "", "Mode=0|Width=100|Height=50");
        addRow("mode last", rsz, "Width=1200|Height=800|Mode=2", "", "Mode=2|Width=300|Height=300");
        addRow("back to percent", rsz, "Mode=2|Width=1200|Mode=0", "", "Mode=0|Width=50|Height=50");
        addRow("pixels clamped", rsz, "Mode=2|Width=1200|Height=9000", "",
               "Mode=2|Width=1200|Height=5000");
        // Only a change of the mode resets them; an unknown one is stored as -1.
        addRow("same mode, then unknown", rsz, "Mode=1|Width=700|Mode=1|Mode=7", "",
               "Mode=-1|Width=700|Height=300");
        // Written only when checked, after the others; a trailing "|" ends the text there.
        addRow("checked", rsz, "NoEnlarge=YES", "", "Height=50|NoEnlarge=yes|");
        addRow("unchecked", rsz, "NoEnlarge=yes|NoEnlarge=no", "", "Height=50|");
        addRow("text cut at what a line edit holds", wmr, "Text=" + QString(40000, 'a'), "",
               "Text=" + QString(32767, 'a'));
        // Right and left keep their own signs; past a full turn the angle starts again at 0.
        addRow("right past a full turn", "Rotate", "", "Right Right Right Right", "Angle=0");
        addRow("left past a full turn", "Rotate", "", "Left Left Left Left", "Angle=0");
        addRow("left is not made right", "Rotate", "", "Left Left Left Right", "Angle=-180");
        // A new mirror flips left to right; the style sheet knows its buttons by names crossed
        // with their keys. A click names the button after the node's name.
        addRow("MirrorHButton", "Mirror", "", "H", "Horizontal=yes|Vertical=yes");
        addRow("MirrorVButton", "Mirror", "", "V", "Horizontal=no|Vertical=no");
    }

    void stored()
    {
        auto [name, loaded, clicks, stored] =
            fetch<QString, QString, QString, QString>("name", "loaded", "clicks", "stored");
        auto node = newNode(name);
        load(node.get(), loaded);
        for (const QString& click : clicks.split(' ', Qt::SkipEmptyParts))
            node->findChild<QPushButton*>(name + click + "Button")->click();
        // The batch's reader of a flow stores the same.
        QStringList texts{node->parametersText()};
        if (clicks.isEmpty())
            texts << batchOperationsFromFlow(flowOf({{name, TestUtils::keyValues(loaded)}}))
                         .value(0)
                         .second;
        for (const QString& text : texts) {
            QVERIFY2(text.contains(elements(stored, " ", "\n") +
                                   (stored.endsWith('|') ? "</Parameters>" : "")),
                     qPrintable(text));
        }
    }

    void headless_data()
    {
        addColumns<QString, QString, QImage, QImage>("name", "text", "input", "expected");
        const QString bcs = "Brightness, Contrast, Saturation";
        const auto keys = [](const char* keys) {
            return "<Parameters>" + elements(keys) + "</Parameters>";
        };
        const auto grey = [](int l) { return TestUtils::filledImage(8, 2, qRgb(l, l, l)); };
        const QImage red = TestUtils::filledImage(8, 2, 0xffff0000);
        const QImage redBlue = TestUtils::halvesPicture(8, 2);
        // The values start at zero, not at a new node's. Pure red has the perceived brightness
        // sqrt(0.299) * 255 = 139.43, all that saturation 0 leaves of it.
        addRow("no XML", bcs, "<<<", red, grey(139));
        addRow("saturation 0, not 100", bcs, keys("Brightness=10"), red, grey(149));
        addRow("saturation 50 is the factor 1", bcs, keys("Saturation=50"), red, red);
        addRow("threshold 0", "Binarization", "", red, grey(255));
        addRow("no angle of its own", "Rotate", keys("Angle=450"), redBlue, redBlue);
        addRow("unknown operation", "Sharpness", keys("Radius=3"), redBlue, redBlue);
        addRow("Horizontal is left to right", "Mirror", keys("Horizontal=yes"), redBlue,
               TestUtils::halvesPicture(8, 2, 0xff0000ff, 0xffff0000));
        // Half the pixels at level 50, half at 200. Clipping half of the bright end leaves the
        // high level at 50: all turns white. Clipping half of the dark end puts the low level
        // at 200: 50 turns black.
        const QImage levels = TestUtils::halvesPicture(8, 2, 0xff323232, 0xffc8c8c8);
        addRow("Left clips the bright end", "Histogram optimizer", keys("Left=100"), levels,
               grey(255));
        addRow("Right clips the dark end", "Histogram optimizer", keys("Right=100"), levels,
               TestUtils::halvesPicture(8, 2, 0xff000000, 0xffffffff));
    }

    void headless()
    {
        auto [name, text, input, expected] =
            fetch<QString, QString, QImage, QImage>("name", "text", "input", "expected");
        QCOMPARE_IMAGES(applyOperation(name, input, text), expected);
    }

    // The reduced live preview skips "Maximum Pixels"; the headless form, full size, never does.
    void resizeMaximumPixelsWaitsForFullSize()
    {
        const QString text = parametersText("yes", "Mode=1|Width=20|Height=20");
        auto node = newNode("Resize");
        load(node.get(), text);
        QImage preview = photo(48, 36);
        node->process(preview);
        QCOMPARE(preview.size(), QSize(48, 36));
        QCOMPARE(applyOperation("Resize", photo(48, 36), text).size(), QSize(20, 15));
    }

    void neverEnlarge_data()
    {
        // size: of an 800 x 600 photo's result; empty: the photo itself
        addColumns<QString, QSize>("keys", "size");
        addRow("box 1600 enlarges", "Mode=1|Width=1600|Height=1600", QSize(1600, 1200));
        addRow("inside the box", "Mode=1|Width=1600|Height=1600|NoEnlarge=yes", QSize());
        addRow("box 400 shrinks", "Mode=1|Width=400|Height=400|NoEnlarge=yes", QSize(400, 300));
        addRow("150 percent", "Mode=0|Width=150|Height=150|NoEnlarge=yes", QSize());
        addRow("half the height", "Mode=0|Width=100|Height=50|NoEnlarge=yes", QSize(800, 300));
        addRow("pixels shrink", "Mode=2|Width=400|Height=300|NoEnlarge=yes", QSize(400, 300));
        // Narrower but taller is still an enlargement.
        addRow("one side larger", "Mode=2|Width=400|Height=700|NoEnlarge=yes", QSize());
        addRow("unchecked", "Mode=2|Width=900|Height=700|NoEnlarge=no", QSize(900, 700));
    }

    void neverEnlarge()
    {
        auto [keys, size] = fetch<QString, QSize>("keys", "size");
        const QImage original = photo(800, 600);
        const QImage resized =
            applyOperation("Resize", original, "<Parameters>" + elements(keys) + "</Parameters>");
        if (size.isEmpty())
            QCOMPARE_IMAGES(resized, original);
        else
            QCOMPARE(resized.size(), size);
    }

    // The watermark's font is the system's own. A resize that does not use the check box writes
    // what it wrote before the check box existed.
    void defaults()
    {
        QCOMPARE(newNode("Resize")->parametersText(),
                 parametersText("yes", "Mode=0|Width=50|Height=50"));
        QCOMPARE(WMRNode().parametersText().remove(QRegularExpression(" <Font>[^<]*</Font>\n")),
                 parametersText("yes", "Mode=0|Size=60|Text=Watermark|Position=BottomRight|"
                                       "Expand=no|Bold=no|Italic=no|Underlined=no|XOffset=0|"
                                       "YOffset=0|Transparency=25|Color=#ffffff|"
                                       "Background=#000000|BackgroundEnabled=no|ImageData=|"
                                       "ImageName=qubrast.png"));
    }

    // The kind shows its own rows; the compact form keeps only the kind and the text or logo.
    void watermarkRows()
    {
        WMRNode node;
        const auto shown = [&node] {
            QStringList captions;
            for (const QFormLayout* form : node.findChildren<QFormLayout*>()) {
                for (int row = 0; row < form->rowCount(); ++row) {
                    const auto* label =
                        static_cast<QLabel*>(form->itemAt(row, form->LabelRole)->widget());
                    // A caption shows exactly when something of its field does.
                    if (label->isHidden() != form->itemAt(row, form->FieldRole)->isEmpty())
                        captions << "half " + label->text();
                    else if (!label->isHidden())
                        captions << label->text();
                }
            }
            return captions.join('|');
        };
        load(&node, "Mode=1");
        QCOMPARE(shown(), QString("Kind:|Logo:|Size:|Transparency:|Position:|Expand:"));
        load(&node, "Mode=0");
        QCOMPARE(shown(), QString("Kind:|Text:|Font:|Size:|Transparency:|Position:|Text color:|"
                                  "Background:"));
        node.findChild<QPushButton*>("WMRShrinkButton")->click();
        QCOMPARE(shown(), QString("Kind:|Text:"));
        load(&node, "Mode=1");
        QCOMPARE(shown(), QString("Kind:|Logo:"));
    }

    void logo()
    {
        const QString jpeg = folder.filePath("logo.jpg");
        QVERIFY(TestUtils::halvesPicture(8, 2, 0xffffff00, 0xff0000ff).save(jpeg));
        WMRNode node;
        QSignalSpy changes(&node, &BaseNode::parametersChanged);
        QVERIFY(node.openLogoFile(jpeg));
        QCOMPARE(changes.count(), 1);
        // Stored as PNG whatever the file was, with the very pixels the file decodes to.
        const QString text = node.parametersText();
        const QImage decoded = QImage(jpeg).convertToFormat(QImage::Format_ARGB32);
        QVERIFY(text.contains("<ImageData>" + dataUri(decoded, "PNG") + "</ImageData>"));
        QVERIFY(text.contains("<ImageName>logo.jpg</ImageName>"));

        // Undecodable data leaves the logo there is; the type the text declares is not trusted.
        load(&node, "ImageData=data:image/png;base64,AAAAAAAA|ImageData=hello");
        QCOMPARE(node.parametersText(), text);
        const QImage bmp = TestUtils::halvesPicture(8, 2, 0xff010203, 0xff040506);
        load(&node, "ImageData=" + dataUri(bmp, "BMP"));
        QVERIFY(node.parametersText().contains(dataUri(bmp, "PNG")));
    }

    // The preview draws the current photo's details; the node stores the macros.
    void textMacrosInThePreview()
    {
        PhotoContext& current = CommonData::instance()->photo;
        const auto restore = qScopeGuard([&current, before = current] { current = before; });
        current.number = 2;
        current.count = 5;
        WMRNode node;
        load(&node, "Text={n} of {count}|Size=80|Transparency=0");
        const QString stored = node.parametersText();
        QVERIFY(stored.contains("<Text>{n} of {count}</Text>"));
        QImage image = photo();
        node.process(image);
        QCOMPARE_IMAGES(image, applyOperation("Watermark", photo(),
                                              QString(stored).replace("{n} of {count}", "2 of 5")));
        QCOMPARE(node.parametersText(), stored);

        // The menu puts what it names where the cursor is.
        const auto* menu = node.findChild<QMenu*>("WMRInsertMenu");
        auto* edit = qobject_cast<QLineEdit*>(menu->parent());
        edit->setText("AB");
        edit->setCursorPosition(1);
        for (QAction* action : menu->actions())
            if (action->text().endsWith("{year}") || action->text().endsWith("\u00a9"))
                action->trigger();
        QCOMPARE(edit->text(), QString("A{year}\u00a9B"));
    }

    // A new node stores no logo data; the headless form then draws the built-in logo.
    void headlessBuiltInLogo()
    {
        const QString drawn = "<Parameters><Mode>1</Mode><Expand>yes</Expand>";
        const QString builtIn =
            "<ImageData>" + dataUri(QImage(":/qubrast.png"), "PNG") + "</ImageData>";
        const QImage original = photo(96, 30);
        const QImage expected =
            applyOperation("Watermark", original, drawn + builtIn + "</Parameters>");
        QVERIFY(!TestUtils::imageDifference(expected, original).isEmpty());
        for (const char* logo : {"<ImageData/>", ""})
            QCOMPARE_IMAGES(applyOperation("Watermark", original, drawn + logo + "</Parameters>"),
                            expected);
    }

    // The live run works on a copy at most 360 wide (at device pixel ratio 1); only the width
    // is compared. While the large view is open it runs at full size.
    void previewReduction()
    {
        NodesOptionsPanel panel;
        QSignalSpy images(&panel, &NodesOptionsPanel::imageChanged);
        const auto shown = [&](int width, int height) {
            panel.setImage(photo(width, height));
            return lastImage(images).size();
        };
        QCOMPARE(shown(361, 361), QSize(360, 360));
        QCOMPARE(shown(360, 2000), QSize(360, 2000));
        QCOMPARE(shown(2000, 1000), QSize(360, 180));
        // The reduced copy is kept between runs, but not across a change of the flag.
        CommonData::instance()->previewMode = 0;
        panel.slotParametersChanged();
        QCOMPARE(lastImage(images).size(), QSize(2000, 1000));
        CommonData::instance()->previewMode = 1;
        panel.slotParametersChanged();
        QCOMPARE(lastImage(images).size(), QSize(360, 180));
    }

    void flow()
    {
        NodesOptionsPanel panel;
        auto* stack = panel.findChild<QStackedWidget*>();
        QSignalSpy images(&panel, &NodesOptionsPanel::imageChanged);
        QList<int> realPreviews;
        connect(&panel, &NodesOptionsPanel::realPreview, [&] { realPreviews << images.count(); });
        QVERIFY(!panel.createNode("watermark"));
        QPointer<BaseNode> invert = panel.createNode("Invert");
        BaseNode* crop = panel.createNode("Crop");
        BaseNode* grey = panel.createNode("Grayscale");
        QCOMPARE(stack->count(), 4);
        QCOMPARE(stack->currentWidget(), grey);
        load(crop, "Left=50");
        grey->setActive(false);
        panel.slotFlowChanged({{0, crop}, {1, grey}, {2, invert}});

        // The right half, inverted; the switched-off grey node hands it on.
        const QImage input = photo(4, 2);
        QImage expected = input.copy(2, 0, 2, 2);
        expected.invertPixels();
        panel.setImage(input.convertToFormat(QImage::Format_RGB888));
        QCOMPARE(panel.sourceImage().format(), QImage::Format_ARGB32);
        QCOMPARE_IMAGES(lastImage(images), expected);
        QCOMPARE(realPreviews, QList<int>{images.count()});

        // A removed node leaves the stack and the flow at once, and is deleted later.
        panel.slotNodeRemoved({{0, crop}, {1, grey}}, invert, crop);
        QCOMPARE(stack->count(), 3);
        QCOMPARE(stack->currentWidget(), crop);
        QCOMPARE_IMAGES(lastImage(images), input.copy(2, 0, 2, 2));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(invert.isNull());

        // A changed parameter runs the flow again; only a new photo is a real preview.
        load(crop, "Left=0");
        QCOMPARE_IMAGES(lastImage(images), input);
        QCOMPARE(realPreviews.size(), 1);
    }

    // Random flows: every name, its own keys and some foreign ones in random order, values
    // inside, at and beyond the ends, unreadable, font aliases; some switched off.
    void flowReadingMatchesTheWindow()
    {
        QRandomGenerator random(20261123);
        const QStringList names = factoryNodeNames() << "Unknown";
        QHash<QString, QStringList> keysOf;
        for (const QString& name : names) {
            std::unique_ptr<BaseNode> node(createNodeByName(name));
            QDomDocument document;
            document.setContent(node ? node->parametersText() : QString("<P><Mode/></P>"));
            for (QDomElement key = document.documentElement().firstChildElement(); !key.isNull();
                 key = key.nextSiblingElement())
                keysOf[name] << key.tagName();
        }
        // Keys written only when changed are not in a new node's text.
        keysOf["Resize"] << "NoEnlarge";
        const QStringList values =
            QString("-1000|-128|-127|-34|-33|-1|0|1|2|3|7|8|33|34|100|101|128|255|256|450|4999|"
                    "5000|5001|x||yes|no|YES|#12ab34|red|TopLeft|Middle|Nowhere|DejaVu Sans|"
                    "DejaVu Serif|Serif|monospace|No Such Font|Times New Roman")
                .split('|');
        // Every key beyond both ends at once; the family a new font picker shows, given to it
        // again and after another family.
        const QString shown = QGuiApplication::font().family();
        QVector<Steps> flows{
            {{"Watermark", TestUtils::keyValues("Font=" + shown)}},
            {{"Watermark", TestUtils::keyValues(QString("Font=No Such Font|Font=%1|Font=Serif|"
                                                        "Font=%1")
                                                    .arg(shown))}}};
        for (const QString& name : names) {
            for (const char* end : {"-99999", "99999"}) {
                QVector<QPair<QString, QString>> pairs;
                for (const QString& key : keysOf[name])
                    pairs.append({key, end});
                flows.append({{name, pairs}});
            }
        }
        for (int round = 0; round < 300; ++round) {
            Steps steps;
            for (int step = random.bounded(1, 5); step > 0; --step) {
                const QString name = names.at(random.bounded(names.size()));
                const QStringList& own = keysOf[name];
                QVector<QPair<QString, QString>> pairs;
                for (int pair = random.bounded(0, 2 * own.size() + 2); pair > 0; --pair) {
                    const QStringList& from =
                        random.bounded(5) ? own : keysOf[names.at(random.bounded(names.size()))];
                    pairs.append({from.at(random.bounded(from.size())),
                                  values.at(random.bounded(values.size()))});
                }
                steps.append({name, pairs});
            }
            flows.append(steps);
        }
        for (const Steps& steps : qAsConst(flows)) {
            const QString flow = flowOf(steps);
            QCOMPARE(batchOperationsFromFlow(flow), windowOperations(flow));
        }
    }
};

PELODINE_TEST_MAIN(TestNodes)
#include "tst_nodes.moc"
