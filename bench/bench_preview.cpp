// From choosing another photo to its result shown on the main page, with the sample flow:
// the median total, and apart from it the medians of the steps the chain is made of.
//   bench_preview [runs]   (default 15)
#include "basenode.h"
#include "benchsupport.h"
#include "creator.h"
#include "creatordroparea.h"
#include "flowpanel.h"
#include "imagepreview.h"
#include "mainpage.h"
#include "nodesoptionspanel.h"
#include "outputsettings.h"
#include "photofiles.h"
#include "photometadata.h"
#include "representor.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTextStream>

using namespace BenchSupport;

int main(int argc, char* argv[])
{
    useOffscreenUnlessPlatformSet();
    QApplication app(argc, argv);
    QApplication::setOrganizationName("Qubrast");
    QApplication::setApplicationName("Pelodine");
    const int runs = argc > 1 ? qMax(1, QString(argv[1]).toInt()) : 15;
    QTextStream out(stdout);

    QTemporaryDir dir;
    OutputSettings author;
    author.artist = "Ann";
    author.copyright = "(c) Ann";
    QList<QUrl> photos;
    qint64 bytes = 0;
    for (quint32 i = 0; i < 2; ++i) {
        const QString path = dir.filePath(QString("photo%1.jpg").arg(i));
        // With an author in EXIF, IPTC and XMP, as a camera's photo has its details.
        QBuffer encoded;
        encoded.open(QIODevice::WriteOnly);
        photoLikeImage(4000, 3000, 7 + i * 31).save(&encoded, "JPEG", 90);
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(PhotoMetadata().embedInto(encoded.data(), QSize(4000, 3000), author));
        file.close();
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

    QVector<double> total, areaPicture, details, decode, reduce, run, show;
    for (int i = 0; i < runs; ++i) {
        // The user steps to the other photo; every step below runs on the GUI thread in turn.
        total << milliseconds([&] { page.creator()->slotNext(); });
        const QString path = area->currentPath();
        areaPicture << milliseconds([&] { PhotoFiles::readFitted(path, QSize(720, 720)); });
        details << milliseconds([&] { PhotoMetadata::read(path).describe(path); });
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
    out << QString("  photo details (text macros)   %1\n").arg(median(details), 8, 'f', 1);
    out << QString("  decoding the whole photo      %1\n").arg(median(decode), 8, 'f', 1);
    out << QString("  flow run: ARGB32 + reduction  %1\n").arg(median(reduce), 8, 'f', 1);
    out << QString("  flow run: the %1 nodes         %2\n")
               .arg(names.size())
               .arg(median(run), 8, 'f', 1);
    out << QString("  result shown (both views)     %1\n").arg(median(show), 8, 'f', 1);
    return 0;
}
