#include "basenode.h"
#include "flowfile.h"
#include "flowtexts.h"
#include "nodecatalogue.h"
#include "testutils.h"

#include <QBuffer>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QRandomGenerator>

#include <memory>
#include <vector>

Q_DECLARE_METATYPE(BatchOperations)

using FlowTest::operation;
using FlowTest::readBytes;
using FlowTest::writeBytes;
using Nodes = std::vector<std::unique_ptr<BaseNode>>;

namespace {

// A node of the catalogue switched and set by a Parameters text, as a loaded flow would have it.
std::unique_ptr<BaseNode> nodeFrom(const QString& name, const QString& parameters)
{
    std::unique_ptr<BaseNode> node(createNodeByName(name));
    QDomDocument document;
    document.setContent(parameters);
    node->readParameters(document.documentElement());
    return node;
}

Flow flowOf(const Nodes& nodes)
{
    Flow flow;
    for (const auto& node : nodes)
        flow.insert(flow.size(), node.get());
    return flow;
}

// The names create is asked for, in order, by createNodes; the nodes themselves are kept.
QStringList requestedNames(const QString& text, Nodes* nodes, bool* ok)
{
    QStringList names;
    *ok = FlowFile::createNodes(text, [&](const QString& name) {
        names.append(name);
        nodes->emplace_back(createNodeByName(name));
        return nodes->back().get();
    });
    return names;
}

const char* const twoNodeFlow =
    "<OperationsFlow>\n"
    " <Operation name=\"Mirror\" index=\"0\">\n"
    "  <Parameters>\n"
    "   <Active>no</Active>\n"
    "   <Horizontal>no</Horizontal>\n"
    "   <Vertical>yes</Vertical>\n"
    "  </Parameters>\n"
    " </Operation>\n"
    " <Operation name=\"Brightness, Contrast, Saturation\" index=\"1\">\n"
    "  <Parameters>\n"
    "   <Active>yes</Active>\n"
    "   <Brightness>-20</Brightness>\n"
    "   <Contrast>15</Contrast>\n"
    "   <Saturation>50</Saturation>\n"
    "  </Parameters>\n"
    " </Operation>\n"
    "</OperationsFlow>\n";

Nodes twoNodes()
{
    Nodes nodes;
    nodes.push_back(nodeFrom("Mirror", "<Parameters><Active>no</Active>"
                                       "<Horizontal>no</Horizontal><Vertical>yes</Vertical>"
                                       "</Parameters>"));
    nodes.push_back(nodeFrom("Brightness, Contrast, Saturation",
                             "<Parameters><Active>yes</Active><Brightness>-20</Brightness>"
                             "<Contrast>15</Contrast><Saturation>50</Saturation></Parameters>"));
    return nodes;
}

} // namespace

class TestFlowFile : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void writesTwoNodesExactly();
    void writesEmptyFlow();
    void fileIsUtf8WithLineFeeds();
    void overwriteLeavesOnlyTheNewFile();
    void unwritablePathWritesNothing();

    void readOrder_data();
    void readOrder();
    void operationWithoutParametersKeepsDefaults_data();
    void operationWithoutParametersKeepsDefaults();
    void batchOperations_data();
    void batchOperations();

    void sampleResource_data();
    void sampleResource();
    void sampleIsInstalledVerbatim();

    void malformedInput_data();
    void malformedInput();

    void flowFileName_data();
    void flowFileName();
    void findFlow_data();
    void findFlow();
    void flowNamesListsFlowFilesOnly();
};

void TestFlowFile::init()
{
    QDir(FlowFile::flowsFolder()).removeRecursively();
}

void TestFlowFile::writesTwoNodesExactly()
{
    const Nodes nodes = twoNodes();
    // The DOM orders attributes by a per-process random hash seed; a fresh seed per round
    // makes both orders turn up, and "name" must come first every time.
    for (int round = 0; round < 16; ++round) {
        qSetGlobalQHashSeed(-1);
        QCOMPARE(FlowFile::flowText(flowOf(nodes)), QString(twoNodeFlow));
    }
}

