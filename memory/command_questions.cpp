#include "memory/command_questions.h"

#include "core/number_format.h"

namespace zifferon {

namespace {

void informSaved(CommandDesk& desk) {
    desk.messages.tell(
        {u"Die Einstellungen wurden erfolgreich gespeichert!  ", u"The settings have been saved!  "});
}

}  // namespace

void askNumberFormat(CommandDesk& desk) {
    CalculatorState& s = desk.state;
    const Text example = format(CalcValue(1234), formattedNumberPattern, s.separators());
    const Text german =
        u"Formatierungsoptionen festlegen:\r\n\r\n"
        u"Klicken Sie auf JA, um Zahlen formatiert darzustellen, z.B. " +
        example + u"\r\nKlicken Sie auf NEIN, um Zahlen unformatiert anzuzeigen, z.B. 1234  ";
    const Text english = u"Formatting parameters:\r\n\r\nPress YES to use formatted numbers, e.g. " +
                         example + u"  \r\nPress NO to use unformatted numbers, e.g. 1234";
    const BoxAnswer answer = desk.messages.ask({german, english});
    if (answer == BoxAnswer::cancel) return;
    s.formatMode = answer == BoxAnswer::yes ? 1 : 2;
    const bool saved = desk.calls.writeFormatMode();
    applyFormatMode(s);
    if (saved) informSaved(desk);
}

void switchStoreConfirmation(CommandDesk& desk) {
    CalculatorState& s = desk.state;
    s.calls->beep();
    desk.memory.memoryConfirmOff = !desk.memory.memoryConfirmOff;
    desk.messages.tell(desk.memory.memoryConfirmOff
                           ? Words{u"Speicherbestätigung für Zwischenspeicher deaktiviert. ",
                                   u"Saving confirmation for memory deactivated.   "}
                           : Words{u"Speicherbestätigung für Zwischenspeicher aktiviert.",
                                   u"Saving confirmation for memory activated.   "});
    s.txtop.setText(u"");
}

bool confirmsQuit(const Messages& messages, TextView title) {
    return messages.titled(title).confirm(
        {u"Möchten Sie Zifferon PRO wirklich beenden?   ", u"Do you really want to quit Zifferon PRO?   "});
}

void showNoTaxRate(CommandDesk& desk) {
    CalculatorState& s = desk.state;
    s.eingabe.setText(Text(37, u' '));
    desk.messages.warn({u"Es ist kein Steuersatz im Zwischenspeicher M1 eingetragen.  ",
                        u"No rate of taxation stored in memory M1.   "});
    s.eingabe.setText(u"");
}

void askToPrint(CommandDesk& desk) {
    const CalculatorState& s = desk.state;
    if (!s.anzeige.empty() && !desk.messages.confirm({u"Möchten Sie den Rechenstreifen ausdrucken?   ",
                                                      u"Do you want to print the virtual paper tape?   "})) {
        return;
    }
    if (s.superdruck.empty() && s.anzeige.empty()) return;
    desk.calls.printTape();
}

void askStartOptions(CommandDesk& desk) {
    if (!desk.messages.confirm({u"Startoptionen festlegen:\r\n\r\n"
                                u"Möchten Sie die aktuelle Fensterposition sowie die Darstellungsgröße  \r\n"
                                u"der Benutzeroberfläche speichern und diese Einstellungen beim Aufruf\r\n"
                                u"von Zifferon PRO künftig automatisch anwenden?",
                                u"Starting parameters:\r\n\r\n"
                                u"Do you want to save the current desktop position and the size of the   \r\n"
                                u"Zifferon PRO window? The settings will be automatically loaded  \r\n"
                                u"when restarting the program.  "},
                               BoxAnswer::no)) {
        return;
    }
    const bool minimised = desk.messages.confirm({u"Soll Zifferon PRO künftig minimiert gestartet werden?",
                                                  u"Do you want Zifferon PRO to be started minimized?   "},
                                                 BoxAnswer::no);
    if (desk.calls.writeStartOptions(minimised)) informSaved(desk);
}

void askStandardColours(CommandDesk& desk) {
    if (desk.messages.confirm({u"Möchten Sie die Farbwahl auf die Standardeinstellung zurücksetzen?  ",
                               u"Do you want to choose the standard colour scheme?  "},
                              BoxAnswer::no)) {
        desk.calls.standardColours();
    }
}

}  // namespace zifferon
