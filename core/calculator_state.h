// The whole state of the calculator: the named text fields, which hold its numbers as text, and the variables
// beside them. There is no other model; every operation parses a field, computes, formats, and writes back.
#pragma once

#include <array>
#include <functional>

#include "core/calc_value.h"
#include "core/number_text.h"
#include "platform/control.h"
#include "platform/language.h"
#include "platform/text_field.h"
#include "platform/timer.h"

namespace zifferon {

// What the rules ask of the rooms above. Wired in one place; none may be empty when a key arrives.
struct Calls {
    std::function<void()> takeUndoSnapshot;           // the snapshot point at the end of a key release
    std::function<void()> writeSnapshotFile;          // under the number of undoCounter
    std::function<void()> copyEntryToClipboard;       // only where clipcheck is ticked
    std::function<void()> restorePendingOperator;     // puts txtop back after a prefix
    std::function<void(char16_t)> memoryStoreStage;   // the key behind the prefix M
    std::function<void(char16_t)> memoryRecallStage;  // the key behind the prefix R
    std::function<void(TextView)> SendKeysEx;         // queues keystrokes behind the present one
    std::function<void()> focusEntry;                 // gives eingabe the focus
    std::function<void()> placeTexterror;             // by the height of the window
    std::function<void()> openHelp;                   // the help file of the language in force
    std::function<void()> beep;
};

struct CalculatorState {
    CalculatorState();

    // Fields. `zwischen` is the running value, `txtop` the state in one character, `anzeige` the visible
    // tape, `superdruck` its print copy in columns made with blanks; lines end in CR LF.
    TextField eingabe{Alignment::right};
    TextField zwischen{Alignment::right};
    TextField txtop{Alignment::centre};
    TextField anzeige{Alignment::right};
    TextField superdruck{Alignment::left};
    std::array<TextField, 5> memo;  // memo1 to memo5
    TextField Texterror{Alignment::centre};

    CheckBox checkrnd;  // its caption is the rounding mode, its tick automatic rounding
    CheckBox Checkob, Checksound, clipcheck;
    Control rndleft{ControlKind::button}, rndright{ControlKind::button}, spezrnd{ControlKind::button};
    Control zurück{ControlKind::button};

    Timer errortimer, messtimer;

    // The chain.
    CalcValue operand, accumulator, pendingOpCode, chainActive;
    bool chainTotalled = false;
    bool tapeClearArmed = false;

    // Rounding and format.
    double decimalPlaces = 2;
    double operandLength = 0;
    bool roundingDone = false;
    bool roundingDoneSpecial = false, rootDone = false;
    bool roundingBlock = false;
    Text numberFormat, tapeFormat;
    float formatMode = 1;
    double decimalPointStyle = 0;  // 0: comma, 1: point

    // Percent, root and difference.
    bool percentPrompt = false, percentRunning = false, percentDone = false;
    CalcValue percentBase, percentRate, rootRepeat;
    bool differenceStart = false, differenceActive = false, secondValuePrompt = false,
         differenceShown = false;
    CalcValue differenceValue1, differenceValue2, differenceOnePercent, differenceDelta, differencePercent;
    CalcValue firstValueCheck;

    // The key handlers.
    bool enterHeld = false;
    bool skipSnapshot = false;
    bool multiplyPressed = false, dividePressed = false;
    bool keyBlockedOnce = false, promptKeyBlocked = false, blockedKeyReleased = false;
    bool idleClearLatch = false;
    double keySound = 0;  // 0, 1 for Enter, 5 for undo
    Colour eingabeForeColor;
    bool suppressClipboard = true;  // until the first key that reaches the calculation
    Text clipboardText;
    bool tapeDirty = false;
    float messageTicks = 0;
    int undoCounter = 0;
    Language language = Language::german;  // of all texts that are written from now on

    // Undo.
    bool undoActive = false, undoStepPending = false, tapeEmptied = false;
    bool specialSnapshotLatch = false, undoRepeatArmed = false;

    // Memory cells and tax.
    CalcValue taxDivisor, taxGross, taxNet, taxAmount;
    bool cellEnterTransfer = false, memoryConfirmOff = false;

    // Settings.
    float separatorChoice = 0;  // 1 comma, 2 point, 0 not asked
    bool localeUnknown = false;
    int textColourScheme = 5, backColourScheme = 1;
    bool focusDeferred = false;  // a box could not give the entry the focus before the window was shown
    bool startSoundDone = false;
    int windowMode = 0;

    Calls calls;

    Separators separators() const { return decimalPointStyle == 1 ? pointStyle : commaStyle; }
    TextView inLanguage(Words words) const { return words.in(language); }
};

// Sets decimalPointStyle and brings the figures that stand in the fields and variables into its separators;
// the lines of both tapes stay as they were printed.
void setDecimalPointStyle(CalculatorState& state, double style);

}  // namespace zifferon
