// From choosing another photo to its result shown on the main page, with the sample flow:
// the median total, and apart from it the medians of the steps the chain is made of.
//   bench_preview [runs]   (default 15)
#include "basenode.h"
#include "creator.h"
#include "creatordroparea.h"
#include "flowpanel.h"
#include "imagepreview.h"
#include "mainpage.h"
#include "nodesoptionspanel.h"
#include "photofiles.h"
#include "representor.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <functional>

namespace {

// A 4000 x 3000 picture with the smooth areas and the grain of a photo.
QImage photoLikePicture(quint32 seed)
{
    QImage picture(4000, 3000, QImage::Format_RGB32);
    QPainter painter(&picture);
    QLinearGradient sky(0, 0, 0, 3000);
    sky.setColorAt(0, QColor(60, 110, 190));
    sky.setColorAt(0.55, QColor(200, 210, 225));
    sky.setColorAt(0.56, QColor(70, 110, 50));
    sky.setColorAt(1, QColor(40, 60, 25));
    painter.fillRect(picture.rect(), sky);
    QRadialGradient sun(900 + seed % 500, 700, 600);
    sun.setColorAt(0, QColor(255, 240, 200, 220));
    sun.setColorAt(1, QColor(255, 240, 200, 0));
    painter.fillRect(picture.rect(), sun);
    painter.end();
    quint32 state = seed;
    for (int y = 0; y < picture.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            state = state * 1664525u + 1013904223u;
            const int grain = int(state >> 28) - 8;
            const QRgb p = row[x];
            row[x] = qRgb(qBound(0, qRed(p) + grain, 255), qBound(0, qGreen(p) + grain, 255),
                          qBound(0, qBlue(p) + grain, 255));
        }
    }
    return picture;
}

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    const int n = values.size();
    return n % 2 ? values.at(n / 2) : (values.at(n / 2 - 1) + values.at(n / 2)) / 2;
}

double milliseconds(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return timer.nsecsElapsed() / 1e6;
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setOrganizationName("Qubrast");
    QApplication::setApplicationName("Pelodine");
    const int runs = argc > 1 ? qMax(1, QString(argv[1]).toInt()) : 15;
    QTextStream out(stdout);

    QTemporaryDir dir;
    QList<QUrl> photos;
    qint64 bytes = 0;
    for (quint32 i = 0; i < 2; ++i) {
        const QString path = dir.filePath(QString("photo%1.jpg").arg(i));
        photoLikePicture(7 + i * 31).save(path, "JPEG", 90);
        bytes += QFileInfo(path).size();
        photos << QUrl::fromLocalFile(path);
    }

    // The sample flow every user starts with: three watermarks.
    MainPage page;
    NodesOptionsPanel* panel = page.nodesOptionsPanel();
    QFile sample(":/sample.flow");
    sample.open(QIODevice::ReadOnly);
    page.flowPanel()->loadFlow(QString::fromUtf8(sample.readAll()));
    QStringList names;
    const QMap<int, BaseNode*> flow = panel->flow();
    for (BaseNode* node : flow)
        names << node->name();
    page.slotFilesDropped(photos);
    CreatorDropArea* area = page.creator()->dropArea();

    QVector<double> total, areaPicture, decode, reduce, run, show;
    for (int i = 0; i < runs; ++i) {
        // The user steps to the other photo; every step below runs on the GUI thread in turn.
        total << milliseconds([&] { page.creator()->slotNext(); });
        const QString path = area->currentPath();
        areaPicture << milliseconds([&] { PhotoFiles::readFitted(path, QSize(720, 720)); });
        QImage photo;
        decode << milliseconds([&] { photo = PhotoFiles::read(path); });
        QImage result;
        const auto connection =
            QObject::connect(panel, &NodesOptionsPanel::imageChanged,
                             [&result](const QImage& image) { result = image; });
        // The run ends with the result shown, so the showing is taken off afterwards.
        const double runAndShow = milliseconds([&] { panel->setImage(photo); });
        QObject::disconnect(connection);
        const double shown = milliseconds([&] { page.representor()->slotSetImage(result); });
        // The run's own first step, the working copy, timed apart from the nodes.
        const double reduced = milliseconds(
            [&] { NodesOptionsPanel::previewCopy(photo.convertToFormat(QImage::Format_ARGB32)); });
        reduce << reduced;
        run << runAndShow - shown - reduced;
        show << shown;
    }

    out << "bench_preview: choosing another 12-megapixel JPEG (4000 x 3000, "
        << bytes / photos.size() / 1024 << " KiB) until its result is shown,\n"
        << "flow: " << names.join(" / ") << "; preview limit " << NodesOptionsPanel::previewLimit()
        << " px; " << runs << " runs, medians in ms\n";
    out << QString("  total, step to result shown   %1\n").arg(median(total), 8, 'f', 1);
    out << QString("  drop area picture (720 box)   %1\n").arg(median(areaPicture), 8, 'f', 1);
    out << QString("  decoding the whole photo      %1\n").arg(median(decode), 8, 'f', 1);
    out << QString("  flow run: ARGB32 + reduction  %1\n").arg(median(reduce), 8, 'f', 1);
    out << QString("  flow run: the %1 nodes         %2\n")
               .arg(names.size())
               .arg(median(run), 8, 'f', 1);
    out << QString("  result shown (both views)     %1\n").arg(median(show), 8, 'f', 1);
    return 0;
}