void TestFlowFile::writesEmptyFlow()
{
    QCOMPARE(FlowFile::flowText({}), QString("<OperationsFlow/>\n"));
    bool ok = false;
    QVERIFY(FlowFile::operationsFromText("<OperationsFlow/>\n", &ok).isEmpty());
    QVERIFY(ok);
}

void TestFlowFile::fileIsUtf8WithLineFeeds()
{
    Nodes nodes;
    nodes.push_back(nodeFrom("Grayscale", "<Parameters><Active>yes</Active></Parameters>"));
    const QString path = FlowFile::flowsFolder() + "grau \u00e9t\u00e9 \u20ac.flow";
    QVERIFY(FlowFile::writeFlow(path, flowOf(nodes)));

    const QByteArray expected = "<OperationsFlow>\n"
                                " <Operation name=\"Grayscale\" index=\"0\">\n"
                                "  <Parameters>\n"
                                "   <Active>yes</Active>\n"
                                "  </Parameters>\n"
                                " </Operation>\n"
                                "</OperationsFlow>\n";
    QCOMPARE(readBytes(path), expected);
    QString text;
    QVERIFY(FlowFile::readFlowFile(path, &text));
    QCOMPARE(text, QString::fromUtf8(expected));
}

void TestFlowFile::overwriteLeavesOnlyTheNewFile()
{
    const QString path = FlowFile::flowsFolder() + "long.flow";
    QVERIFY(writeBytes(path, QByteArray(10000, 'x')));

    const Nodes nodes = twoNodes();
    QVERIFY(FlowFile::writeFlow(path, flowOf(nodes)));
    QCOMPARE(readBytes(path), QByteArray(twoNodeFlow));
    // No temporary file is left beside it.
    QCOMPARE(QDir(FlowFile::flowsFolder()).entryList(QDir::Files | QDir::Hidden),
             QStringList{"long.flow"});
}

void TestFlowFile::unwritablePathWritesNothing()
{
    const Nodes nodes = twoNodes();
    QVERIFY(!FlowFile::writeFlow(FlowFile::flowsFolder() + "missing/x.flow", flowOf(nodes)));
    QVERIFY(QDir(FlowFile::flowsFolder())
                .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::Hidden)
                .isEmpty());
}

void TestFlowFile::readOrder_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("active");

    const QString root = "<OperationsFlow>%1</OperationsFlow>";
    QTest::newRow("indices 5 2 9")
        << root.arg(operation("Blur", "5") + operation("Crop", "2") + operation("Invert", "9"))
        << QStringList{"Crop", "Blur", "Invert"} << QStringList{"yes", "yes", "yes"};
    QTest::newRow("negative index first")
        << root.arg(operation("Blur", "0") + operation("Crop", "-3")) << QStringList{"Crop", "Blur"}
        << QStringList{"yes", "yes"};
    QTest::newRow("duplicate index: later wins")
        << root.arg(operation("Blur", "1") + operation("Crop", "0", "no") +
                    operation("Invert", "0"))
        << QStringList{"Invert", "Blur"} << QStringList{"yes", "yes"};
    QTest::newRow("index x skipped")
        << root.arg(operation("Blur", "0") + operation("Crop", "x") + operation("Invert", "2"))
        << QStringList{"Blur", "Invert"} << QStringList{"yes", "yes"};
    QTest::newRow("empty index skipped")
        << root.arg(operation("Blur", "0") + operation("Crop", "") + operation("Invert", "2"))
        << QStringList{"Blur", "Invert"} << QStringList{"yes", "yes"};
    QTest::newRow("missing index skipped")
        << root.arg(operation("Blur", "0") +
                    R"(<Operation name="Crop"><Parameters><Active>yes</Active></Parameters>)"
                    "</Operation>" +
                    operation("Invert", "1"))
        << QStringList{"Blur", "Invert"} << QStringList{"yes", "yes"};
    QTest::newRow("foreign root name")
        << "<Something>" + operation("Grayscale", "0", "no") + "</Something>"
        << QStringList{"Grayscale"} << QStringList{"no"};
    QTest::newRow("foreign tags, comments and text skipped")
        << root.arg("text<!-- c --><operation name=\"Blur\" index=\"0\"/><Foo index=\"1\"/>"
                    "<?pi x?>" +
                    operation("Crop", "3"))
        << QStringList{"Crop"} << QStringList{"yes"};
    QTest::newRow("unknown name skipped, neighbours load")
        << root.arg(operation("Blur", "0") + operation("Sharpen", "1") + operation("Crop", "2"))
        << QStringList{"Blur", "Crop"} << QStringList{"yes", "yes"};
    QTest::newRow("Active in other letter case")
        << root.arg(operation("Blur", "0", "YES") + operation("Crop", "1", "true"))
        << QStringList{"Blur", "Crop"} << QStringList{"yes", "no"};
}

