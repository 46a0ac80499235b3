#include "shell/program.h"

#include "core/failure.h"
#include "core/key_press.h"
#include "core/key_release.h"
#include "core/rounding.h"
#include "core/special_rounding.h"
#include "memory/message_window.h"
#include "shell/colour_schemes.h"
#include "shell/language.h"
#include "shell/locale.h"
#include "shell/send_keys.h"
#include "shell/settings_files.h"
#include "shell/write_protection.h"

namespace zifferon {

Program::Program(Machine& machine)
    : keys(pultform, [this] { machine_.sound.beep(); }),
      machine_(machine),
      messages_(machine.boxes, pultform.state.language),
      settings_(machine.files, messages_),
      cells_(pultform.state, pultform.memoLabels, pultform, machine, messages_),
      record_(pultform.state),
      undo_(pultform.state, record_, machine, messages_, [this] { showNothingToUndo(); }),
      modes_(pultform, machine.system),
      life_(pultform, kopf, help, keys, undo_, record_, modes_, machine, messages_),
      page_(pultform.state, pultform.page, pultform.stripes, pultform, messages_, alwaysOnTopFile()),
      helpDesk_(pultform, kopf, help, machine, messages_, settings_),
      commands_{pultform.state, pultform, messages_, {}},
      editing_(pultform, keys, machine) {
    wireCalls();
    wireCommands();
    wireEntry();
    wireFields();
    wireRounding();
    wireOptions();
    wireSounds();
    wireWindow();
    cells_.wire();
    page_.wire();
    helpDesk_.wire();
    editing_.wire();
}

void Program::beginFresh() {
    CalculatorState& s = pultform.state;
    if (s.language == Language::english) setEnglishCaptions(pultform, kopf);
    s.startSoundDone = true;
    s.undoActive = true;
    pultform.visible = true;
    pultform.setFocus(s.eingabe);
    machine_.files.createFolder("Temp");
    undo_.emptyFolder();
    undo_.begin();
}

void Program::showNothingToUndo() {
    MessageWindow window(pultform.state, [this] { undo_.restoreCells(); });
    window.load();
    machine_.windows.showModal(window);
}

namespace {

// The tape has the focus only while it is paged; any other key and the mouse give it back.
void wireTapePaging(CalculatorState& s) {
    s.anzeige.onKeyDown = [&s](int& code) {
        const bool pages = code == keyCode::up || code == keyCode::down || code == keyCode::pageUp ||
                           code == keyCode::pageDown;
        if (!pages) s.calls.focusEntry();
    };
    s.anzeige.onKeyPress = [](char16_t& character) { character = 0; };
    s.anzeige.onClick = s.anzeige.onMouseDown = s.anzeige.onMouseUp = [&s] { s.calls.focusEntry(); };
}

}  // namespace

void Program::wireCalls() {
    CalculatorState& s = pultform.state;
    s.calls.takeUndoSnapshot = [this] { undo_.takeUndoSnapshot(); };
    s.calls.writeSnapshotFile = [this] { undo_.writeSnapshotFile(); };
    s.calls.copyEntryToClipboard = [this] { cells_.copyEntryToClipboard(); };
    s.calls.restorePendingOperator = [this] { cells_.restorePendingOperator(); };
    s.calls.memoryStoreStage = [this](char16_t key) { cells_.memoryStoreStage(key); };
    s.calls.memoryRecallStage = [this](char16_t key) { cells_.memoryRecallStage(key); };
    s.calls.SendKeysEx = [this](TextView notation) {
        for (const Key key : keysOfNotation(notation)) keys.queue(key);
    };
    s.calls.focusEntry = [this] { pultform.setFocus(pultform.state.eingabe); };
    s.calls.placeTexterror = [this] { pultform.placeTexterror(); };
    s.calls.openHelp = [this, &s] {
        machine_.desktop.openDocument(s.language == Language::english ? "zifferonpro-help_en.chm"
                                                                      : "zifferonpro-help_de.chm");
    };
    s.calls.beep = [this] { machine_.sound.beep(); };
}

void Program::wireCommands() {
    CalculatorState& s = pultform.state;
    CommandCalls& calls = commands_.calls;
    calls.applyUndo = [this] { undo_.applyUndo(); };
    calls.quit = [this] { life_.quit(LifeCycle::pauseAfterKey); };
    calls.printTape = [] {};
    calls.nextWindowMode = [this] { stepWindowMode(); };
    calls.nextTextColours = [this, &s] { stepTextColours(nextTextScheme(s.textColourScheme)); };
    calls.nextBackColours = [this, &s] { stepBackColours(nextBackScheme(s.backColourScheme)); };
    calls.standardColours = [this] {
        stepBackColours(standardBackScheme);
        stepTextColours(standardTextScheme);
    };
    calls.writeFormatMode = [this, &s] { return settings_.store(settingsFile::format, s.formatMode); };
    calls.askSeparator = [this, &s] {
        settings_.storing(settingsFile::decimalSeparator,
                          [&] { askSeparator(s, machine_.files, messages_); });
    };
    calls.writeStartOptions = [this, &s](bool minimised) {
        return settings_.storing("winstate.dat", [&] {
            writeStartOptions(machine_.files,
                              {.position = StartOptions::Position{pultform.place.left, pultform.place.top},
                               .windowMode = s.windowMode,
                               .minimised = minimised});
        });
    };
}

void Program::stepTextColours(int scheme) {
    pultform.state.textColourScheme = scheme;
    settings_.store(settingsFile::textColours, static_cast<float>(scheme));
    applyTextScheme(pultform, scheme);
}

void Program::stepBackColours(int scheme) {
    pultform.state.backColourScheme = scheme;
    settings_.store(settingsFile::backColours, static_cast<float>(scheme));
    applyBackScheme(pultform, help, scheme);
}

AlwaysOnTopFile Program::alwaysOnTopFile() {
    return {.write =
                [this](bool alwaysOnTop) {
                    settings_.storing("visible.zfr", [&] { writeAlwaysOnTop(machine_.files, alwaysOnTop); });
                },
            .read =
                [this] {
                    try {
                        return readAlwaysOnTop(machine_.files);
                    } catch (const FileFailure&) {
                        return false;
                    }
                }};
}

void Program::wireEntry() {
    CalculatorState& s = pultform.state;
    s.eingabe.onKeyDown = [this](int& code) { handleCommandKey(commands_, code); };
    s.eingabe.onKeyPress = [&s](char16_t& character) { eingabe_KeyPress(s, character); };
    s.eingabe.onKeyUp = [&s](int code) { eingabe_KeyUp(s, code); };
    s.eingabe.onChange = [&s] { s.blockedKeyReleased = false; };
    s.eingabe.onGotFocus = [this, &s] {
        s.anzeige.locked = true;
        if (!s.startSoundDone) pultform.Timer2.start(10);
    };
}

void Program::wireFields() {
    CalculatorState& s = pultform.state;
    s.anzeige.onChange = [this, &s] {
        playTapeSound();
        undo_.anzeigeChanged();
        s.anzeige.caretToEnd();
    };
    s.zwischen.onChange = [this] {
        undo_.zwischenChanged();
        publishSubtotal();
    };
    s.zurück.onClick = [&s] {
        s.calls.focusEntry();
        s.calls.SendKeysEx(u"{right}");
    };
    wireTapePaging(s);
}

void Program::playTapeSound() {
    const CalculatorState& s = pultform.state;
    if (!s.Checksound.ticked()) return;
    if (s.keySound == 5) return machine_.sound.play("undo.wav");
    if (s.anzeige.empty()) return machine_.sound.play("trash.wav");
    machine_.sound.play(s.keySound == 0 ? "rattle1.wav" : "rattle2.wav");
}

// The sound of the start comes once; a run that starts silent, or in the tray, never plays it.
void Program::wireSounds() {
    pultform.Timer2.onTick = [this] {
        CalculatorState& s = pultform.state;
        pultform.Timer2.stop();
        if (std::exchange(s.startSoundDone, true) || !s.Checksound.ticked() || !pultform.visible) return;
        machine_.sound.play("start.wav");
    };
}

void Program::wireWindow() {
    CalculatorState& s = pultform.state;
    pultform.Command3.onClick = [this] { stepWindowMode(); };
    pultform.cmdexit.onClick = [&s] {
        s.calls.focusEntry();
        s.calls.SendKeysEx(u"{F12}");
    };
    pultform.Picture1.onClick = [&s] { s.calls.focusEntry(); };
    s.txtop.onMouseMove = [this] { pultform.Command3.visible = true; };
    pultform.onMouseMove = pultform.Frame1.onMouseMove =
        s.anzeige.onMouseMove = [this] { pultform.Command3.visible = false; };
}

void Program::stepWindowMode() {
    modes_.step();
    if (pultform.state.Checksound.ticked()) machine_.sound.play("switch.wav");
}

void Program::focusOrDefer() {
    if (!pultform.setFocus(pultform.state.eingabe)) pultform.state.focusDeferred = true;
}

// With clipcheck ticked each result goes to the clipboard as it stands, but not what a start has restored.
void Program::publishSubtotal() {
    CalculatorState& s = pultform.state;
    if (!s.clipcheck.ticked() || s.suppressClipboard) return;
    machine_.clipboard.clear();
    s.clipboardText = s.zwischen.text();
    machine_.clipboard.setText(s.clipboardText);
}

void Program::wireOptions() {
    CalculatorState& s = pultform.state;
    s.Checksound.onClick = [this] { focusOrDefer(); };
    s.Checkob.onClick = [this, &s] {
        pultform.alwaysOnTop = s.Checkob.ticked();
        focusOrDefer();
    };
    s.clipcheck.onClick = [this, &s] {
        focusOrDefer();
        if (!s.clipcheck.ticked()) machine_.clipboard.clear();
    };
}

void Program::wireRounding() {
    CalculatorState& s = pultform.state;
    s.rndleft.onClick = [&s] { stepSelectorLeft(s); };
    s.rndright.onClick = [&s] { stepSelectorRight(s); };
    s.spezrnd.onClick = [&s] {
        try {
            spezrnd_Click(s);
        } catch (const CalculationFailure&) {
            // The entry is no number: there is nothing to round.
        }
    };
    pultform.nixspez.onClick = [&s] {
        s.calls.beep();
        s.undoCounter -= 1;
        s.calls.focusEntry();
    };
    s.checkrnd.onClick = [&s] {
        if (s.checkrnd.visible) s.calls.focusEntry();
    };
    s.errortimer.onTick = [&s] { errortimerTick(s); };
}

}  // namespace zifferon
