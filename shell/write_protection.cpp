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
    machine.boxes.show({.icon = BoxIcon::critical,
                        .title = u"Zifferon PRO 5.0",
                        .text = Text(inEnglish ? english : german),
                        .english = inEnglish});
    machine.process.end();
}

}  // namespace zifferon
