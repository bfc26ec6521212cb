// Comparison of drawn pictures with reference pictures in the tree.
//
// The references of a test are in the folder "reference" beside it, as PNG files; those of pictures
// that Qt 6 draws otherwise are in its folder "qt6". A picture that
// differs is written, with a picture of the differing pixels, into the folder "difference" of the
// test's build directory, and the test fails naming them. With CLOCK_ACCEPT_REFERENCES=1 in the
// environment the references are rewritten instead: look at them before committing.
#pragma once

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QString>

#include <algorithm>

namespace ReferencePicture {

/// Where the references are, and where the pictures of a failure go.
struct Folders
{
    QString references = QStringLiteral(CLOCK_REFERENCE_DIR);
    QString differences = QStringLiteral(CLOCK_DIFFERENCE_DIR);
};

/// How far two colours lie apart: the largest difference of a channel, alpha among them.
inline int Distance(QRgb a, QRgb b)
{
    const int channels[] = {qRed(a) - qRed(b), qGreen(a) - qGreen(b), qBlue(a) - qBlue(b),
                            qAlpha(a) - qAlpha(b)};
    int distance = 0;
    for (const int channel : channels)
        distance = std::max(distance, std::abs(channel));
    return distance;
}

/// White where the pictures agree, red where they differ; as large as the larger of the two, so
/// that a wrong size shows as a red margin. Counts the red pixels.
inline QImage Difference(const QImage &actual, const QImage &expected, int tolerance, int &count)
{
    const QSize size = actual.size().expandedTo(expected.size()).expandedTo(QSize(1, 1));
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    count = 0;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool inBoth = actual.valid(x, y) && expected.valid(x, y);
            if (inBoth && Distance(actual.pixel(x, y), expected.pixel(x, y)) <= tolerance)
                continue;
            picture.setPixel(x, y, qRgb(255, 0, 0));
            ++count;
        }
    }
    return picture;
}

inline QImage Read(const QString &path)
{
    return QImage(path).convertToFormat(QImage::Format_ARGB32);
}

/// The file of a reference; with Qt 6 its own one, if there is one or it is accepted and differs.
inline QString PathOf(const QString &name, const QImage &accepted, const Folders &folders)
{
    const QString path = QStringLiteral("%1/%2.png").arg(folders.references, name);
    const QString own = QStringLiteral("%1/qt6/%2.png").arg(folders.references, name);
    const bool differs = !accepted.isNull() && Read(path) != accepted;
    return QT_VERSION_MAJOR == 6 && (differs || QFileInfo::exists(own)) ? own : path;
}

inline bool Accepting()
{
    return qEnvironmentVariableIntValue("CLOCK_ACCEPT_REFERENCES") == 1;
}

inline QString Accept(const QImage &actual, const QString &path)
{
    QDir().mkpath(QFileInfo(path).path());
    if (QImage(path) == actual || actual.save(path))
        return QString();
    return QStringLiteral("cannot write the reference %1").arg(path);
}

/// Compares a picture with the reference of a name (without ".png"). An empty text means that they
/// agree within the tolerance, in levels of 255 a channel; anything else says what is wrong.
inline QString Compare(const QImage &picture, const QString &name, int tolerance = 0,
                       const Folders &folders = Folders())
{
    const QImage actual = picture.convertToFormat(QImage::Format_ARGB32);
    const QString path = PathOf(name, Accepting() ? actual : QImage(), folders);
    if (actual.isNull())
        return QStringLiteral("nothing was drawn for %1").arg(path);
    if (Accepting())
        return Accept(actual, path);

    const QImage expected = Read(path);
    int count = 0;
    const QImage difference = Difference(actual, expected, tolerance, count);
    if (count == 0)
        return QString();
    const QString failed = folders.differences + QLatin1Char('/') + name;
    QDir().mkpath(QFileInfo(failed).path());
    actual.save(failed + QStringLiteral("-actual.png"));
    difference.save(failed + QStringLiteral("-difference.png"));
    return QStringLiteral("%1 pixels differ from %2; see %3-actual.png and -difference.png")
        .arg(count)
        .arg(expected.isNull() ? path + QStringLiteral(" (missing)") : path, failed);
}

} // namespace ReferencePicture

/// Fails the running test function when the picture differs from its reference.
#define COMPARE_WITH_REFERENCE(picture, name) \
    do { \
        const QString wrong = ReferencePicture::Compare(picture, name); \
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong)); \
    } while (false)
