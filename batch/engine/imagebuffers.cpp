#include "imagebuffers.h"

#include <algorithm>
#include <cstdlib>

namespace {

constexpr qint64 roundingBytes = 4 << 20;

} // namespace

struct ImageBuffers::Lease
{
    std::shared_ptr<ImageBuffers> pool;
    Block block;
};

std::shared_ptr<ImageBuffers> ImageBuffers::create(int idleLimit)
{
    return std::shared_ptr<ImageBuffers>(new ImageBuffers(idleLimit));
}

ImageBuffers::ImageBuffers(int idleLimit)
    : idleLimit(idleLimit)
{
}

ImageBuffers::~ImageBuffers()
{
    for (const Block& block : idle)
        std::free(block.data);
}

QImage ImageBuffers::take(const QSize& size, QImage::Format format)
{
    if (size.isEmpty() || QImage::toPixelFormat(format).bitsPerPixel() != 32)
        return {};
    const qint64 bytesPerLine = qint64(size.width()) * 4;
    const qint64 bytes = bytesPerLine * size.height();
    if (bytesPerLine > INT_MAX || bytes > INT_MAX)
        return {};
    Block block;
    {
        const std::lock_guard<std::mutex> lock(mutex);
        // The smallest block that holds the image; when none does, the largest is given back
        // for the new one, so that photos growing in size do not pile up blocks.
        std::sort(idle.begin(), idle.end(),
                  [](const Block& a, const Block& b) { return a.bytes < b.bytes; });
        const auto fit = std::find_if(idle.begin(), idle.end(), [bytes](const Block& candidate) {
            return qint64(candidate.bytes) >= bytes;
        });
        if (fit != idle.end()) {
            block = *fit;
            idle.erase(fit);
        } else if (!idle.empty()) {
            std::free(idle.back().data);
            idle.pop_back();
        }
    }
    if (!block.data) {
        // Rounded up, so that photos of nearly one size share their blocks.
        const size_t rounded = size_t((bytes + roundingBytes - 1) / roundingBytes * roundingBytes);
        block = {std::malloc(rounded), rounded};
        if (!block.data)
            return {};
    }
    auto* lease = new Lease{shared_from_this(), block};
    return QImage(static_cast<uchar*>(block.data), size.width(), size.height(), int(bytesPerLine),
                  format, &ImageBuffers::giveBack, lease);
}

void ImageBuffers::giveBack(void* leased)
{
    std::unique_ptr<Lease> lease(static_cast<Lease*>(leased));
    ImageBuffers& pool = *lease->pool;
    {
        const std::lock_guard<std::mutex> lock(pool.mutex);
        if (int(pool.idle.size()) < pool.idleLimit) {
            pool.idle.push_back(lease->block);
            return;
        }
    }
    std::free(lease->block.data);
}
