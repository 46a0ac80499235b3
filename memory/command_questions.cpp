#include "memory/command_questions.h"

#include "core/number_format.h"

namespace zifferon {

namespace {

BoxAnswer show(CommandDesk& desk, BoxIcon icon, BoxButtons buttons, TextView german, TextView english,
               bool noIsDefault = false) {
    return desk.boxes.show({.icon = icon,
                            .buttons = buttons,
                            .text = Text(desk.state.inLanguage(german, english)),
                            .english = desk.state.languageEnglish,
                            .noIsDefault = noIsDefault});
}

void inform(CommandDesk& desk, TextView german, TextView english) {
    show(desk, BoxIcon::information, BoxButtons::ok, german, english);
}

bool confirmed(CommandDesk& desk, TextView german, TextView english, bool noIsDefault = false) {
    return show(desk, BoxIcon::question, BoxButtons::yesNo, german, english, noIsDefault) == BoxAnswer::yes;
}

void informSaved(CommandDesk& desk) {
    inform(desk, u"Die Einstellungen wurden erfolgreich gespeichert!  ", u"The settings have been saved!  ");
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
    const BoxAnswer answer = show(desk, BoxIcon::question, BoxButtons::yesNoCancel, german, english);
    if (answer == BoxAnswer::cancel) return;
    s.formatMode = answer == BoxAnswer::yes ? 1 : 2;
    const bool saved = desk.calls.writeFormatMode();
    applyFormatMode(s);
    if (saved) informSaved(desk);
}

void switchStoreConfirmation(CommandDesk& desk) {
    CalculatorState& s = desk.state;
    s.calls.beep();
    s.memoryConfirmOff = !s.memoryConfirmOff;
    if (s.memoryConfirmOff) {
        inform(desk, u"Speicherbestätigung für Zwischenspeicher deaktiviert. ",
               u"Saving confirmation for memory deactivated.   ");
    } else {
        inform(desk, u"Speicherbestätigung für Zwischenspeicher aktiviert.",
               u"Saving confirmation for memory activated.   ");
    }
    s.txtop.setText(u"");
}

bool confirmsQuit(Boxes& boxes, const CalculatorState& state, TextView title) {
    return boxes.show({.icon = BoxIcon::question,
                       .buttons = BoxButtons::yesNo,
                       .title = Text(title),
                       .text = Text(state.inLanguage(u"Möchten Sie Zifferon PRO wirklich beenden?   ",
                                                     u"Do you really want to quit Zifferon PRO?   ")),
                       .english = state.languageEnglish}) == BoxAnswer::yes;
}

void showNoTaxRate(CommandDesk& desk) {
    CalculatorState& s = desk.state;
    s.eingabe.setText(Text(37, u' '));
    show(desk, BoxIcon::warning, BoxButtons::ok,
         u"Es ist kein Steuersatz im Zwischenspeicher M1 eingetragen.  ",
         u"No rate of taxation stored in memory M1.   ");
    s.eingabe.setText(u"");
}

void askToPrint(CommandDesk& desk) {
    const CalculatorState& s = desk.state;
    if (!s.anzeige.empty() && !confirmed(desk, u"Möchten Sie den Rechenstreifen ausdrucken?   ",
                                         u"Do you want to print the virtual paper tape?   ")) {
        return;
    }
    if (s.superdruck.empty() && s.anzeige.empty()) return;
    desk.calls.printTape();
}

void askStartOptions(CommandDesk& desk) {
    if (!confirmed(desk,
                   u"Startoptionen festlegen:\r\n\r\n"
                   u"Möchten Sie die aktuelle Fensterposition sowie die Darstellungsgröße  \r\n"
                   u"der Benutzeroberfläche speichern und diese Einstellungen beim Aufruf\r\n"
                   u"von Zifferon PRO künftig automatisch anwenden?",
                   u"Starting parameters:\r\n\r\n"
                   u"Do you want to save the current desktop position and the size of the   \r\n"
                   u"Zifferon PRO window? The settings will be automatically loaded  \r\n"
                   u"when restarting the program.  ",
                   true)) {
        return;
    }
    const bool minimised = confirmed(desk, u"Soll Zifferon PRO künftig minimiert gestartet werden?",
                                     u"Do you want Zifferon PRO to be started minimized?   ", true);
    if (desk.calls.writeStartOptions(minimised)) informSaved(desk);
}

void askStandardColours(CommandDesk& desk) {
    if (confirmed(desk, u"Möchten Sie die Farbwahl auf die Standardeinstellung zurücksetzen?  ",
                  u"Do you want to choose the standard colour scheme?  ", true)) {
        desk.calls.standardColours();
    }
}

}  // namespace zifferon
