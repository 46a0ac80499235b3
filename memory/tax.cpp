#include "memory/tax.h"

#include "core/failure.h"

namespace zifferon {

void takeTaxOut(CalculatorState& s, MemoryState& memory) {
    const Separators separators = s.separators();
    try {
        memory.taxDivisor = parseDecimal(s.memo[0].text(), separators) + Decimal(100);
        memory.taxGross = s.operand;
        const Decimal gross = s.operand.toDecimal(separators);
        const Decimal net = gross / memory.taxDivisor.toDecimal(separators) * Decimal(100);
        memory.taxNet = net;
        memory.taxAmount = gross - net;
    } catch (const CalculationFailure&) {
        return;
    }
    s.eingabe.setText(memory.taxAmount.toText(separators));
    s.calls->SendKeysEx(u"{ENTER}");
}

}  // namespace zifferon