void TestFlowFile::readOrder()
{
    QFETCH(QString, text);
    QFETCH(QStringList, names);
    QFETCH(QStringList, active);

    Nodes nodes;
    bool ok = false;
    requestedNames(text, &nodes, &ok);
    QVERIFY(ok);
    QStringList loadedNames;
    QStringList loadedActive;
    for (const auto& node : nodes) {
        if (!node)
            continue;
        loadedNames.append(node->name());
        loadedActive.append(node->isActive() ? "yes" : "no");
    }
    QCOMPARE(loadedNames, names);
    QCOMPARE(loadedActive, active);

    // Saved again, the positions are renumbered from 0.
    Nodes known;
    for (auto& node : nodes) {
        if (node)
            known.push_back(std::move(node));
    }
    QDomDocument saved;
    QVERIFY(saved.setContent(FlowFile::flowText(flowOf(known))));
    QStringList indices;
    for (QDomElement e = saved.documentElement().firstChildElement(); !e.isNull();
         e = e.nextSiblingElement())
        indices.append(e.attribute("name") + "@" + e.attribute("index"));
    QStringList expectedIndices;
    for (int i = 0; i < names.size(); ++i)
        expectedIndices.append(names.at(i) + "@" + QString::number(i));
    QCOMPARE(indices, expectedIndices);
}

void TestFlowFile::operationWithoutParametersKeepsDefaults_data()
{
    QTest::addColumn<QString>("operation");
    QTest::newRow("empty element") << R"(<Operation name="Blur" index="0"/>)";
    QTest::newRow("text before Parameters")
        << R"(<Operation name="Blur" index="0">t<Parameters><Active>no</Active>)"
           "<Radius>3</Radius></Parameters></Operation>";
    QTest::newRow("comment before Parameters")
        << R"(<Operation name="Blur" index="0"><!-- c --><Parameters><Active>no</Active>)"
           "<Radius>3</Radius></Parameters></Operation>";
}

void TestFlowFile::operationWithoutParametersKeepsDefaults()
{
    QFETCH(QString, operation);
    bool ok = false;
    const BatchOperations operations =
        FlowFile::operationsFromText("<OperationsFlow>" + operation + "</OperationsFlow>", &ok);
    QVERIFY(ok);
    // A new Blur node: active, radius 10.
    const QString defaults = "<Parameters>\n <Active>yes</Active>\n <Radius>10</Radius>\n"
                             "</Parameters>\n";
    QCOMPARE(operations, (BatchOperations{{"Blur", defaults}}));
}

