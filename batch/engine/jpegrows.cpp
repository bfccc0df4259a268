#include "jpegrows.h"

#include <QColorSpace>
#include <QIODevice>
#include <QPair>
#include <QVector>

#include <csetjmp>
#include <cstdio>
#include <cstring>

#include <jpeglib.h>

namespace {

constexpr int readChunk = 4096;

// Reads from the device; at its end a fake end-of-image marker, without a warning, as Qt's
// reader does, so that a cut-off photo is reported in the same words.
struct DeviceSource : jpeg_source_mgr
{
    QIODevice* device = nullptr;
    JOCTET buffer[readChunk];
};

void initSource(j_decompress_ptr) {}

boolean fillInput(j_decompress_ptr info)
{
    auto* source = static_cast<DeviceSource*>(info->src);
    const qint64 read = source->device->read(reinterpret_cast<char*>(source->buffer), readChunk);
    source->next_input_byte = source->buffer;
    if (read <= 0) {
        source->buffer[0] = 0xFF;
        source->buffer[1] = JPEG_EOI;
        source->bytes_in_buffer = 2;
    } else {
        source->bytes_in_buffer = size_t(read);
    }
    return TRUE;
}

void skipInput(j_decompress_ptr info, long bytes)
{
    auto* source = static_cast<DeviceSource*>(info->src);
    while (bytes > long(source->bytes_in_buffer)) {
        bytes -= long(source->bytes_in_buffer);
        fillInput(info);
    }
    if (bytes > 0) {
        source->next_input_byte += bytes;
        source->bytes_in_buffer -= size_t(bytes);
    }
}

void termSource(j_decompress_ptr) {}

struct ErrorJump : jpeg_error_mgr
{
    std::jmp_buf jump;
};

void sayMessage(j_common_ptr info)
{
    char text[JMSG_LENGTH_MAX];
    (*info->err->format_message)(info, text);
    qWarning("%s", text);
}

[[noreturn]] void failDecoding(j_common_ptr info)
{
    (*info->err->output_message)(info);
    std::longjmp(static_cast<ErrorJump*>(info->err)->jump, 1);
}

} // namespace

struct JpegRows::Decoder
{
    jpeg_decompress_struct info = {};
    ErrorJump errors;
    DeviceSource source;
    // What the saved markers said; libjpeg frees them when decoding ends.
    QVector<QPair<QString, QString>> texts;
    QByteArray profile;
};

JpegRows::JpegRows(QIODevice& device)
    : decoder(std::make_unique<Decoder>())
{
    jpeg_decompress_struct& info = decoder->info;
    info.err = jpeg_std_error(&decoder->errors);
    decoder->errors.error_exit = failDecoding;
    decoder->errors.output_message = sayMessage;
    jpeg_create_decompress(&info);
    DeviceSource& source = decoder->source;
    source.device = &device;
    source.init_source = initSource;
    source.fill_input_buffer = fillInput;
    source.skip_input_data = skipInput;
    source.resync_to_restart = jpeg_resync_to_restart;
    source.term_source = termSource;
    source.next_input_byte = source.buffer;
    source.bytes_in_buffer = 0;
    info.src = &source;
}

JpegRows::~JpegRows()
{
    jpeg_destroy_decompress(&decoder->info);
}

// No object with a destructor lives in a function that libjpeg may leave by its long jump.
bool JpegRows::readHeader()
{
    jpeg_decompress_struct& info = decoder->info;
    if (setjmp(decoder->errors.jump))
        return false;
    jpeg_save_markers(&info, JPEG_COM, 0xFFFF);
    jpeg_save_markers(&info, JPEG_APP0 + 2, 0xFFFF);
    jpeg_read_header(&info, TRUE);
    keepMarkers();
    if (info.num_components != 3 && info.num_components != 1)
        return false;
    if (info.jpeg_color_space != JCS_YCbCr && info.jpeg_color_space != JCS_RGB &&
        info.jpeg_color_space != JCS_GRAYSCALE)
        return false;
#if Q_BYTE_ORDER == Q_LITTLE_ENDIAN
    info.out_color_space = JCS_EXT_BGRA;
#else
    info.out_color_space = JCS_EXT_ARGB;
#endif
    jpeg_calc_output_dimensions(&info);
    return true;
}

bool JpegRows::start()
{
    if (setjmp(decoder->errors.jump))
        return false;
    jpeg_start_decompress(&decoder->info);
    return true;
}

QSize JpegRows::size() const
{
    return {int(decoder->info.output_width), int(decoder->info.output_height)};
}

bool JpegRows::readRow(QRgb* words)
{
    if (setjmp(decoder->errors.jump))
        return false;
    auto row = reinterpret_cast<JSAMPROW>(words);
    return jpeg_read_scanlines(&decoder->info, &row, 1) == 1;
}

bool JpegRows::finish()
{
    if (setjmp(decoder->errors.jump))
        return false;
    jpeg_finish_decompress(&decoder->info);
    return true;
}

void JpegRows::describe(QImage& image) const
{
    const jpeg_decompress_struct& info = decoder->info;
    if (info.density_unit == 1) {
        image.setDotsPerMeterX(int(100. * info.X_density / 2.54));
        image.setDotsPerMeterY(int(100. * info.Y_density / 2.54));
    } else if (info.density_unit == 2) {
        image.setDotsPerMeterX(int(100. * info.X_density));
        image.setDotsPerMeterY(int(100. * info.Y_density));
    }
    for (const auto& text : decoder->texts)
        image.setText(text.first, text.second);
    if (!decoder->profile.isEmpty())
        image.setColorSpace(QColorSpace::fromIccProfile(decoder->profile));
}

void JpegRows::keepMarkers()
{
    for (jpeg_saved_marker_ptr marker = decoder->info.marker_list; marker; marker = marker->next) {
        const auto* data = reinterpret_cast<const char*>(marker->data);
        if (marker->marker == JPEG_COM) {
            // "key: value", or the whole comment a description when no such key leads it.
            const QString comment = QString::fromUtf8(data, int(marker->data_length));
            const int colon = comment.indexOf(QLatin1String(": "));
            if (colon == -1 || comment.indexOf(QLatin1Char(' ')) < colon)
                decoder->texts.append({QStringLiteral("Description"), comment});
            else
                decoder->texts.append({comment.left(colon), comment.mid(colon + 2)});
        } else if (marker->marker == JPEG_APP0 + 2 && marker->data_length > 128 + 4 + 14 &&
                   std::strcmp(data, "ICC_PROFILE") == 0) {
            decoder->profile.append(data + 14, int(marker->data_length) - 14);
        }
    }
}
