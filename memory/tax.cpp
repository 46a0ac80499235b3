#include "memory/tax.h"

#include "core/failure.h"

namespace zifferon {

void takeTaxOut(CalculatorState& s) {
    const Separators separators = s.separators();
    try {
        s.taxDivisor = parseDecimal(s.memo[0].text(), separators) + Decimal(100);
        s.taxGross = s.operand;
        const Decimal gross = s.operand.toDecimal(separators);
        const Decimal net = gross / s.taxDivisor.toDecimal(separators) * Decimal(100);
        s.taxNet = net;
        s.taxAmount = gross - net;
    } catch (const CalculationFailure&) {
        return;
    }
    s.eingabe.setText(s.taxAmount.toText(separators));
    s.calls.SendKeysEx(u"{ENTER}");
}

}  // namespace zifferon
