#include "bench/decimal128.h"

#include <string.h>

static _Decimal128 load(const struct Decimal128* value) {
    _Decimal128 number;
    memcpy(&number, value, sizeof number);
    return number;
}

static void store(struct Decimal128* value, _Decimal128 number) { memcpy(value, &number, sizeof number); }

// Exact in decimal; a product is far cheaper than a quotient.
static const _Decimal128 units[] = {1.DL, 0.1DL, 0.01DL};

void decimal128Parse(const char* const* texts, struct Decimal128* values, size_t count) {
    for (size_t i = 0; i < count; ++i) {
        unsigned long long digits = 0;
        size_t decimals = 0;
        int behindPoint = 0;
        for (const char* next = texts[i]; *next != 0; ++next) {
            if (*next == '.') {
                behindPoint = 1;
                continue;
            }
            digits = digits * 10 + (unsigned long long)(*next - '0');
            decimals += (size_t)behindPoint;
        }
        store(&values[i], (_Decimal128)digits * units[decimals]);
    }
}

void decimal128Format(const struct Decimal128* values, char (*texts)[32], size_t count) {
    for (size_t i = 0; i < count; ++i) {
        unsigned long long cents = (unsigned long long)(load(&values[i]) * 100.DL);
        char reversed[32];
        size_t length = 0;
        do {
            if (length == 2) reversed[length++] = '.';
            reversed[length++] = (char)('0' + cents % 10);
            cents /= 10;
        } while (cents != 0 || length < 4);
        for (size_t j = 0; j < length; ++j) texts[i][j] = reversed[length - 1 - j];
        texts[i][length] = 0;
    }
}

void decimal128Add(const struct Decimal128* a, const struct Decimal128* b, struct Decimal128* sum,
                   size_t count) {
    for (size_t i = 0; i < count; ++i) store(&sum[i], load(&a[i]) + load(&b[i]));
}

void decimal128Multiply(const struct Decimal128* a, const struct Decimal128* b, struct Decimal128* product,
                        size_t count) {
    for (size_t i = 0; i < count; ++i) store(&product[i], load(&a[i]) * load(&b[i]));
}

void decimal128Divide(const struct Decimal128* a, const struct Decimal128* b, struct Decimal128* quotient,
                      size_t count) {
    for (size_t i = 0; i < count; ++i) store(&quotient[i], load(&a[i]) / load(&b[i]));
}
