#include "shell/start_up.h"

#include <algorithm>
#include <array>

#include "print/letterhead.h"
#include "shell/locale.h"
#include "shell/required_files.h"
#include "storage/settings_files.h"
#include "storage/write_protection.h"

namespace zifferon {

namespace {

// The pauses of the loading window, in milliseconds.
constexpr int beforeCells = 200, behindCell = 30, behindCells = 1000;

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

StartUp::StartUp(CalculatorState& state, SeparatorState& separator, Kopf& kopf, QuickFile& quickFile,
                 WindowModes& modes, Machine& machine, const Messages& messages)
    : kopf_(kopf),
      quickFile_(quickFile),
      modes_(modes),
      machine_(machine),
      messages_(messages),
      s(state),
      separator_(separator),
      form3_(languageOfLocale(machine.system.GetDecStyle())) {}

void StartUp::run() {
    checkComponents();
    probeWriting();
    openUndoSwitch();
    s.suppressClipboard = true;
    readLocale();
    if (readSetting(machine_.files, settingsFile::firstRunDone) == 0) firstRun();
    s.language = readLanguage(machine_.files);
    settleUnknownSeparator();
    readFrame();
    showLoadingWindow();
    quickFile_.restore();
    restoreLetterhead();
}

void StartUp::checkComponents() {
    const bool complete = std::all_of(requiredFiles.begin(), requiredFiles.end(),
                                      [&](const char* name) { return machine_.files.FileExists(name); });
    if (complete) return;
    messages_.fail({missingComponents, missingComponents});
    machine_.process.end();
}

void StartUp::probeWriting() {
    Language language = Language::german;
    try {
        if (readSingle(machine_.files, settingsFile::language) == 1) language = Language::english;
        writeSingle(machine_.files, settingsFile::writeProbe, 1);
    } catch (const FileFailure&) {
        stopWriteProtected(machine_, language);
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
    separator_.localeUnknown = separator == DecimalSeparator::unknown;
}

void StartUp::firstRun() {
    machine_.windows.showBefore(form3_);
    if (!form3_.choice()) machine_.process.end();  // the next start asks again
    const Language language = *form3_.choice();
    try {
        machine_.files.createFolder("Temp");
        writeLanguage(machine_.files, language);
        s.language = language;
        messages_
            .titled(s.inLanguage(
                {u"Zifferon PRO 5.0 - Setup abgeschlossen", u"Zifferon PRO 5.0 - Setup complete"}))
            .tell({readyGerman, readyEnglish});
        const float stored = machine_.system.GetSystemName() == "Windows NT" ? 1.0F : 0.0F;
        writeStoredSizes(machine_.files, {.active = stored, .width = 8205, .height = 8085});
        writeSingle(machine_.files, settingsFile::firstRunDone, 1);
    } catch (const FileFailure&) {
        stopWriteProtected(machine_, language);
    }
}

void StartUp::settleUnknownSeparator() {
    if (!separator_.localeUnknown) return;
    try {
        settleSeparator(s, separator_, machine_.files, messages_);
    } catch (const FileFailure&) {
        tellUnsaved(messages_, settingsFile::decimalSeparator);
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
    Form1& form1 = form1_.emplace(s.language);
    form1.onActivate = [this, focusLoad = form1.onActivate] {
        focusLoad();
        if (!std::exchange(loading_, true)) fillLoadingWindow();
    };
    machine_.windows.showBefore(form1);
}

void StartUp::fillLoadingWindow() {
    machine_.process.pause(beforeCells);
    for (int cell = 0; cell < Form1::cellCount; ++cell) {
        form1_->fillCell(cell);
        machine_.process.pause(behindCell);
    }
    machine_.process.pause(behindCells);
    form1_->visible = false;
}

std::vector<Window*> StartUp::windows() {
    if (form1_) return {&form3_, &*form1_};
    return {&form3_};
}

void StartUp::restoreLetterhead() {
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
    messages_.fail({damagedLetterhead, damagedLetterhead});
    machine_.process.end();
}

}  // namespace zifferon
