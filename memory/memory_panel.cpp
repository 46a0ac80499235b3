#include "memory/memory_panel.h"

#include "core/failure.h"
#include "core/operators.h"
#include "platform/key.h"

namespace zifferon {

namespace {

constexpr Colour red{255, 0, 0};
constexpr Colour black{0, 0, 0};
constexpr int messageInterval = 500;  // milliseconds

bool isCellDigit(char16_t key) { return key >= u'1' && key <= u'5'; }
std::size_t indexOf(char16_t digit) { return static_cast<std::size_t>(digit - u'1'); }

bool wholeTextSelected(const TextField& field) { return field.selectionLength() == field.text().size(); }

}  // namespace

void MemoryPanel::wire() {
    for (std::size_t i = 0; i < s.memo.size(); ++i) wireCell(i);
    s.eingabe.onDoubleClick = [this] { entryDoubleClick(); };
    s.zwischen.onDoubleClick = [this] { subtotalDoubleClick(); };
    s.messtimer.onTick = [this] { messtimerTick(); };
}

void MemoryPanel::wireCell(std::size_t index) {
    TextField& cell = s.memo[index];
    cell.onGotFocus = [this, index] { cellGotFocus(index); };
    cell.onLostFocus = [this, index] { cellLostFocus(index); };
    cell.onClick = [&cell] { cell.select(cell.caret(), cell.text().size()); };
    cell.onDoubleClick = [this, &cell] { cellDoubleClick(cell); };
    cell.onMouseMove = [&cell] { cell.toolTip = cell.text().size() > 17 ? cell.text() : Text(); };
    cell.onKeyDown = [this, &cell](int& code) { cellKeyDown(cell, code); };
    cell.onKeyPress = [this, &cell](char16_t& key) { cellKeyPress(cell, key); };
    cell.onKeyUp = [this, &cell](int code) { cellKeyUp(cell, code); };
    cell.onChange = [this, &cell] { cellChange(cell); };
    labels_[index].onClick = [this, &cell] {
        window_.setFocus(cell);
        cell.caretToEnd();
    };
}

void MemoryPanel::memoryStoreStage(char16_t key) {
    if (isCellDigit(key)) {
        s.memo[indexOf(key)].setText(s.zwischen.text());
        if (!memory_.memoryConfirmOff) confirmStore(indexOf(key));
    }
    restorePendingOperator();
}

void MemoryPanel::memoryRecallStage(char16_t key) {
    if (s.differenceActive) s.zwischen.alignment = Alignment::left;
    s.eingabe.maxLength = 0;
    if (isCellDigit(key)) {
        s.eingabe.setText(s.memo[indexOf(key)].text());
        s.eingabe.caretToEnd();
    }
    s.calls->copyEntryToClipboard();
    s.eingabe.maxLength = 25;
    restorePendingOperator();
}

// Behind a total the code is that of its sign; 0, and what is no code, leave none.
void MemoryPanel::restorePendingOperator() {
    if (const Operator* const pending = pendingOperator(s)) return s.txtop.setText(pending->sign);
    try {
        const double code = s.pendingOpCode.toDouble(s.separators());
        const bool isCharacter = code >= 1 && code <= 0xFFFF;
        s.txtop.setText(isCharacter ? Text(1, static_cast<char16_t>(code)) : Text());
    } catch (const CalculationFailure&) {
        s.txtop.setText(u"");
    }
}

void MemoryPanel::confirmStore(std::size_t index) {
    Text message(s.inLanguage({u"Wert in Speicherplatz M", u"The value has been stored in memory M"}));
    message += static_cast<char16_t>(u'1' + index);
    message += s.inLanguage({u" übertragen", u""});
    s.Texterror.setText(message);
    s.Texterror.visible = true;
    s.messtimer.start(messageInterval);
}

void MemoryPanel::messtimerTick() {
    s.calls->placeTexterror();
    s.messageTicks += 1;
    if (s.messageTicks < 2) return;
    s.Texterror.visible = false;
    s.messageTicks = 0;
    s.Texterror.setText(u"RND Error");
    s.messtimer.stop();
}

void MemoryPanel::storeFirstFree(const Text& value, TextView germanWarning) {
    for (std::size_t i = 0; i < s.memo.size(); ++i) {
        if (!s.memo[i].empty()) continue;
        s.memo[i].setText(value);
        s.eingabe.caretToEnd();
        if (!memory_.memoryConfirmOff) confirmStore(i);
        return;
    }
    messages_.warn({germanWarning, u"Error while saving. No memory available!  "});
}

void MemoryPanel::entryDoubleClick() {
    s.calls->placeTexterror();
    if (s.eingabe.empty()) return;
    const auto value = tryParseDecimal(s.eingabe.text(), s.separators());
    if (!value) return;
    storeFirstFree(generalText(*value, s.separators()),
                   u"Speicherung fehlgeschlagen. Sämtliche Speicherplätze sind belegt.   ");
}

void MemoryPanel::subtotalDoubleClick() {
    s.calls->placeTexterror();
    for (const TextView word : {u"Wert", u"value", u"Error", u"Diff"}) {
        if (s.zwischen.contains(word)) return;
    }
    if (s.zwischen.empty()) {
        s.zwischen.setText(u"0");
        s.eingabe.caretToEnd();
    }
    const auto value = tryParseDecimal(s.zwischen.text(), s.separators());
    if (!value) return;
    storeFirstFree(generalText(*value, s.separators()),
                   u"Speicherung fehlgeschlagen. Sämtliche Speicherplätze sind belegt!   ");
}

void MemoryPanel::cellDoubleClick(TextField& cell) {
    if (s.txtop.is(u"=")) return;
    s.eingabe.maxLength = 0;
    s.eingabe.setText(cell.text());
    focusEntry();
    s.eingabe.caretToEnd();
    s.eingabe.maxLength = 25;
    s.calls->copyEntryToClipboard();
}

void MemoryPanel::cellGotFocus(std::size_t index) {
    TextField& cell = s.memo[index];
    labels_[index].foreColour = red;
    cell.select(0, cell.text().size());
    cell.locked = !cell.empty();
}

void MemoryPanel::cellLostFocus(std::size_t index) {
    labels_[index].foreColour = black;
    s.memo[index].setCaret(0);
}

void MemoryPanel::cellKeyDown(TextField& cell, int& code) {
    if (code == keyCode::up) s.calls->SendKeysEx(u"{end}");
    if (s.txtop.is(u"=") && code == keyCode::enter) return;
    if (code == keyCode::f1) s.calls->openHelp();
    cellHadText_ = !cell.empty();
    if (code == keyCode::space || code == keyCode::escape) return;
    if (code == keyCode::enter && !s.eingabe.locked && cell.locked) return cellTransfer(cell);
    cellEdit(cell, code);
}

void MemoryPanel::cellTransfer(TextField& cell) {
    s.eingabe.maxLength = 50;
    s.eingabe.setText(cell.text());
    s.eingabe.caretToEnd();
    focusEntry();
    s.cellEnterTransfer = true;
    s.calls->copyEntryToClipboard();
}

void MemoryPanel::cellEdit(TextField& cell, int& code) {
    cell.locked = false;
    if (code == keyCode::right) focusEntry();
    if (code == keyCode::down || code == keyCode::up) code = keyCode::right;
    if (code == keyCode::enter) {
        focusEntry();
        if (cell.empty()) s.undoCounter -= 1;
    }
    const bool emptiesByBack = code == keyCode::back && !cell.empty();
    if ((code == keyCode::del || emptiesByBack) && wholeTextSelected(cell)) {
        s.undoCounter += 1;
        s.calls->SendKeysEx(u"{enter}");
    }
}

void MemoryPanel::cellKeyPress(TextField& cell, char16_t& key) {
    if (key == 27) return;
    if (key == 13 && cell.locked) return;
    if (s.decimalPointStyle == 1 && key == u',') key = u'.';
    if (s.decimalPointStyle == 0 && key == u'.') key = u',';
    if (key == u'.' && s.decimalPointStyle == 1 && cell.contains(u".")) key = 0;
    const bool passes = (key >= u'0' && key <= u'9') || key == u',' || key == u'.' || key == 8 || key == u'v';
    if (!passes) key = 0;
    if (key == u',' && cell.contains(u",")) key = 0;
    if (key != u'v') return;
    if (cell.contains(u"-")) {
        cell.setCaret(1);
        key = 8;
        return;
    }
    key = 0;
    cell.setText(u"-" + cell.text());
    cell.caretToEnd();
}

void MemoryPanel::cellKeyUp(TextField& cell, int code) {
    if (code == keyCode::space || code == keyCode::escape || cell.empty()) return;
    if (code == keyCode::enter && cell.locked) return;
    if (isNumeric(cell.text()) && !cell.contains(u"+")) return;
    if (!cellHadText_) return refuse(cell);
    cell.setText(u"");
    s.undoCounter += 1;
    s.calls->SendKeysEx(u"{enter}");
}

void MemoryPanel::cellChange(TextField& cell) {
    if (!isNumeric(cell.text())) refuse(cell);
}

void MemoryPanel::refuse(TextField& cell) {
    cell.setText(u"");
    focusEntry();
}

// What the subtotal line shows is accepted, of any length; a lone sign and a text with a "+" are not.
bool MemoryPanel::isNumeric(TextView text) const { return readsAsNumber(text, s.separators()); }

}  // namespace zifferon
