#include "storage/write_protection.h"

namespace zifferon {

void stopWriteProtected(Machine& machine, Language language) {
    Messages(machine.boxes, language)
        .fail({u"Zifferon PRO befindet sich auf einem schreibgeschützten Datenträger! \r\n"
               u"Heben Sie den Schreibschutz auf bzw. installieren Sie das Programm  \r\n"
               u"auf einem anderen Medium.   ",
               u"Zifferon PRO is located on a write-protected media! Remove the \r\n"
               u"write-protection or run it from another media!   "});
    machine.process.end();
}

void tellUnsaved(const Messages& messages, const std::string& file) {
    const Text name = fromUtf8(file);
    messages.warn({name + u": Die Einstellung konnte nicht gespeichert werden.   ",
                   name + u": The setting could not be saved.   "});
}

}  // namespace zifferon