void TestFlowFile::batchOperations_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("ok");
    QTest::addColumn<BatchOperations>("operations");

    const QString root = "<OperationsFlow>%1</OperationsFlow>";
    QTest::newRow("inactive nodes left out, flow order")
        << root.arg(operation("Invert", "4") + operation("Crop", "1", "no") +
                    operation("Grayscale", "0"))
        << true
        << BatchOperations{{"Grayscale", "<Parameters>\n <Active>yes</Active>\n</Parameters>\n"},
                           {"Invert", "<Parameters>\n <Active>yes</Active>\n</Parameters>\n"}};
    QTest::newRow("values clamped by the controls")
        << root.arg(R"(<Operation name="Blur" index="0"><Parameters><Active>yes</Active>)"
                    "<Radius>50</Radius></Parameters></Operation>")
        << true
        << BatchOperations{{"Blur", "<Parameters>\n <Active>yes</Active>\n <Radius>20</Radius>\n"
                                    "</Parameters>\n"}};
    QTest::newRow("unparsable number keeps the default")
        << root.arg(R"(<Operation name="Binarization" index="0"><Parameters>)"
                    "<Active>yes</Active><Threshold>high</Threshold></Parameters></Operation>")
        << true
        << BatchOperations{{"Binarization", "<Parameters>\n <Active>yes</Active>\n"
                                            " <Threshold>127</Threshold>\n</Parameters>\n"}};
    QTest::newRow("all inactive") << root.arg(operation("Invert", "0", "no")) << true
                                  << BatchOperations{};
    QTest::newRow("not XML") << "Watermark, Resize" << false << BatchOperations{};
}

void TestFlowFile::batchOperations()
{
    QFETCH(QString, text);
    QFETCH(bool, ok);
    QFETCH(BatchOperations, operations);
    bool parsed = !ok;
    QCOMPARE(FlowFile::operationsFromText(text, &parsed), operations);
    QCOMPARE(parsed, ok);
}

void TestFlowFile::sampleResource_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("values");

    // Active, Mode, Size, Text, Position, Expand, Bold, Italic, Underlined, XOffset, YOffset,
    // Transparency, Color, Background, BackgroundEnabled, Font, ImageData, ImageName.
    QTest::newRow("first") << 0
                           << QString("yes|0|39|Watermark1|BottomRight|no|no|no|no|0|0|25|#00ff00|"
                                      "#c00000|yes|.Lucida Grande UI||qubrast.png")
                                  .split('|');
    QTest::newRow("second") << 1
                            << QString("yes|0|67|Watermark2|TopLeft|no|no|yes|no|0|0|38|#ff8000|"
                                       "#0000c0|yes|Times New Roman||qubrast.png")
                                   .split('|');
    QTest::newRow("third") << 2
                           << QString("yes|1|60|Watermark|Middle|no|no|no|no|0|0|25|#ffffff|"
                                      "#000000|yes|.Lucida Grande UI||qubrast.png")
                                  .split('|');
}

void TestFlowFile::sampleResource()
{
    QFETCH(int, index);
    QFETCH(QStringList, values);
    const QStringList keys =
        QString("Active|Mode|Size|Text|Position|Expand|Bold|Italic|Underlined|XOffset|YOffset|"
                "Transparency|Color|Background|BackgroundEnabled|Font|ImageData|ImageName")
            .split('|');

    QString text;
    QVERIFY(FlowFile::readFlowFile(":/sample.flow", &text));
    QVERIFY(text.endsWith("</OperationsFlow>\n"));
    QDomDocument document;
    QVERIFY(FlowFile::parseFlowText(text, &document));
    QCOMPARE(document.documentElement().tagName(), QString("OperationsFlow"));
    const QMap<int, FlowFile::Operation> operations =
        FlowFile::readOperations(document.documentElement());
    QCOMPARE(operations.keys(), (QList<int>{0, 1, 2}));

    const FlowFile::Operation operation = operations.value(index);
    QCOMPARE(operation.name, QString("Watermark"));
    QCOMPARE(operation.parameters.tagName(), QString("Parameters"));
    QStringList tags;
    QStringList texts;
    for (QDomElement e = operation.parameters.firstChildElement(); !e.isNull();
         e = e.nextSiblingElement()) {
        tags.append(e.tagName());
        texts.append(e.text());
    }
    QCOMPARE(tags, keys);
    QCOMPARE(texts, values);
}

void TestFlowFile::sampleIsInstalledVerbatim()
{
    QVERIFY(FlowFile::installSampleFlow());
    QCOMPARE(readBytes(FlowFile::flowsFolder() + "sample.flow"), readBytes(":/sample.flow"));
}

