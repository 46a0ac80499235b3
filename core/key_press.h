// One key press in the entry line: the cascade of rules over the key and the texts of the fields. The order
// of the rules is the behaviour. A rule passes the key on to the field, eats it (0), or makes a Backspace of
// it (8).
#pragma once

#include "core/calculator_state.h"
#include "core/operators.h"

namespace zifferon {

// The press of `key` in eingabe. Changes the key to what the field shall do with it. Never fails: a failure
// of the arithmetic ends in the error state.
void eingabe_KeyPress(CalculatorState& state, char16_t& key);

class KeyPress {
  public:
    KeyPress(CalculatorState& state, char16_t& pressedKey) : s(state), key(pressedKey) {}

    void run();

  private:
    // A stage that can let the next one go on tells whether the handler has ended; the others end it always.
    enum class Flow { goOn, end };
    using enum Flow;

    // key_press.cpp: the stages in their order.
    Flow head();
    void latches();
    Flow enterLatch();
    Flow enterOnEmptyEntry();
    Flow normaliseEntry();
    Flow firstDispatch();
    Flow percentAndRepeatedRoot();
    Flow clearBareEntry();
    Flow secondDispatch();
    Flow afterTotal();
    void operatorsAndWiping();
    Flow operatorOnEmptyEntry();
    void clearAll();
    void cancelCalculation();
    void cancelByEscape();
    void mapSeparator();
    void startFraction(char16_t separator);

    // chain.cpp: the chain arithmetic.
    void operandStage();
    void firstOperand();
    void chainStage();
    void step();
    void stepByOperator(const Operator& pending);
    void stepByEnter(const Operator& pending);
    void standTotal();
    void totalDisplayedValue();
    void closeCalculation();
    void negateEntry();
    void finishKey();
    void enterErrorState();
    void parseOperands();
    void compute(const Operator& pending);

    // percent.cpp
    void percentOfRunningValue();
    void percentOfOne();
    void startPercentPrompt();
    void percentPromptStage();
    void percentResult();
    void percentDoneStage();
    void leavePercent();

    // root.cpp
    void rootOfEntry();
    void rootOfValue();
    void rootOfTotal();

    // difference.cpp
    void addDifferenceHeadingOnTape();
    void openDifference();
    void differenceStage();
    void cancelDifference();
    void takeFirstValue();
    void takeSecondValue();
    void differenceResult();

    // rounding.cpp
    void roundKey();

    bool is(char16_t a) const { return key == a; }
    bool isAny(TextView keys) const { return key != 0 && keys.find(key) != TextView::npos; }
    bool isDigit() const { return key >= u'0' && key <= u'9'; }
    bool isEnter() const { return key == 13; }
    bool isSpace() const { return key == u' '; }
    bool isBackspace() const { return key == 8; }
    bool isEscape() const { return key == 27; }
    bool isC() const { return isAny(u"cC"); }
    bool isV() const { return isAny(u"vV"); }
    bool isW() const { return isAny(u"wW"); }
    bool isPercent() const { return isAny(u"pP%"); }
    bool isOperator() const { return operatorOfKey(key) != nullptr; }
    bool isSeparator() const { return isAny(u",."); }
    bool pendingIs(int code) const { return s.pendingOpCode.equals(code, s.separators()); }
    bool operatorPends() const { return pendingOperator(s) != nullptr; }
    bool chainRuns() const { return s.chainActive.equals(1, s.separators()); }

    void eat() { key = 0; }
    void rubOut() { key = 8; }
    void setEntry(TextView text) {  // with the caret at the end
        s.eingabe.setText(text);
        s.eingabe.caretToEnd();
    }

    CalculatorState& s;
    char16_t& key;
};

}  // namespace zifferon
