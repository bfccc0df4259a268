// Renders one SVG picture of resources/svg into a PNG at its own size times a scale, so that
// the committed PNGs can always be made again from their sources (scripts/render-pictures.sh).
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

namespace {

// "2" scales the picture's own size, "48x48" gives the size itself; anything else is empty.
QSize outputSize(const QString& argument, const QSize& ownSize)
{
    if (argument.isEmpty())
        return ownSize;
    const QStringList parts = argument.split('x');
    bool firstOk = false;
    bool secondOk = parts.size() == 1;
    const int first = parts.first().toInt(&firstOk);
    const int second = secondOk ? first : parts.value(1).toInt(&secondOk);
    if (!firstOk || !secondOk || first < 1 || second < 1 || parts.size() > 2)
        return {};
    return parts.size() == 1 ? ownSize * first : QSize(first, second);
}

} // namespace

int main(int argc, char* argv[])
{
    // Fonts need a platform plugin; the renderer must also run where no display exists.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    QTextStream err(stderr);

    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 3 || arguments.size() > 4) {
        err << "usage: pelodine-svgrender <input.svg> <output.png> [scale | WIDTHxHEIGHT]\n";
        return 2;
    }

    QSvgRenderer renderer(arguments.at(1));
    if (!renderer.isValid()) {
        err << "cannot read " << arguments.at(1) << '\n';
        return 1;
    }

    // Without a size the picture's own width and height attributes give it.
    const QSize size = outputSize(arguments.value(3), renderer.defaultSize());
    if (size.isEmpty()) {
        err << "bad size " << arguments.at(3) << '\n';
        return 2;
    }
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
