#pragma once
// Lengths that the program keeps in twips (1/1440 inch) and the screen's
// pixels.

namespace heft {

// Twips per pixel of the primary screen: 1440 / logical DPI (15 at 96 DPI).
int TwipsPerPixel();
int TwipsToPixels(int twips);
int PixelsToTwips(int pixels);

} // namespace heft
