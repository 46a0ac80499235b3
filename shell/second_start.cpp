#include "shell/second_start.h"

#include "platform/messages.h"
#include "storage/settings_files.h"

namespace zifferon {

void tellRunsAlready(Machine& machine) {
    const Language language = readLanguage(machine.files);
    Messages(machine.boxes, language)
        .warn({u"Zifferon PRO läuft in diesem Ordner bereits und antwortet nicht.   ",
               u"Zifferon PRO is already running in this folder and does not answer.   "});
}

}  // namespace zifferon
