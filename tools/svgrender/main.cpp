// Renders one SVG picture of resources/svg into a PNG at its own size times a scale, so that
// the committed PNGs can always be made again from their sources (scripts/render-pictures.sh).
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
    bool scaleOk = arguments.size() < 4;
    const int scale = scaleOk ? 1 : arguments.at(3).toInt(&scaleOk);
    if (arguments.size() < 3 || arguments.size() > 4 || !scaleOk || scale < 1) {
        err << "usage: pelodine-svgrender <input.svg> <output.png> [scale]\n";
        return 2;
    }

    QSvgRenderer renderer(arguments.at(1));
    if (!renderer.isValid()) {
        err << "cannot read " << arguments.at(1) << '\n';
        return 1;
    }

    // The picture's own width and height attributes give its size at scale 1.
    const QSize size = renderer.defaultSize() * scale;
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
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
