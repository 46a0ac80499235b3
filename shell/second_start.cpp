#include "shell/second_start.h"

#include "shell/settings_files.h"

namespace zifferon {

void tellRunsAlready(Machine& machine) {
    const bool english = readsEnglish(machine.files);
    machine.boxes.show(
        {.icon = BoxIcon::warning,
         .text = Text(english ? u"Zifferon PRO is already running in this folder and does not answer.   "
                              : u"Zifferon PRO läuft in diesem Ordner bereits und antwortet nicht.   "),
         .english = english});
}

}  // namespace zifferon
