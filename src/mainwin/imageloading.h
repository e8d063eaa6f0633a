#pragma once
// Images that a collection names in its configuration (splash, logo), loaded
// from the bm/ folder. Older collections name Windows metafiles, which cannot
// be drawn here: a name whose file cannot be decoded is tried again with the
// same stem as ".png" and then as ".svg", so "Splash.wmf" finds the shipped
// "Splash.svg".

#include <QImage>
#include <QSize>
#include <QString>

namespace heft {

// The error numbers the log shows for an image that could not be loaded.
enum ImageError : int {
    ImageFileNotFound = 53,
    ImageInvalid = 481,
};

struct LoadedImage {
    QImage image;   // null when nothing could be loaded
    int error = 0;  // ImageError of the named file
    QString description; // German reason for the named file, with its path
};

// Loads path, or else the first of its ".png" and ".svg" siblings that can
// be decoded. The error and description always speak of path itself, the
// name the user configured. A non-empty fitInto scales the picture to fit
// that box (in logical pixels) keeping its aspect; drawings are rendered at
// that size times pixelRatio so that they stay sharp.
LoadedImage LoadConfiguredImage(const QString& path, QSize fitInto = {}, qreal pixelRatio = 1.0);

} // namespace heft
