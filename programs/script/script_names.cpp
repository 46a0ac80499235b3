#include "programs/script/script_names.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <memory>
#include <unordered_map>

#include "memory/message_window.h"
#include "storage/settings_files.h"

namespace zifferon {

namespace {

using State = CalculatorState;

std::string render(bool value) { return value ? "true" : "false"; }

std::string render(double value) {
    std::array<char, 400> buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed).ptr;
    return {buffer.data(), end};
}

std::string render(const Text& value) { return quoted(value); }

std::string render(const CalcValue& value) {
    return value.text() != nullptr ? "text " + quoted(*value.text()) : describe(value);
}

std::string render(Alignment alignment) {
    switch (alignment) {
        case Alignment::left:
            return "left";
        case Alignment::right:
            return "right";
        case Alignment::centre:
            break;
    }
    return "centre";
}

using Variable = std::string (*)(const Program&);

template <auto member>
std::string variable(const Program& p) {
    return render(p.pultform.state.*member);
}

template <auto member>
std::string remembered(const Program& p) {
    return render(p.memory.*member);
}

template <auto member>
std::string recorded(const Program& p) {
    return render(p.record.*member);
}

std::string render(int value) { return std::to_string(value); }

// As one number, red in its lowest byte.
std::string render(Colour colour) {
    return std::to_string(colour.red + 256 * colour.green + 65536 * colour.blue);
}

const std::unordered_map<std::string_view, Variable>& variables() {
    static const std::unordered_map<std::string_view, Variable> table = {
        {"operand", variable<&State::operand>},
        {"accumulator", variable<&State::accumulator>},
        {"pendingOpCode", variable<&State::pendingOpCode>},
        {"chainActive", variable<&State::chainActive>},
        {"chainTotalled", variable<&State::chainTotalled>},
        {"tapeClearArmed", variable<&State::tapeClearArmed>},
        {"decimalPlaces", variable<&State::decimalPlaces>},
        {"operandLength", variable<&State::operandLength>},
        {"roundingDone", variable<&State::roundingDone>},
        {"roundingDoneSpecial", variable<&State::roundingDoneSpecial>},
        {"rootDone", variable<&State::rootDone>},
        {"roundingBlock", variable<&State::roundingBlock>},
        {"numberFormat", variable<&State::numberFormat>},
        {"tapeFormat", variable<&State::tapeFormat>},
        {"formatMode", variable<&State::formatMode>},
        {"decimalPointStyle", variable<&State::decimalPointStyle>},
        {"percentPrompt", variable<&State::percentPrompt>},
        {"percentRunning", variable<&State::percentRunning>},
        {"percentDone", variable<&State::percentDone>},
        {"percentBase", variable<&State::percentBase>},
        {"percentRate", variable<&State::percentRate>},
        {"rootRepeat", variable<&State::rootRepeat>},
        {"differenceStart", variable<&State::differenceStart>},
        {"differenceActive", variable<&State::differenceActive>},
        {"secondValuePrompt", variable<&State::secondValuePrompt>},
        {"differenceShown", variable<&State::differenceShown>},
        {"differenceValue1", variable<&State::differenceValue1>},
        {"differenceValue2", variable<&State::differenceValue2>},
        {"differenceOnePercent", variable<&State::differenceOnePercent>},
        {"differenceDelta", variable<&State::differenceDelta>},
        {"differencePercent", variable<&State::differencePercent>},
        {"firstValueCheck", variable<&State::firstValueCheck>},
        {"taxDivisor", remembered<&MemoryState::taxDivisor>},
        {"taxGross", remembered<&MemoryState::taxGross>},
        {"taxNet", remembered<&MemoryState::taxNet>},
        {"taxAmount", remembered<&MemoryState::taxAmount>},
        {"enterHeld", variable<&State::enterHeld>},
        {"skipSnapshot", variable<&State::skipSnapshot>},
        {"multiplyPressed", variable<&State::multiplyPressed>},
        {"dividePressed", variable<&State::dividePressed>},
        {"keyBlockedOnce", variable<&State::keyBlockedOnce>},
        {"promptKeyBlocked", variable<&State::promptKeyBlocked>},
        {"blockedKeyReleased", variable<&State::blockedKeyReleased>},
        {"idleClearLatch", variable<&State::idleClearLatch>},
        {"keySound", variable<&State::keySound>},
        {"suppressClipboard", variable<&State::suppressClipboard>},
        {"clipboardText", [](const Program& p) { return render(p.clipboard.text()); }},
        {"tapeDirty", variable<&State::tapeDirty>},
        {"messageTicks", variable<&State::messageTicks>},
        {"undoCounter", [](const Program& p) { return "int " + render(p.pultform.state.undoCounter); }},
        {"undoActive", variable<&State::undoActive>},
        {"tapeEmptied", variable<&State::tapeEmptied>},
        {"undoStepPending", variable<&State::undoStepPending>},
        {"specialSnapshotLatch", variable<&State::specialSnapshotLatch>},
        {"undoRepeatArmed", remembered<&MemoryState::undoRepeatArmed>},
        {"cellEnterTransfer", variable<&State::cellEnterTransfer>},
        {"memoryConfirmOff", remembered<&MemoryState::memoryConfirmOff>},
        {"windowMode", [](const Program& p) { return render(p.modes.mode()); }},
        {"separatorChoice", [](const Program& p) { return render(p.separator.separatorChoice); }},
        {"localeUnknown", [](const Program& p) { return render(p.separator.localeUnknown); }},
        {"textColourScheme", [](const Program& p) { return render(p.colours.textScheme()); }},
        {"backColourScheme", [](const Program& p) { return render(p.colours.backScheme()); }},
        {"focusDeferred", [](const Program& p) { return render(p.options.focusDeferred()); }},
        {"startSoundDone", [](const Program& p) { return render(p.sounds.startDone()); }},
        {"languageEnglish",
         [](const Program& p) { return render(p.pultform.state.language == Language::english); }},
        {"eingabeForeColor", [](const Program& p) { return render(p.pultform.state.eingabeForeColor); }},
        {"cellHadText", [](const Program& p) { return render(p.cells.cellHadText()); }},
        {"firstRunDone",
         [](const Program& p) { return render(readSetting(p.machine.files, settingsFile::firstRunDone)); }},
        {"firstActivateDone", [](const Program& p) { return render(p.firstActivation.done()); }},
        {"modernFrame", [](const Program& p) { return render(p.modes.modernFrame()); }},
        {"inTray", [](const Program& p) { return render(p.tray.inTray()); }},
        {"trayRestoreLeft", [](const Program& p) { return render(p.tray.restorePlace().left); }},
        {"trayRestoreTop", [](const Program& p) { return render(p.tray.restorePlace().top); }},
        {"layoutCyclePending", [](const Program& p) { return render(p.tray.layoutCyclePending()); }},
        {"stripesOff", [](const Program& p) { return render(p.pultform.page.stripes.stripesOff()); }},
        {"savedAlwaysOnTop", [](const Program& p) { return render(int{p.pultform.page.savedAlwaysOnTop}); }},
        {"overwriteSuspended", [](const Program& p) { return render(p.editor.overwriteSuspended()); }},
        {"caretLine", [](const Program& p) { return render(p.editor.caretLine()); }},
        {"caretColumn", [](const Program& p) { return render(p.editor.caretColumn()); }},
        {"fileListEmpty", [](const Program& p) { return render(p.files.empty()); }},
        {"fileListIndex",
         [](const Program& p) {
             return p.files.keptRow() == 0 ? "nothing" : "int " + render(p.files.keptRow());
         }},
        {"selectedFileName", [](const Program& p) { return render(p.files.pickedName()); }},
        {"selectedFileDate", [](const Program& p) { return render(p.preview.selectedFileDate()); }},
        {"nextStepBirds", [](const Program& p) { return render(p.puzzle.nextStepBirds()); }},
        {"nextStepAuthor", [](const Program& p) { return render(p.puzzle.nextStepAuthor()); }},
        {"puzzleSeconds", [](const Program& p) { return render(double(p.puzzle.puzzleSeconds())); }},
        {"holdSeconds", [](const Program& p) { return render(p.hotSpot.holdSeconds()); }},
        {"mainWasVisible", [](const Program& p) { return render(p.secretform.mainWasVisible()); }},
        {"computerName", [](const Program& p) { return render(p.secretform.check.text()); }},
        {"standardPrinterName",
         [](const Program& p) { return render(p.printOptions.standardPrinterName()); }},
        {"printFontCode", [](const Program& p) { return render(double{p.printOptions.printFontCode()}); }},
        {"recordAlwaysOnTop", recorded<&CalculationRecord::recordAlwaysOnTop>},
        {"recordSound", recorded<&CalculationRecord::recordSound>},
        {"recordClipboard", recorded<&CalculationRecord::recordClipboard>},
        {"recordRoundingTick", recorded<&CalculationRecord::recordRoundingTick>},
        {"recordRoundingCaption", recorded<&CalculationRecord::recordRoundingCaption>},
        {"insertNoticeGiven", [](const Program& p) { return render(p.editor.insertNoticeGiven()); }},
    };
    return table;
}

// All rows as one text.
Text listOf(const std::vector<Text>& rows) {
    Text list;
    for (const Text& row : rows) list += (list.empty() ? u"" : u"\n") + row;
    return list;
}

// The properties of lists and combo boxes, told by their rows.
std::optional<std::string> propertyOf(const std::vector<Text>& rows, int row, std::string_view property) {
    if (property == "rows") return std::to_string(rows.size());
    if (property == "row") return std::to_string(row);
    if (property == "list") return render(listOf(rows));
    return std::nullopt;
}

std::optional<std::string> propertyOf(const Control& control, std::string_view property) {
    if (property == "visible") return render(control.visible);
    if (property == "enabled") return render(control.enabled);
    if (property == "caption") return render(control.caption);
    if (property == "tip") return render(control.toolTip);
    if (property == "left") return std::to_string(control.place.left);
    if (property == "top") return std::to_string(control.place.top);
    if (property == "width") return std::to_string(control.place.width);
    if (property == "height") return std::to_string(control.place.height);
    if (property == "align") return render(control.alignment);
    if (control.kind == ControlKind::checkBox && property == "ticked") {
        return render(static_cast<const CheckBox&>(control).ticked());
    }
    if (const auto* const list = dynamic_cast<const ListBox*>(&control)) {
        return propertyOf(list->rows(), list->row(), property);
    }
    if (const auto* const combo = dynamic_cast<const ComboBox*>(&control)) {
        if (auto found = propertyOf(combo->rows, combo->row(), property)) return found;
    }
    if (const auto* const field = dynamic_cast<const TextField*>(&control)) {
        if (property == "text") return render(field->text());
        if (property == "caret") return std::to_string(field->caret());
        if (property == "locked") return render(field->locked);
        if (property == "maxLength") return std::to_string(field->maxLength);
    }
    return std::nullopt;
}

std::string mainValueOf(const Control& control) {
    const auto* const field = dynamic_cast<const TextField*>(&control);
    return render(field != nullptr ? field->text() : control.caption);
}

std::optional<std::string> propertyOf(const Window& window, std::string_view property) {
    if (property == "visible") return render(window.visible);
    if (property == "caption") return render(window.caption);
    if (property == "left") return std::to_string(window.place.left);
    if (property == "top") return std::to_string(window.place.top);
    if (property == "width") return std::to_string(window.place.width);
    if (property == "height") return std::to_string(window.place.height);
    return std::nullopt;
}

constexpr std::string_view dumped[] = {"eingabe",
                                       "eingabe.caret",
                                       "eingabe.locked",
                                       "eingabe.maxLength",
                                       "zwischen",
                                       "zwischen.align",
                                       "txtop",
                                       "anzeige",
                                       "superdruck",
                                       "memo1",
                                       "memo2",
                                       "memo3",
                                       "memo4",
                                       "memo5",
                                       "Texterror",
                                       "Texterror.visible",
                                       "checkrnd",
                                       "checkrnd.ticked",
                                       "Checkob.ticked",
                                       "Checksound.ticked",
                                       "clipcheck.ticked",
                                       "zurück.enabled",
                                       "focus",
                                       "operand",
                                       "accumulator",
                                       "pendingOpCode",
                                       "chainActive",
                                       "chainTotalled",
                                       "tapeClearArmed",
                                       "decimalPlaces",
                                       "roundingDone",
                                       "roundingDoneSpecial",
                                       "rootDone",
                                       "roundingBlock",
                                       "formatMode",
                                       "decimalPointStyle",
                                       "percentPrompt",
                                       "percentRunning",
                                       "percentDone",
                                       "percentBase",
                                       "percentRate",
                                       "rootRepeat",
                                       "differenceStart",
                                       "differenceActive",
                                       "secondValuePrompt",
                                       "differenceShown",
                                       "enterHeld",
                                       "skipSnapshot",
                                       "multiplyPressed",
                                       "dividePressed",
                                       "keyBlockedOnce",
                                       "promptKeyBlocked",
                                       "blockedKeyReleased",
                                       "idleClearLatch",
                                       "keySound",
                                       "suppressClipboard",
                                       "tapeDirty",
                                       "undoCounter",
                                       "tapeEmptied",
                                       "undoStepPending",
                                       "specialSnapshotLatch",
                                       "undoRepeatArmed",
                                       "cellEnterTransfer",
                                       "memoryConfirmOff",
                                       "windowMode",
                                       "languageEnglish",
                                       "clipboard"};

}  // namespace