void TestFlowFile::malformedInput_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("parses");
    QTest::addColumn<QStringList>("names");

    const QByteArray sample = readBytes(":/sample.flow");
    QTest::newRow("empty file") << QByteArray() << false << QStringList{};
    QTest::newRow("blanks only") << QByteArray(" \n\t ") << false << QStringList{};
    QTest::newRow("truncated in the second operation")
        << sample.left(sample.indexOf("index=\"1\"") + 40) << false << QStringList{};
    QTest::newRow("truncated before the closing root tag")
        << sample.left(sample.lastIndexOf("</OperationsFlow>")) << false << QStringList{};
    QTest::newRow("mismatched end tag")
        << QByteArray("<OperationsFlow><Operation name=\"Blur\" index=\"0\"></Parameters>"
                      "</Operation></OperationsFlow>")
        << false << QStringList{};

    const QByteArray grayscale = operation("Grayscale", "0").toUtf8();
    QByteArray deep = "<OperationsFlow>" + grayscale;
    for (int i = 0; i < 200000; ++i)
        deep += "<a>";
    for (int i = 0; i < 200000; ++i)
        deep += "</a>";
    QTest::newRow("200000 nested elements") << deep + "</OperationsFlow>" << false << QStringList{};
    QByteArray nested = "<OperationsFlow><Operation name=\"Grayscale\" index=\"0\"><Parameters>"
                        "<Active>yes</Active>";
    for (int i = 0; i < 100; ++i)
        nested += "<Extra>";
    for (int i = 0; i < 100; ++i)
        nested += "</Extra>";
    QTest::newRow("100 nested elements inside Parameters")
        << nested + "</Parameters></Operation></OperationsFlow>" << true
        << QStringList{"Grayscale"};

    const QByteArray watermark = "<OperationsFlow><Operation name=\"Watermark\" index=\"0\">"
                                 "<Parameters><Active>yes</Active><ImageData>%1</ImageData>"
                                 "</Parameters></Operation></OperationsFlow>";
    QTest::newRow("50 MB ImageData")
        << QByteArray(watermark).replace("%1", "data:image/png;base64," +
                                                   QByteArray(50 * 1024 * 1024, 'A'))
        << true << QStringList{"Watermark"};
    QTest::newRow("ImageData that is not an image")
        << QByteArray(watermark).replace("%1", "data:image/png;base64," +
                                                   QByteArray("no picture").toBase64())
        << true << QStringList{"Watermark"};
    QTest::newRow("ImageData that is not base64")
        << QByteArray(watermark).replace("%1", "data:image/png;base64,%%%%***") << true
        << QStringList{"Watermark"};
    QTest::newRow("ImageData without data URI")
        << QByteArray(watermark).replace("%1", "C:\\logos\\logo.png") << true
        << QStringList{"Watermark"};

    QByteArray laughs = "<!DOCTYPE lolz [<!ENTITY lol \"lol\">";
    for (int level = 1; level <= 9; ++level) {
        laughs += QString("<!ENTITY lol%1 \"").arg(level).toUtf8();
        const QByteArray previous =
            level == 1 ? QByteArray("&lol;") : QString("&lol%1;").arg(level - 1).toUtf8();
        for (int i = 0; i < 10; ++i)
            laughs += previous;
        laughs += "\">";
    }
    laughs += "]><OperationsFlow><Operation name=\"Watermark\" index=\"0\"><Parameters>"
              "<Active>yes</Active><Text>&lol9;</Text></Parameters></Operation>"
              "</OperationsFlow>";
    QTest::newRow("billion laughs") << laughs << false << QStringList{};
    QTest::newRow("external entity is not read")
        << QByteArray("<!DOCTYPE x [<!ENTITY e SYSTEM \"file:///etc/passwd\">]><OperationsFlow>"
                      "<Operation name=\"Grayscale\" index=\"0\"><Parameters><Active>&e;"
                      "</Active></Parameters></Operation></OperationsFlow>")
        << true << QStringList{};
    QTest::newRow("internal entity in a name")
        << QByteArray("<!DOCTYPE x [<!ENTITY n \"Grayscale\">]><OperationsFlow>" +
                      operation("&n;", "0").toUtf8() + "</OperationsFlow>")
        << true << QStringList{"Grayscale"};
    QTest::newRow("undeclared entity")
        << QByteArray("<OperationsFlow>" + operation("&n;", "0").toUtf8() + "</OperationsFlow>")
        << false << QStringList{};

    QRandomGenerator random(20141004);
    QByteArray garbage(64 * 1024, '\0');
    for (char& byte : garbage)
        byte = char(random.bounded(256));
    QTest::newRow("binary garbage") << garbage << false << QStringList{};
    QTest::newRow("garbage after the root")
        << QByteArray("<OperationsFlow>" + grayscale + "</OperationsFlow>") + garbage << false
        << QStringList{};
    QTest::newRow("NUL inside a flow")
        << QByteArray("<OperationsFlow>" + grayscale + QByteArray(1, '\0') + "</OperationsFlow>")
        << false << QStringList{};
    QTest::newRow("not UTF-8") << QByteArray("<OperationsFlow>\xff\xfe" + grayscale +
                                             "</OperationsFlow>")
                               << true << QStringList{"Grayscale"};
}

