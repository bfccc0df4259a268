// Pixel memory handed from one photo to the next, so that decoding a photo writes into memory
// the process already holds instead of having the system hand out (and clear) fresh pages.
#pragma once

#include <QImage>

#include <memory>
#include <mutex>
#include <vector>

class ImageBuffers : public std::enable_shared_from_this<ImageBuffers>
{
public:
    // idleLimit: how many blocks no image uses are kept for later; more are given back.
    static std::shared_ptr<ImageBuffers> create(int idleLimit);

    // An image of size and a 32-bit format, pixels not set, in the smallest idle block that
    // holds it or a new one. Its memory comes back here when the last copy of it is gone, on
    // whatever thread that is; the images keep this pool alive. Null for a format of another
    // depth or when the memory cannot be had.
    QImage take(const QSize& size, QImage::Format format);

    ImageBuffers(const ImageBuffers&) = delete;
    ImageBuffers& operator=(const ImageBuffers&) = delete;
    ~ImageBuffers();

private:
    struct Block
    {
        void* data = nullptr;
        size_t bytes = 0;
    };
    struct Lease;

    explicit ImageBuffers(int idleLimit);
    static void giveBack(void* lease);

    const int idleLimit;
    std::mutex mutex;
    std::vector<Block> idle;
};
