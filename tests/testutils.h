// Shared helpers for the Qt Test executables: a sandboxed home per process and image comparison.
#pragma once

#include <QApplication>
#include <QImage>
#include <QPair>
#include <QString>
#include <QTemporaryDir>
#include <QTest>
#include <QVector>

#include <tuple>

namespace TestUtils {

// Points HOME and the XDG folders at a fresh temporary directory, so that no test
// touches the real user's home, settings or pictures. Call before the application object exists.
QString makeSandboxHome();

// The sandbox home of this process (valid after makeSandboxHome).
QString sandboxHome();

// Empty when both images have the same size and the same 32-bit words, otherwise a
// description of the first difference ("size 10x10 != 12x10", "pixel (3,4): #ff102030 != ...").
QString imageDifference(const QImage& actual, const QImage& expected);

// An ARGB32 image of the given size filled with one colour word.
QImage filledImage(int width, int height, QRgb argb);

// A picture of one opaque colour on its left half and another on its right (red and blue
// unless told), to see which way it was turned.
QImage halvesPicture(int width, int height, QRgb left = 0xffff0000, QRgb right = 0xff0000ff);

// Writes data to path, making the folders on the way; returns path.
QString writeFile(const QString& path, const QByteArray& data);

// Saves image to path in the format its suffix names (PNG if none Qt knows), making the folders
// on the way; returns path.
QString writeImage(const QString& path, const QImage& image);

// The names of the files in folder, hidden and special ones too, sorted, separated by spaces.
QString fileNames(const QString& folder);

// The bytes of the file at path; empty when it cannot be read.
QByteArray readFile(const QString& path);

// image as a JPEG whose APP1 segment carries the EXIF orientation tag (6: turn 90 degrees
// clockwise to show it upright).
QByteArray jpegWithOrientation(const QImage& image, quint16 orientation);

// Adds the columns of a data table in order: addColumns<QString, int>("name", "count").
template <typename... Types, typename... Names> void addColumns(const Names&... names)
{
    (QTest::addColumn<Types>(names), ...);
}

// The current row's values of the named columns, to unpack: auto [name, count] =
// fetch<QString, int>("name", "count").
template <typename... Types, typename... Names> std::tuple<Types...> fetch(const Names&... names)
{
    return {*static_cast<Types*>(QTest::qData(names, qMetaTypeId<Types>()))...};
}

// Adds a data row named tag holding values in column order, so that a table reads one row a line.
template <typename... Values> void addRow(const char* tag, const Values&... values)
{
    (QTest::newRow(tag) << ... << values);
}

// The pairs of "key=value|key=value" in order, for long parameter lists written by hand;
// a value may hold '=' (base64 padding) but not '|'.
QVector<QPair<QString, QString>> keyValues(const QString& text);

// What a program run by run() did.
struct Outcome
{
    int exitCode = -1; // -1 when it crashed or did not end within two minutes
    QString out;
    QString err;
};

// Runs program as a user would from a terminal with no display and no runtime folder (which
// Qt would note on the standard error if the program let it).
Outcome run(const QString& program, const QStringList& arguments);

} // namespace TestUtils

#define QCOMPARE_IMAGES(actual, expected)                                                          \
    do {                                                                                           \
        const QString diff_ = TestUtils::imageDifference((actual), (expected));                    \
        if (!diff_.isEmpty())                                                                      \
            QFAIL(qPrintable(diff_));                                                              \
    } while (false)

// QTEST_MAIN with a sandboxed home and the offscreen platform.
#define PELODINE_TEST_MAIN(TestObject)                                                             \
    int main(int argc, char* argv[])                                                               \
    {                                                                                              \
        TestUtils::makeSandboxHome();                                                              \
        qputenv("QT_QPA_PLATFORM", "offscreen");                                                   \
        QApplication app(argc, argv);                                                              \
        QApplication::setOrganizationName("Qubrast");                                              \
        QApplication::setApplicationName("Pelodine");                                              \
        TestObject tc;                                                                             \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&tc, argc, argv);                                                      \
    }
