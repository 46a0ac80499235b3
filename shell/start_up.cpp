#include "shell/start_up.h"

#include <algorithm>
#include <array>

#include "print/letterhead.h"
#include "shell/locale.h"
#include "shell/settings_files.h"
#include "shell/write_protection.h"

namespace zifferon {

namespace {

// The pauses of the loading window, in milliseconds.
constexpr int beforeCells = 200, behindCell = 30, behindCells = 1000;

constexpr std::array requiredFiles = {"font.zfr",
                                      "rattle1.wav",
                                      "rattle2.wav",
                                      "start.wav",
                                      "switch.wav",
                                      "switch2.wav",
                                      "temp.dat",
                                      "trash.wav",
                                      "undo.wav",
                                      "zifferonpro-help_de.chm",
                                      "zifferonpro-help_en.chm",
                                      "quicksave.zfr"};

constexpr TextView missingComponents =
    u"ERROR 001:\r\n\r\n"
    u"Es fehlen wichtige Zifferon PRO-Komponenten. Bitte starten Sie das  \r\n"
    u"Programm direkt aus dem Zifferon PRO-Ordner heraus bzw. mittels \r\n"
    u"Verknüpfung oder installieren Sie es neu. Die original Installationsdatei   \r\n"
    u"können Sie auf der Website www.zifferon-pro.example downloaden.\r\n\r\n"
    u"Some important Zifferon PRO components are missing. Please run   \r\n"
    u"the program from the Zifferon PRO folder, use an icon link to start  \r\n"
    u"it, or reinstall it. Just download the original installation file from  \r\n"
    u"www.zifferon-pro.example.\r\n";

constexpr TextView readyGerman =
    u"Zifferon PRO wurde erfolgreich entpackt. Das Programm muss nicht   \r\n"
    u"gesondert installiert werden und ist sofort einsatzbereit. Sie können   \r\n"
    u"den Programmordner beliebig verschieben oder umbenennen. Falls   \r\n"
    u"Sie Zifferon PRO von Ihrem Computer entfernen möchten, löschen   \r\n"
    u"Sie einfach den Zifferon PRO-Ordner.   ";
constexpr TextView readyEnglish =
    u"Zifferon PRO has been unzipped and is ready to use. There is no  \r\n"
    u"need to install the software separately. You may rename or move  \r\n"
    u"the program folder at any time. If you want to delete Zifferon PRO  \r\n"
    u"from your computer, just erase the Zifferon PRO folder.   ";

constexpr TextView damagedLetterhead =
    u"Die Datei SETUP.ZFR wurde beschädigt! Löschen Sie\r\n"
    u"die Datei und starten Sie Zifferon neu.";

}  // namespace

StartUp::StartUp(CalculatorState& state, Kopf& kopf, CalculationRecord& record, WindowModes& modes,
                 Machine& machine)
    : kopf_(kopf),
      record_(record),
      modes_(modes),
      machine_(machine),
      s(state),
      form3_(isGermanLocale(machine.system.GetDecStyle())) {}

void StartUp::run() {
    checkComponents();
    probeWriting();
    openUndoSwitch();
    s.suppressClipboard = true;
    readLocale();
    if (readSetting(machine_.files, settingsFile::firstRunDone) == 0) firstRun();
    s.languageEnglish = readsEnglish(machine_.files);
    settleUnknownSeparator();
    readFrame();
    showLoadingWindow();
    restoreState();
    if (s.zwischen.empty()) s.zwischen.setText(u"0");
    restoreLetterhead();
}

void StartUp::checkComponents() {
    const bool complete = std::all_of(requiredFiles.begin(), requiredFiles.end(),
                                      [&](const char* name) { return machine_.files.FileExists(name); });
    if (complete) return;
    machine_.boxes.show({.icon = BoxIcon::critical, .text = Text(missingComponents)});
    machine_.process.end();
}

void StartUp::probeWriting() {
    bool inEnglish = false;
    try {
        inEnglish = readSingle(machine_.files, settingsFile::language) == 1;
        writeSingle(machine_.files, settingsFile::writeProbe, 1);
    } catch (const FileFailure&) {
        stopWriteProtected(machine_, inEnglish);
    }
}

void StartUp::openUndoSwitch() {
    try {
        machine_.files.read("temp.dat");
        s.undoActive = true;
    } catch (const FileFailure&) {
        s.undoActive = false;
    }
}

void StartUp::readLocale() {
    const DecimalSeparator separator = separatorOfLocale(machine_.system.GetDecStyle());
    setDecimalPointStyle(s, separator == DecimalSeparator::point ? 1 : 0);
    s.localeUnknown = separator == DecimalSeparator::unknown;
}

void StartUp::firstRun() {
    machine_.windows.showBefore(form3_);
    if (form3_.choice() == Form3::Choice::none) machine_.process.end();  // the next start asks again
    const bool inEnglish = form3_.choice() == Form3::Choice::english;
    try {
        machine_.files.createFolder("Temp");
        writeSingle(machine_.files, settingsFile::language, inEnglish ? 1 : 0);
        machine_.boxes.show({.icon = BoxIcon::information,
                             .title = inEnglish ? u"Zifferon PRO 5.0 - Setup complete"
                                                : u"Zifferon PRO 5.0 - Setup abgeschlossen",
                             .text = Text(inEnglish ? readyEnglish : readyGerman),
                             .english = inEnglish});
        s.languageEnglish = inEnglish;
        const float stored = machine_.system.GetSystemName() == "Windows NT" ? 1.0F : 0.0F;
        writeStoredSizes(machine_.files, {.active = stored, .width = 8205, .height = 8085});
        writeSingle(machine_.files, settingsFile::firstRunDone, 1);
    } catch (const FileFailure&) {
        stopWriteProtected(machine_, inEnglish);
    }
}

void StartUp::settleUnknownSeparator() {
    if (!s.localeUnknown) return;
    try {
        settleSeparator(s, machine_.files, machine_.boxes);
    } catch (const FileFailure&) {
        tellUnsaved(machine_.boxes, settingsFile::decimalSeparator, s.languageEnglish);
    }
}

void StartUp::readFrame() {
    StoredSizes sizes;
    try {
        sizes = readStoredSizes(machine_.files);
    } catch (const FileFailure&) {
        // The layouts have sizes of their own.
    }
    modes_.setFrame(hasModernFrame(machine_.system), sizes);
}

void StartUp::showLoadingWindow() {
    Form1& form1 = form1_.emplace(s.languageEnglish);
    bool begun = false;
    const auto focusLoad = form1.onActivate;
    form1.onActivate = [&] {
        focusLoad();
        if (std::exchange(begun, true)) return;
        machine_.process.pause(beforeCells);
        for (int cell = 0; cell < Form1::cellCount; ++cell) {
            form1.fillCell(cell);
            machine_.process.pause(behindCell);
        }
        machine_.process.pause(behindCells);
        form1.visible = false;
    };
    machine_.windows.showBefore(form1);
}

void StartUp::restoreState() {
    try {
        readRecord(machine_.files, "quicksave.zfr", record_);
        return applyRecord();
    } catch (const FileFailure&) {
        // Told below.
    } catch (const RecordFailure&) {
        // Told below.
    }
    machine_.boxes.show({.icon = BoxIcon::warning,
                         .text = Text(s.inLanguage(
                             u"quicksave.zfr: Die gespeicherte Rechnung konnte nicht gelesen werden.   ",
                             u"quicksave.zfr: The stored calculation could not be read.   ")),
                         .english = s.languageEnglish});
}

void StartUp::applyRecord() {
    applyCells(record_);
    s.clipcheck.setTicked(record_.recordClipboard == 1);
    applyFields(record_);
    s.Checkob.setTicked(record_.recordAlwaysOnTop == 1);
    s.Checksound.setTicked(record_.recordSound == 1);
    s.checkrnd.setTicked(record_.recordRoundingTick == 1);
    s.checkrnd.caption = record_.recordRoundingCaption.toText(s.separators());
    applyVariables(record_);
}

void StartUp::restoreLetterhead() {
    kopf_.english = s.languageEnglish;
    try {
        readLetterhead(machine_.files, kopf_);
    } catch (const FileFailure&) {
        stopDamagedLetterhead();
    } catch (const RecordFailure&) {
        stopDamagedLetterhead();
    }
    completeFonts(kopf_);
}

// Told in German, whatever the language.
void StartUp::stopDamagedLetterhead() {
    machine_.boxes.show({.icon = BoxIcon::critical, .text = Text(damagedLetterhead)});
    machine_.process.end();
}

}  // namespace zifferon
