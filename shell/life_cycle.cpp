#include "shell/life_cycle.h"

#include <algorithm>
#include <array>

#include "core/number_format.h"
#include "core/rounding.h"
#include "shell/colour_schemes.h"
#include "shell/language.h"
#include "shell/locale.h"

namespace zifferon {

namespace {

constexpr TextView programTitle = u"Zifferon PRO 5.0";

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

constexpr TextView writeProtectedGerman =
    u"Zifferon PRO befindet sich auf einem schreibgeschützten Datenträger! \r\n"
    u"Heben Sie den Schreibschutz auf bzw. installieren Sie das Programm  \r\n"
    u"auf einem anderen Medium.   ";
constexpr TextView writeProtectedEnglish =
    u"Zifferon PRO is located on a write-protected media! Remove the \r\n"
    u"write-protection or run it from another media!   ";

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

}  // namespace

LifeCycle::LifeCycle(Pultform& window, KeyRoad& keys, Undo& undo, CalculationRecord& record,
                     WindowModes& modes, Machine& machine)
    : window_(window),
      keys_(keys),
      undo_(undo),
      record_(record),
      modes_(modes),
      machine_(machine),
      s(window.state) {}

void LifeCycle::start() {
    checkComponents();
    probeWriting();
    openUndoSwitch();
    s.suppressClipboard = true;
    readLocale();
    if (setting(settingsFile::firstRunDone) == 0) firstRun();
    s.languageEnglish = english();
    if (s.localeUnknown) {
        try {
            settleSeparator(s, machine_.files, machine_.boxes);
        } catch (const FileFailure&) {
            // The answer holds for this run.
        }
    }
    readFrame();
    showLoadingWindow();
    restoreState();
    if (s.zwischen.empty()) s.zwischen.setText(u"0");
    machine_.desktop.registerHotKey();
    show();
}

void LifeCycle::checkComponents() {
    const bool complete = std::all_of(requiredFiles.begin(), requiredFiles.end(),
                                      [&](const char* name) { return machine_.files.FileExists(name); });
    if (complete) return;
    machine_.boxes.show(
        {.icon = BoxIcon::critical, .title = Text(programTitle), .text = Text(missingComponents)});
    machine_.process.end();
}

void LifeCycle::probeWriting() {
    bool inEnglish = false;
    try {
        inEnglish = readSingle(machine_.files, settingsFile::language) == 1;
        writeSingle(machine_.files, settingsFile::writeProbe, 1);
    } catch (const FileFailure&) {
        stopWriteProtected(inEnglish);
    }
}

void LifeCycle::stopWriteProtected(bool inEnglish) {
    machine_.boxes.show({.icon = BoxIcon::critical,
                         .title = Text(programTitle),
                         .text = Text(inEnglish ? writeProtectedEnglish : writeProtectedGerman),
                         .english = inEnglish});
    machine_.process.end();
}

void LifeCycle::openUndoSwitch() {
    try {
        machine_.files.read("temp.dat");
        s.undoActive = true;
    } catch (const FileFailure&) {
        s.undoActive = false;
    }
}

void LifeCycle::readLocale() {
    const DecimalSeparator separator = separatorOfLocale(machine_.system.GetDecStyle());
    s.decimalPointStyle = separator == DecimalSeparator::point ? 1 : 0;
    s.localeUnknown = separator == DecimalSeparator::unknown;
}

void LifeCycle::firstRun() {
    Form3 form3;
    machine_.windows.showModal(form3);
    if (form3.choice() == Form3::Choice::none) machine_.process.end();  // the next start asks again
    const bool inEnglish = form3.choice() == Form3::Choice::english;
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
        stopWriteProtected(inEnglish);
    }
}

void LifeCycle::readFrame() {
    StoredSizes sizes;
    try {
        sizes = readStoredSizes(machine_.files);
    } catch (const FileFailure&) {
        // The layouts have sizes of their own.
    }
    modes_.setFrame(hasModernFrame(machine_.system), sizes);
}

void LifeCycle::showLoadingWindow() {
    Form1 form1(s.languageEnglish);
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
    machine_.windows.showModal(form1);
    typedAhead_ = form1.typedAhead();
}

void LifeCycle::restoreState() {
    try {
        readRecord(machine_.files, "quicksave.zfr", record_);
        return applyRecord();
    } catch (const FileFailure&) {
        // Told below.
    } catch (const RecordFailure&) {
        // Told below.
    }
    machine_.boxes.show({.icon = BoxIcon::warning,
                         .title = Text(programTitle),
                         .text = Text(s.inLanguage(
                             u"quicksave.zfr: Die gespeicherte Rechnung konnte nicht gelesen werden.   ",
                             u"quicksave.zfr: The stored calculation could not be read.   ")),
                         .english = s.languageEnglish});
}

void LifeCycle::applyRecord() {
    applyCells(record_);
    s.clipcheck.setTicked(record_.recordClipboard == 1);
    applyFields(record_);
    s.Checkob.setTicked(record_.recordAlwaysOnTop == 1);
    s.Checksound.setTicked(record_.recordSound == 1);
    s.checkrnd.setTicked(record_.recordRoundingTick == 1);
    s.checkrnd.caption = record_.recordRoundingCaption.toText(s.separators());
    applyVariables(record_);
}

