#include "previewcopy.h"

QImage PreviewCopy::reduced(const QImage& photo, int limit)
{
    if (photo.width() > limit)
        return photo.scaled(limit, limit, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return photo;
}
