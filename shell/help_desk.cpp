#include "shell/help_desk.h"

#include "help/addresses.h"
#include "print/print_job.h"
#include "storage/settings_files.h"

namespace zifferon {

namespace {

constexpr int behindHelp = 1000;  // twips

}  // namespace

void HelpDesk::wire() {
    p.window.Hilfe.onClick = [this] { open(); };
    p.help.onActivate = [this] { activated(); };
    p.help.Timer2.onTick = [this] { keepMainWindowBehind(); };
    p.help.Command2.onClick = [this] { changeLanguage(Language::english); };
    p.help.Command3.onClick = [this] { changeLanguage(Language::german); };
    p.help.Command5.onClick = [this] { s.calls->openHelp(); };
    p.help.Picture2.onClick = [this] { openPage(homePage); };
    p.help.Command4.onClick = [this] {
        p.help.setFocus(p.help.Command1);
        openPage(contactPage);
    };
    p.help.printhelp.onClick = [this] { askToPrint(); };
    p.help.puzzle1.onClick = [this] { openPuzzle(); };
}

void HelpDesk::open() {
    const Place before = p.window.place;
    p.window.page.savedAlwaysOnTop = s.Checkob.ticked();
    s.Checkob.setTicked(false);
    p.help.setCaptions(s.language);
    p.help.puzzle1.visible = false;
    p.help.place.left = before.left;
    p.help.place.top = before.top;
    p.machine.windows.showModal(p.help);
    p.help.Timer2.stop();
    s.Checkob.setTicked(p.window.page.savedAlwaysOnTop);
    p.window.place = {p.help.place.left, p.help.place.top, before.width, before.height};
    p.machine.windows.show(p.window);
    s.calls->focusEntry();
}

void HelpDesk::activated() {
    p.help.Timer2.start(1);
    p.help.showReference(s.language);
    p.help.setTitle(s.language);
    p.help.place.left = p.window.place.left;
    p.help.place.top = p.window.place.top;
    p.help.setFocus(p.help.Command1);
}

// As small as the system lets it, it lies behind the help window and follows it.
void HelpDesk::keepMainWindowBehind() {
    p.window.place = {p.help.place.left + behindHelp, p.help.place.top + behindHelp, 1, 1};
}

void HelpDesk::changeLanguage(Language language) {
    p.help.showReference(language);
    if (s.language == language) {
        p.help.setFocus(p.help.Command1);
        return;
    }
    p.help.setFocus(p.help.Picture1);
    const bool stored =
        p.settings.storing(settingsFile::language, [&] { writeLanguage(p.machine.files, language); });
    p.help.setCaptions(language);
    p.help.setTitle(language);
    s.language = language;
    p.window.speak(language, true);
    p.kopf.speak(language, true);
    if (!stored) return;  // that has been told; the language holds for this run
    p.messages.tell({u"Die Spracheinstellung wurde auf Deutsch geändert.   ",
                     u"The language has been set to English.   "});
}

void HelpDesk::openPage(Words address) const {
    p.machine.desktop.openDocument(toUtf8(address.in(s.language)));
}

// On the current printer, which need not be the one that the page has chosen.
void HelpDesk::askToPrint() {
    const bool wanted = p.messages.confirm(
        {u"Möchten Sie die Kurzanleitung ausdrucken?   ", u"Do you want to print the Quick Reference?   "});
    if (!wanted) return;
    PrintDevice& device = p.machine.printer;
    device.language = s.language;
    const Control& reference = s.language == Language::english ? p.help.referenze : p.help.referenzd;
    runPrintJob(device, p.messages, [&] {
        device.paintPicture({.name = reference.name, .drawing = reference.picture, .share = 1});
        device.endDoc();
    });
}

// The help window becomes active next, and takes its place from there: until then nothing else moves the main
// window.
void HelpDesk::openPuzzle() {
    p.puzzle.reset();
    p.machine.windows.showModal(p.puzzle);
    p.puzzle.reset();
    p.help.Timer2.stop();
    p.window.place.left -= behindHelp;
    p.window.place.top -= behindHelp;
}

}  // namespace zifferon
