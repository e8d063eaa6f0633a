#include "lockkeys.h"

#include <QGuiApplication>
#include <QLibrary>

#include <qguiapplication_platform.h>

using namespace Qt::StringLiterals;

namespace heft {

std::optional<bool> LockKeyState(LockKey key)
{
#if QT_CONFIG(xcb)
    const auto* x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    if (!x11 || !x11->display())
        return std::nullopt;
    // libX11 is loaded on demand, so that the program needs no X11 headers
    // to build and runs on other platforms without it.
    using GetIndicatorState = int (*)(void* display, unsigned int deviceSpec, unsigned int* state);
    static const auto getState =
        reinterpret_cast<GetIndicatorState>(QLibrary::resolve(u"X11"_s, 6, "XkbGetIndicatorState"));
    if (!getState)
        return std::nullopt;
    constexpr unsigned int CoreKeyboard = 0x0100;
    unsigned int state = 0;
    if (getState(x11->display(), CoreKeyboard, &state) != 0)
        return std::nullopt;
    // The core keyboard's first two indicators are Caps Lock and Num Lock.
    const unsigned int bit = key == LockKey::Caps ? 0x1u : 0x2u;
    return (state & bit) != 0;
#else
    Q_UNUSED(key);
    return std::nullopt;
#endif
}

} // namespace heft
