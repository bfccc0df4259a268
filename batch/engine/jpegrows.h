// A JPEG read one row at a time, so that a photo that is shrunk as it is read never lies whole in
// memory at its full size.
#pragma once

#include <QImage>

#include <memory>

class QIODevice;

// libjpeg set up as Qt's own JPEG reader sets it up: the rows, resolution, texts and colour
// profile are what QImageReader gives for the same file. Decoder messages go out as Qt warnings
// on the calling thread, as the reader's do. One thread uses an object at a time.
class JpegRows
{
public:
    explicit JpegRows(QIODevice& device);
    ~JpegRows();

    JpegRows(const JpegRows&) = delete;
    JpegRows& operator=(const JpegRows&) = delete;

    // Reads the header; false for a damaged one and for colours other than RGB and grey, which
    // are left to Qt's reader.
    bool readHeader();
    QSize size() const;
    // Starts decoding, which for a progressive photo reads all of it; false when that fails.
    bool start();
    // Decodes the next row into size().width() words 0xffRRGGBB; false when the data is broken.
    bool readRow(QRgb* words);
    // Reads what follows the last row, as Qt's reader does; false when that is broken.
    bool finish();
    // Sets the resolution, texts and colour profile the file gives, as Qt's reader sets them.
    void describe(QImage& image) const;

private:
    struct Decoder;
    void keepMarkers();
    std::unique_ptr<Decoder> decoder;
};