void TestFlowFile::malformedInput()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, parses);
    QFETCH(QStringList, names);

    const QString path = FlowFile::flowsFolder() + "malformed.flow";
    QVERIFY(writeBytes(path, bytes));

    QString text;
    QVERIFY(FlowFile::readFlowFile(path, &text));
    bool ok = !parses;
    const BatchOperations operations = FlowFile::operationsFromText(text, &ok);
    QCOMPARE(ok, parses);
    QStringList loaded;
    for (const auto& operation : operations)
        loaded.append(operation.first);
    QCOMPARE(loaded, names);
}

void TestFlowFile::flowFileName_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("fileName");
    TestUtils::addRow("empty", "", ".flow");
    TestUtils::addRow("plain", "holiday", "holiday.flow");
    TestUtils::addRow("with extension", "a.flow", "a.flow");
    TestUtils::addRow("upper-case extension", "a.FLOW", "a.FLOW.flow");
    TestUtils::addRow("extension inside", "a.flow.bak", "a.flow.bak.flow");
}

void TestFlowFile::flowFileName()
{
    QFETCH(QString, typed);
    QFETCH(QString, fileName);
    QCOMPARE(FlowFile::flowFileName(typed), fileName);
}

void TestFlowFile::findFlow_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("found");
    TestUtils::addRow("without extension", "holiday", "holiday.flow");
    TestUtils::addRow("with extension", "holiday.flow", "holiday.flow");
    TestUtils::addRow("only the flow file counts", "notes", "notes.flow");
    TestUtils::addRow("a file without extension is no flow", "readme", "");
    TestUtils::addRow("missing", "winter", "");
    TestUtils::addRow("empty", "", "");
    TestUtils::addRow("a folder is no flow", "folder", "");
}

void TestFlowFile::findFlow()
{
    QFETCH(QString, name);
    QFETCH(QString, found);
    const QString folder = FlowFile::flowsFolder();
    for (const char* file : {"holiday.flow", ".flow", "notes", "notes.flow", "readme"})
        QVERIFY(writeBytes(folder + file, {}));
    QVERIFY(QDir(folder).mkdir("folder.flow"));
    QCOMPARE(FlowFile::findFlow(name), found.isEmpty() ? QString() : folder + found);
}

void TestFlowFile::flowNamesListsFlowFilesOnly()
{
    const QString folder = FlowFile::flowsFolder();
    for (const char* file : {"a.flow", ".flow", "b.FLOW", "notes.txt", "c.flow.bak"})
        QVERIFY(writeBytes(folder + file, {}));
    QVERIFY(QDir(folder).mkdir("d.flow"));
    QStringList names = FlowFile::flowNames();
    names.sort();
    QCOMPARE(names, (QStringList{".flow", "a.flow"}));
}

PELODINE_TEST_MAIN(TestFlowFile)
#include "tst_flowfile.moc"
