// Process-wide state shared by the main page and the nodes: the photo position, the
// preview-mode flag and the photo list model. Created on first use, never destroyed.
#pragma once

#include "textmacros.h"

#include <QHash>
#include <QString>

class ItemsModel;

class CommonData
{
public:
    static CommonData* instance();

    int photoCount = 0;
    int currentIndex = 0;
    // 1 while the live preview runs on a reduced copy; 0 while the large view wants full size.
    int previewMode = 1;
    QString displayName;
    // The folder given as input that a photo of the list was found in, by the photo's path.
    QHash<QString, QString> inputFolders;
    // The current photo as the watermark's text macros see it.
    PhotoContext photo;

    ItemsModel* itemsModel();

    // The photo's file name without its last extension ("a.b.jpg" gives "a.b"; a name without
    // a dot stays whole). The photo lists show it and the batch names its files by it.
    static QString displayNameOf(const QString& fileName);

private:
    CommonData() = default;
    ItemsModel* model = nullptr;
};
