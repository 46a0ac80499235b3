#include "memory/result_clipboard.h"

namespace zifferon {

void ResultClipboard::copyEntry() {
    if (s.clipcheck.ticked()) put(s.eingabe.text());
}

void ResultClipboard::publishSubtotal() {
    if (s.clipcheck.ticked() && !s.suppressClipboard) put(s.zwischen.text());
}

void ResultClipboard::tickChanged() {
    if (!s.clipcheck.ticked()) clipboard_.clear();
}

void ResultClipboard::put(const Text& text) {
    clipboard_.clear();
    text_ = text;
    clipboard_.setText(text_);
}

}  // namespace zifferon
