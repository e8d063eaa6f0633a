#pragma once
// The state of Caps Lock and Num Lock. Qt does not report it; on X11 the
// keyboard's indicators tell it, elsewhere it is unknown.

#include <optional>

namespace heft {

enum class LockKey { Caps, Num };

// True when the lock is on; nothing when the platform can't tell.
std::optional<bool> LockKeyState(LockKey key);

} // namespace heft