void LifeCycle::show() {
    machine_.desktop.onHotKey = [this] { hotKeyPressed(); };
    machine_.desktop.onTrayDoubleClick = machine_.desktop.onTrayShow = [this] { showFromTray(); };
    machine_.desktop.onTrayExit = [this] { askToExit(); };
    machine_.desktop.onSessionEnd = [this] { quit(pauseAfterTray); };
    window_.minitimer.onTick = [this] { minitimerTick(); };
    window_.onDismiss = [this] { hideInTray(); };
    window_.onActivate = [this] { activated(); };
    machine_.windows.show(window_);
    window_.setFocus(s.eingabe);
    s.focusDeferred = false;
}

void LifeCycle::activated() {
    s.messageTicks = 0;
    if (s.checkrnd.caption.empty()) s.checkrnd.caption = u"&RND 2";
    window_.caption = programTitle;
    if (!std::exchange(firstActivateDone_, true)) firstActivation();
}

void LifeCycle::firstActivation() {
    queueLayoutCycle();
    undo_.emptyFolder();
    StartOptions options;
    try {
        options = readStartOptions(machine_.files);
    } catch (const FileFailure&) {
        // The window stays where the system puts it.
    }
    if (options.position) {
        window_.place.left = trayRestore_.left = options.position->left;
        window_.place.top = trayRestore_.top = options.position->top;
    }
    applySettings();
    if (options.windowMode == 2) modes_.restoreStrip();
    if (s.undoActive) beginSnapshots(options);
    // Behind the round trip through the layouts, as they were typed.
    for (const Key key : std::exchange(typedAhead_, {})) keys_.queue(key);
}

void LifeCycle::applySettings() {
    const auto scheme = [&](const std::string& file, int standard) {
        const float stored = setting(file);
        constexpr float largest = 16;  // what lies outside is no scheme and changes nothing
        return stored == 0 ? standard : stored >= 1 && stored <= largest ? static_cast<int>(stored) : 0;
    };
    s.textColourScheme = scheme(settingsFile::textColours, standardTextScheme);
    s.backColourScheme = scheme(settingsFile::backColours, standardBackScheme);
    applyTextScheme(window_, s.textColourScheme);
    applyBackScheme(window_, s.backColourScheme);
    const float mode = setting(settingsFile::format);
    s.formatMode = mode == 0 ? 1 : mode;
    applyFormatMode(s);
    s.languageEnglish = english();
    if (s.languageEnglish) applyLanguage(window_, true);
}

void LifeCycle::beginSnapshots(const StartOptions& options) {
    if (options.windowMode == 1) modes_.restoreNarrow();
    if (options.minimised) {
        hideInTray();
        layoutCyclePending_ = true;
    }
    undo_.begin();
    window_.placeTexterror();
    s.skipSnapshot = false;
}

// Three steps pass through all layouts back to the present one; what stays is the height for the present
// frame.
void LifeCycle::queueLayoutCycle() {
    for (int i = 0; i < 3; ++i) s.calls.SendKeysEx(u"{F2}");
}

void LifeCycle::hideInTray() {
    trayRestore_ = window_.place;
    if (inTray_) return;
    if (!machine_.desktop.hasTray()) {
        window_.minimised = true;
        return;
    }
    machine_.desktop.addTrayIcon();
    machine_.windows.hide(window_);
    inTray_ = true;
}

void LifeCycle::showFromTray() {
    window_.minimised = false;
    machine_.windows.show(window_);
    window_.place.left = trayRestore_.left;
    window_.place.top = trayRestore_.top;
    inTray_ = false;
    if (layoutCyclePending_) window_.minitimer.start(1);
}

void LifeCycle::minitimerTick() {
    if (std::exchange(layoutCyclePending_, false)) queueLayoutCycle();
    window_.minitimer.stop();
}

void LifeCycle::hotKeyPressed() {
    if (hidden()) {
        showFromTray();
        window_.minitimer.stop();
        if (std::exchange(layoutCyclePending_, false)) queueLayoutCycle();
        return;
    }
    s.undoCounter -= 1;
    hideInTray();
}

void LifeCycle::askToExit() {
    const BoxAnswer answer =
        machine_.boxes.show({.icon = BoxIcon::question,
                             .buttons = BoxButtons::yesNo,
                             .title = window_.caption,
                             .text = Text(s.inLanguage(u"Möchten Sie Zifferon PRO wirklich beenden?   ",
                                                       u"Do you really want to quit Zifferon PRO?   ")),
                             .english = s.languageEnglish});
    if (answer != BoxAnswer::yes) return;
    machine_.desktop.removeTrayIcon();
    quit(pauseAfterTray);
}

void LifeCycle::quit(int pause) {
    unload();
    machine_.clipboard.clear();
    sayGoodbye(pause);
    machine_.process.end();
}

void LifeCycle::unload() {
    machine_.desktop.unregisterHotKey();
    machine_.desktop.removeTrayIcon();
    hideInTray();
    machine_.windows.hide(window_);
    machine_.desktop.removeTrayIcon();
    if (s.undoActive) undo_.emptyFolder();
}

void LifeCycle::sayGoodbye(int pause) {
    try {
        writeSingle(machine_.files, settingsFile::writeProbe, 0);
    } catch (const FileFailure&) {
        stopWriteProtected(english());
    }
    goodbye_ = std::make_unique<Form2>(english());
    machine_.windows.show(*goodbye_);
    machine_.process.pause(pause);
}

float LifeCycle::setting(const std::string& file) {
    try {
        return readSingle(machine_.files, file);
    } catch (const FileFailure&) {
        return 0;
    }
}

bool LifeCycle::english() { return setting(settingsFile::language) == 1; }

}  // namespace zifferon
