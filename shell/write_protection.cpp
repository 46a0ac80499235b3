#include "shell/write_protection.h"

namespace zifferon {

namespace {

constexpr TextView german =
    u"Zifferon PRO befindet sich auf einem schreibgeschützten Datenträger! \r\n"
    u"Heben Sie den Schreibschutz auf bzw. installieren Sie das Programm  \r\n"
    u"auf einem anderen Medium.   ";
constexpr TextView english =
    u"Zifferon PRO is located on a write-protected media! Remove the \r\n"
    u"write-protection or run it from another media!   ";

}  // namespace

void stopWriteProtected(Machine& machine, bool inEnglish) {
    machine.boxes.show(
        {.icon = BoxIcon::critical, .text = Text(inEnglish ? english : german), .english = inEnglish});
    machine.process.end();
}

void tellUnsaved(Boxes& boxes, const std::string& file, bool inEnglish) {
    boxes.show(
        {.icon = BoxIcon::warning,
         .text = fromUtf8(file) + (inEnglish ? u": The setting could not be saved.   "
                                             : u": Die Einstellung konnte nicht gespeichert werden.   "),
         .english = inEnglish});
}

}  // namespace zifferon
