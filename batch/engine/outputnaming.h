// How a batch run names its output files.
#pragma once

#include <QString>

namespace OutputNaming {

// The file extension of an output format: its name in lower case ("JPEG" gives "jpeg"); in the
// short form the three letters most programs write ("jpg", "tif").
QString extension(const QString& format, bool shortForm = false);

// The name of the photo at index (0-based) of a run. With rename off, its display name
// (CommonData::displayNameOf); with rename on, newName followed by the scheme's number: numbers 0
// gives index, 1 gives oddCounter and 2 (or anything else) evenCounter; the counter used then grows
// by 2, so that the odd and even sequences continue across runs as long as their owner keeps them.
QString outputName(const QString& filePath, int index, bool rename, const QString& newName,
                   int numbers, int& oddCounter, int& evenCounter);

// Whether a file named name + extension lands in the output folder itself: no path separator,
// and not "." or "..".
bool staysInFolder(const QString& name);

} // namespace OutputNaming
