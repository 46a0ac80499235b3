#include "shell/rule_calls.h"

#include "shell/send_keys.h"

namespace zifferon {

void RuleCalls::SendKeysEx(TextView notation) {
    for (const Key key : keysOfNotation(notation)) keys_.queue(key);
}

void RuleCalls::openHelp() {
    const bool english = window_.state.language == Language::english;
    machine_.desktop.openDocument(english ? "zifferonpro-help_en.chm" : "zifferonpro-help_de.chm");
}

}  // namespace zifferon
