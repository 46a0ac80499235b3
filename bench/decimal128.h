// The compiler's _Decimal128 on arrays of operands, for comparison. C++ compilers do not have the type, so it
// is used from C, sixteen bytes a value. Neither the C library nor the compiler's reads or writes such a
// number as text, so parse and format count in a machine word and use the type only for its part of the way.
#pragma once

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

struct Decimal128 {
    unsigned char bytes[16];
};

// At most 18 digits, two of them behind the point, no sign.
void decimal128Parse(const char* const* texts, struct Decimal128* values, size_t count);

// With two decimals into buffers of 32 characters each; magnitudes below 10^16.
void decimal128Format(const struct Decimal128* values, char (*texts)[32], size_t count);

void decimal128Add(const struct Decimal128* a, const struct Decimal128* b, struct Decimal128* sum,
                   size_t count);
void decimal128Multiply(const struct Decimal128* a, const struct Decimal128* b, struct Decimal128* product,
                        size_t count);
void decimal128Divide(const struct Decimal128* a, const struct Decimal128* b, struct Decimal128* quotient,
                      size_t count);

#ifdef __cplusplus
}
#endif