std::span<const std::string_view> dumpNames() { return dumped; }

Window* windowCalled(std::string_view name, Program& program) {
    for (Window* window : program.windows()) {
        if (toUtf8(window->name) == name) return window;
    }
    return nullptr;
}

Window* windowOf(const Control& control, Program& program) {
    for (Window* window : program.windows()) {
        const auto& controls = window->controls();
        if (std::find(controls.begin(), controls.end(), &control) != controls.end()) return window;
    }
    return nullptr;
}

namespace {

Control* controlIn(Window& window, std::string_view name) { return window.find(fromUtf8(name)); }

// A window that is not loaded answers as it was designed.
std::unique_ptr<Window> designedWindow(std::string_view name, Program& program) {
    CalculatorState& state = program.pultform.state;
    if (name == "Form1") return std::make_unique<Form1>(state.language);
    if (name == "Form2") return std::make_unique<Form2>(state.language);
    if (name == "message") return std::make_unique<MessageWindow>(state, [] {});
    return nullptr;
}

std::optional<std::string> valueIn(Window& window, std::string_view name) {
    if (const Control* const control = controlIn(window, name)) return mainValueOf(*control);
    const std::size_t point = name.rfind('.');
    if (point == std::string_view::npos) return std::nullopt;
    const Control* const control = controlIn(window, name.substr(0, point));
    return control != nullptr ? propertyOf(*control, name.substr(point + 1)) : std::nullopt;
}

}  // namespace

