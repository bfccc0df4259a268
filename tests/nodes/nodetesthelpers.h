// Helpers shared by the node tests: a varied photo and parameter texts written out by hand.
#pragma once

#include <QDomDocument>
#include <QImage>
#include <QPair>
#include <QString>
#include <QVector>

namespace NodeTest {

using Keys = QVector<QPair<QString, QString>>;

// An opaque ARGB32 picture whose every pixel differs from its neighbours in all channels.
inline QImage photo(int width = 48, int height = 36)
{
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x * 255 / width, y * 255 / height, (x * 7 + y * 13) % 256));
    }
    return image;
}

// The text of a Parameters element as the nodes write it: indentation 1, one child a line.
inline QString parametersText(const QString& active, const Keys& keys)
{
    QString text = "<Parameters>\n <Active>" + active + "</Active>\n";
    for (const auto& key : keys)
        text += " <" + key.first + ">" + key.second + "</" + key.first + ">\n";
    return text + "</Parameters>\n";
}

// Hands text to the node's readParameters the way a flow loader does.
template <typename Node> void readText(Node* node, const QString& text)
{
    QDomDocument document;
    document.setContent(text);
    node->readParameters(document.documentElement());
}

} // namespace NodeTest
