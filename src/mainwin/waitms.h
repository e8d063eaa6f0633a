#pragma once
// Waiting without freezing the window.

namespace heft {

// Returns after the given milliseconds; events are handled meanwhile.
void WaitMs(int milliseconds);

} // namespace heft