Control* controlOf(std::string_view name, Program& program) {
    if (Control* const control = controlIn(program.pultform, name)) return control;
    const std::size_t point = name.find('.');
    if (point == std::string_view::npos) return nullptr;
    Window* const window = windowCalled(name.substr(0, point), program);
    return window != nullptr ? controlIn(*window, name.substr(point + 1)) : nullptr;
}

std::optional<std::string> valueOf(std::string_view name, Program& program, const HeadlessMachine& machine) {
    const auto found = variables().find(name);
    if (found != variables().end()) return found->second(program);
    if (name == "clipboard") return quoted(machine.text());
    if (name == "focus") {
        const Control* const focus = machine.inUse().window->focus();
        return focus != nullptr ? toUtf8(focus->name) : "";
    }
    if (auto value = valueIn(program.pultform, name)) return value;
    const std::size_t point = name.find('.');
    if (point == std::string_view::npos) return std::nullopt;
    const std::string_view windowName = name.substr(0, point);
    const std::string_view part = name.substr(point + 1);
    const auto designed = designedWindow(windowName, program);
    Window* const loaded = windowCalled(windowName, program);
    Window* const window = loaded != nullptr ? loaded : designed.get();
    if (window == nullptr) return std::nullopt;
    auto value = valueIn(*window, part);
    return value ? value : propertyOf(*window, part);
}

}  // namespace zifferon
