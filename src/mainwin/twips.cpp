#include "twips.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace heft {

int TwipsPerPixel()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double dpi = screen ? screen->logicalDotsPerInchX() : 96.0;
    return std::max(1, static_cast<int>(std::lround(1440.0 / dpi)));
}

int TwipsToPixels(int twips)
{
    return static_cast<int>(std::lround(static_cast<double>(twips) / TwipsPerPixel()));
}

int PixelsToTwips(int pixels)
{
    return pixels * TwipsPerPixel();
}

} // namespace heft
