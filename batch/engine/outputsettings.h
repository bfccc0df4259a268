// The stored output settings of a batch run: format, quality, renaming and what happens at the end.
#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

struct OutputSettings
{
    bool openLocation = true;    // "KeyOpenLocation": open the destination when a run ends
    QString format = "JPEG";     // "KeyFormat": one of formats()
    int quality = 90;            // "KeyQuality": 1..100, used for "JPEG" only
    bool rename = false;         // "KeyRename"
    QString newName = "NewName"; // "KeyNewName": prefix of the new names
    int numbers = 0;             // "KeyNumbers": 0 all, 1 odd, 2 even
    int maxMegapixels = 100;     // "KeyMaxMegapixels": the largest photo a run decodes
    int metadata = 0;            // "KeyMetadata": a PhotoMetadata::Choice, 0 keeps it all
    QString artist;              // "KeyArtist": written into the results' metadata when set
    QString copyright;           // "KeyCopyright": likewise
    // "KeyBackground": what transparent pixels are laid on in a format without transparency.
    QColor background = Qt::white;
    bool shortExtensions = false; // "KeyShortExtensions": ".jpg" and ".tif" instead of the names
    int maxKilobytes = 0;         // "KeyMaxKilobytes": the largest JPEG file, 0 for no limit
    int jobs = 0;                 // "KeyJobs": photos worked on at once, 0 for one per core
    bool fastReading = false;     // "KeyFastReading": decode shrunk where the flow shrinks first

    // The stored values; a key that is missing or unreadable gives the default above.
    static OutputSettings load();
    // Writes the six keys in the order the settings dialog saves them, then the newer ones.
    void save() const;

    // The output formats in the order the settings dialog lists them.
    static QStringList formats();

    // The quality handed to the image writer: the stored one for "JPEG", else the format's default
    // (-1).
    int writerQuality() const;
    // maxMegapixels in pixels.
    qint64 pixelBudget() const;
    // The results' file extension, without the dot.
    QString extension() const;
    // Whether the format keeps transparency; the others get photos laid on the background.
    bool keepsTransparency() const;
    // jobs, or the number of cores for 0.
    int jobCount() const;
    // The most photos worked on at once that a setting or the command line may ask for.
    static constexpr int maxJobs = 64;
};
