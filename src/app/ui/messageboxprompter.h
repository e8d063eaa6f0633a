#pragma once
// Questions and messages as QMessageBoxes with the exact title, text, icon
// and buttons each caller names.

#include "core/prompter.h"

namespace heft {

class MessageBoxPrompter : public Prompter {
public:
    Answer Ask(const Message& message) override;
};

} // namespace heft
