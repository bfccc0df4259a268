// The parameter tables against the nodes built from them, and the widget-free flow reading
// against what the window's nodes make of the same flow.
#include "bcsnode.h"
#include "binnode.h"
#include "blrnode.h"
#include "crpnode.h"
#include "flowoperations.h"
#include "flowtext.h"
#include "frmnode.h"
#include "hstnode.h"
#include "nodecatalogue.h"
#include "rsznode.h"
#include "testutils.h"
#include "ucsnode.h"
#include "wmrnode.h"

#include <QComboBox>
#include <QHash>
#include <QRandomGenerator>
#include <QSpinBox>
#include <QtTest>

#include "ui/comboslider.h"

#include <memory>

namespace {

QString oneKeyText(const QString& key, int value)
{
    return QString("<Parameters><%1>%2</%1></Parameters>").arg(key).arg(value);
}

QString savedValue(BaseNode& node, const QString& key)
{
    QDomDocument document;
    document.setContent(node.parametersText());
    return document.documentElement().firstChildElement(key).text();
}

// Each numeric key's control has the table's range, step and default, and loading a value
// beyond either end gives that end.
template <typename Node> void checkNumericKeys()
{
    using Values = typename Node::Values;
    Node node;
    for (const Param<Values>& key : Node::Operation::table().keys()) {
        const QString where = QString("%1 %2").arg(Node::Name, key.name);
        QObject* control = node.controlFor(key.name);
        if (key.kind == ParamKind::Slider) {
            auto* slider = qobject_cast<ComboSlider*>(control);
            QVERIFY2(slider, qPrintable(where));
            QCOMPARE(slider->minimum(), key.range.minimum);
            QCOMPARE(slider->maximum(), key.range.maximum);
            QCOMPARE(slider->singleStep(), key.range.singleStep);
            QCOMPARE(slider->tickInterval(), key.range.tickInterval);
            QCOMPARE(slider->value(), key.uiDefault.toInt());
            QCOMPARE(slider->unit(), QString::fromUtf8(key.unit));
        } else if (key.kind == ParamKind::SpinBox) {
            auto* box = qobject_cast<QSpinBox*>(control);
            QVERIFY2(box, qPrintable(where));
            QCOMPARE(box->minimum(), key.range.minimum);
            QCOMPARE(box->maximum(), key.range.maximum);
            QCOMPARE(box->value(), key.uiDefault.toInt());
        } else {
            continue;
        }
        for (const int end : {key.range.minimum, key.range.maximum}) {
            const int beyond = end == key.range.minimum ? end - 1000 : end + 1000;
            QDomDocument document;
            document.setContent(oneKeyText(key.name, beyond));
            node.readParameters(document.documentElement());
            QVERIFY2(savedValue(node, key.name) == QString::number(end), qPrintable(where));
        }
    }
}

// A flow of the given steps, each a name and its key=value pairs in the order given.
QString flowOf(const QVector<QPair<QString, QVector<QPair<QString, QString>>>>& steps)
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

} // namespace

class TestParamTables : public QObject
{
    Q_OBJECT

private slots:
    void controlsFollowTheTables()
    {
        checkNumericKeys<BCSNode>();
        checkNumericKeys<HSTNode>();
        checkNumericKeys<CRPNode>();
        checkNumericKeys<FRMNode>();
        checkNumericKeys<BLRNode>();
        checkNumericKeys<UCSNode>();
        checkNumericKeys<BINNode>();
        checkNumericKeys<RSZNode>();
        checkNumericKeys<WMRNode>();
    }

    // Worked by hand: a mode resets both sizes when it changes, so one saved after the sizes
    // wins; the same mode again keeps them; a text is cut at what a line edit holds.
    void loadingRules()
    {
        const BatchOperations read = batchOperationsFromFlow(
            flowOf({{"Resize", {{"Width", "1200"}, {"Height", "800"}, {"Mode", "2"}}},
                    {"Resize", {{"Mode", "2"}, {"Width", "1200"}, {"Height", "9000"}}},
                    {"Resize", {{"Mode", "0"}, {"Width", "5000"}}},
                    {"Resize", {{"Mode", "1"}, {"Width", "700"}, {"Mode", "1"}, {"Mode", "7"}}},
                    {"Watermark", {{"Text", QString(40000, 'a')}}},
                    {"Resize", {{"NoEnlarge", "YES"}}},
                    {"Resize", {{"NoEnlarge", "yes"}, {"NoEnlarge", "no"}}}}));
        QCOMPARE(read.size(), 7);
        const auto values = [](const QString& text, const QStringList& keys) {
            QDomDocument document;
            document.setContent(text);
            QStringList found;
            for (const QString& key : keys)
                found << document.documentElement().firstChildElement(key).text();
            return found;
        };
        const QStringList sizes{"Mode", "Width", "Height"};
        QCOMPARE(values(read[0].second, sizes), (QStringList{"2", "300", "300"}));
        QCOMPARE(values(read[1].second, sizes), (QStringList{"2", "1200", "5000"}));
        QCOMPARE(values(read[2].second, sizes), (QStringList{"0", "100", "50"}));
        QCOMPARE(values(read[3].second, sizes), (QStringList{"-1", "700", "300"}));
        QCOMPARE(values(read[4].second, {"Text"}).constFirst().size(), 32767);
        // Written only when checked, after the keys that were there before it.
        QVERIFY(read[5].second.endsWith("<Height>50</Height>\n <NoEnlarge>yes</NoEnlarge>\n"
                                        "</Parameters>\n"));
        QVERIFY(!read[6].second.contains("NoEnlarge"));
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
        const QStringList values{"-1000",
                                 "-128",
                                 "-127",
                                 "-34",
                                 "-33",
                                 "-1",
                                 "0",
                                 "1",
                                 "2",
                                 "3",
                                 "7",
                                 "8",
                                 "33",
                                 "34",
                                 "100",
                                 "101",
                                 "128",
                                 "255",
                                 "256",
                                 "450",
                                 "4999",
                                 "5000",
                                 "5001",
                                 "x",
                                 "",
                                 "yes",
                                 "no",
                                 "YES",
                                 "#12ab34",
                                 "red",
                                 "TopLeft",
                                 "Middle",
                                 "Nowhere",
                                 "DejaVu Sans",
                                 "DejaVu Serif",
                                 "Serif",
                                 "monospace",
                                 "No Such Font",
                                 "Times New Roman"};
        // The family a new font picker shows, given to it again, and after another family.
        const QString shown = QGuiApplication::font().family();
        for (const QStringList& fonts :
             {QStringList{shown}, QStringList{"No Such Font", shown, "Serif", shown}}) {
            QVector<QPair<QString, QString>> pairs;
            for (const QString& font : fonts)
                pairs.append({"Font", font});
            const QString flow = flowOf({{"Watermark", pairs}});
            QCOMPARE(batchOperationsFromFlow(flow), windowOperations(flow));
        }
        for (int round = 0; round < 300; ++round) {
            QVector<QPair<QString, QVector<QPair<QString, QString>>>> steps;
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
            const QString flow = flowOf(steps);
            QCOMPARE(batchOperationsFromFlow(flow), windowOperations(flow));
        }
    }
};

PELODINE_TEST_MAIN(TestParamTables)
#include "tst_paramtables.moc"
