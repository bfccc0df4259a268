// The live preview of a five-node flow (Resize 50 %, Brightness/Contrast/Saturation,
// Vignetting, Frame, text Watermark) as the options panel runs it while a slider is dragged:
// the median on the reduced working photo (360 x 270; the goal is 10 ms at most), the same
// run when the photo handed to the panel has 12 megapixels (reduced once per photo), and the
// flow on that photo at full size. Per-node medians follow each figure.
//   bench_flow [runs]   (default 200 for the preview, a tenth of it, at least 5, at full size)
#include "basenode.h"
#include "benchsupport.h"
#include "commondata.h"
#include "nodesoptionspanel.h"

#include <QApplication>
#include <QDomDocument>
#include <QImage>
#include <QTextStream>

#include <functional>

namespace {

double medianMilliseconds(int runs, const std::function<void()>& work)
{
    QVector<double> times;
    work(); // warm-up: first-use costs (fonts, resources) are not what is measured
    for (int run = 0; run < runs; ++run)
        times.append(BenchSupport::milliseconds(work));
    return BenchSupport::median(times);
}

void readParameters(BaseNode* node, const QString& keys)
{
    QDomDocument document;
    document.setContent("<Parameters><Active>yes</Active>" + keys + "</Parameters>");
    node->readParameters(document.documentElement());
}

// The time of each node on the picture it receives in the flow.
void printNodeMedians(QTextStream& out, const QMap<int, BaseNode*>& flow, const QImage& input,
                      int runs)
{
    QImage image = input;
    for (BaseNode* node : flow) {
        const QImage before = image;
        const double ms = medianMilliseconds(runs, [node, &before, &image] {
            image = before;
            node->process(image);
        });
        out << QString("    %1 %2 -> %3x%4: %5 ms\n")
                   .arg(node->name(), -34)
                   .arg(QString("%1x%2").arg(before.width()).arg(before.height()), 9)
                   .arg(image.width())
                   .arg(image.height())
                   .arg(ms, 0, 'f', 2);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    BenchSupport::useOffscreenUnlessPlatformSet();
    QApplication app(argc, argv);
    const int runs = argc > 1 ? qMax(1, QString(argv[1]).toInt()) : 200;
    const int fullRuns = qMax(5, runs / 10);
    QTextStream out(stdout);

    NodesOptionsPanel panel;
    QMap<int, BaseNode*> flow;
    flow[0] = panel.createNode("Resize");
    flow[1] = panel.createNode("Brightness, Contrast, Saturation");
    flow[2] = panel.createNode("Vignetting");
    flow[3] = panel.createNode("Frame");
    flow[4] = panel.createNode("Watermark");
    readParameters(flow[0], "<Mode>0</Mode><Width>50</Width><Height>50</Height>");
    readParameters(flow[1], "<Brightness>12</Brightness><Contrast>8</Contrast>"
                            "<Saturation>60</Saturation>");
    panel.slotFlowChanged(flow);

    CommonData::instance()->previewMode = 1;
    const QImage working = BenchSupport::photoLikeImage(360, 270, 12345);
    panel.setImage(working);
    const double preview = medianMilliseconds(runs, [&panel] { panel.slotParametersChanged(); });
    out << "Live preview, five nodes on the reduced working photo 360x270: " << runs
        << " runs, median " << QString::number(preview, 'f', 2) << " ms (goal: at most 10 ms)\n";
    printNodeMedians(out, flow, working, runs);
    out.flush();

    const QImage large = BenchSupport::photoLikeImage(4000, 3000, 12345);
    panel.setImage(large);
    const double reducing =
        medianMilliseconds(fullRuns, [&panel] { panel.slotParametersChanged(); });
    out << "Live preview of a 4000x3000 photo: " << fullRuns << " runs, median "
        << QString::number(reducing, 'f', 2) << " ms\n";
    const double reduction =
        medianMilliseconds(fullRuns, [&large] { NodesOptionsPanel::previewCopy(large); });
    out << "    its reduction to 360x270, once per photo: " << QString::number(reduction, 'f', 2)
        << " ms\n";
    out.flush();

    CommonData::instance()->previewMode = 0;
    const double full = medianMilliseconds(fullRuns, [&panel] { panel.slotParametersChanged(); });
    out << "Full size, five nodes on the 12-megapixel photo 4000x3000: " << fullRuns
        << " runs, median " << QString::number(full, 'f', 1) << " ms\n";
    printNodeMedians(out, flow, large, fullRuns);
    return 0;
}
