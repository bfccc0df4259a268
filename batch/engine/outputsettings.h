// The stored output settings of a batch run: format, quality, renaming and what happens at the end.
#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

struct OutputSettings
{
    bool openLocation = true;    // "KeyOpenLocation": open the destination when a run ends
    QString format = "JPEG";     // "KeyFormat": one of formats()
    int quality = 90;            // "KeyQuality": 1..100, for the formats takesQuality names
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
    // "KeyMaxKilobytes": the largest file in a format takesSizeBudget names, 0 for no limit.
    int maxKilobytes = 0;
    // "KeyConvertToSrgb": pixels converted from the photo's colour profile to sRGB before the flow.
    bool convertToSrgb = false;
    // "KeySaveInto": the folder the results go into; empty for a new time-stamped folder under
    // the output base folder.
    QString saveInto;
    // "KeyKeepFolders": a photo found in a folder given as input goes into the same subfolder
    // below the output folder.
    bool keepFolders = false;
    int jobs = 0;             // "KeyJobs": photos worked on at once, 0 for one per core
    bool fastReading = false; // "KeyFastReading": decode shrunk where the flow shrinks first

    // The stored values; a key that is missing or unreadable gives the default above.
    static OutputSettings load();
    // Writes the six keys in the order the settings dialog saves them, then the newer ones.
    void save() const;

    // The output formats in the order the settings dialog lists them: the six first, then the
    // newer ones that KDE's image format plugins write.
    static QStringList formats();
    // Whether the quality applies to format: "JPEG", "WEBP", "AVIF", "JXL" and "HEIC".
    static bool takesQuality(const QString& format);
    // Whether a size budget applies to format: those that take a quality but "HEIC", whose
    // encoder is too slow to try seven qualities a photo.
    static bool takesSizeBudget(const QString& format);

    // The quality handed to the image writer: the stored one where it applies, else the format's
    // default (-1).
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
