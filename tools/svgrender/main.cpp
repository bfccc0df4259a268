// Renders one SVG picture of resources/svg into a PNG of a given pixel size, so that the
// committed PNGs can always be made again from their sources (scripts/render-pictures.sh).
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

int main(int argc, char* argv[])
{
    // Fonts need a platform plugin; the renderer must also run where no display exists.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QTextStream err(stderr);

    const QStringList arguments = QGuiApplication::arguments();
    bool widthOk = false;
    bool heightOk = false;
    const int width = arguments.value(3).toInt(&widthOk);
    const int height = arguments.value(4).toInt(&heightOk);
    if (arguments.size() != 5 || !widthOk || !heightOk || width < 1 || height < 1) {
        err << "usage: pelodine-svgrender <input.svg> <output.png> <width> <height>\n";
        return 2;
    }

    QSvgRenderer renderer(arguments.at(1));
    if (!renderer.isValid()) {
        err << "cannot read " << arguments.at(1) << '\n';
        return 1;
    }

    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    renderer.render(&painter);
    painter.end();

    if (!image.convertToFormat(QImage::Format_ARGB32).save(arguments.at(2), "PNG")) {
        err << "cannot write " << arguments.at(2) << '\n';
        return 1;
    }
    return 0;
}
