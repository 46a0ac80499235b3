#include "storage/tagged_value.h"

#include <array>
#include <bit>

#include "platform/windows1252.h"

namespace zifferon {

namespace {

using Type = std::uint16_t;
constexpr Type nothing = 0, integer16 = 2, integer32 = 3, single = 4, floating = 5, text = 8,
               exactDecimal = 14;

constexpr std::uint16_t longLength = 0xFFFF;  // in place of a length that does not fit
constexpr std::size_t decimalSize = 14;
constexpr std::uint8_t positiveSign = 0, negativeSign = 0x80;

template <class... Unsigned>
void appendLittle(std::string& bytes, Unsigned... values) {
    std::array<char, (sizeof values + ...)> ordered;
    char* next = ordered.data();
    const auto put = [&](auto value) {
        for (std::size_t i = 0; i < sizeof value; ++i) *next++ = static_cast<char>(value >> 8 * i);
    };
    (put(values), ...);
    bytes.append(ordered.data(), ordered.size());
}

template <class Unsigned>
Unsigned little(std::string_view bytes) {
    std::uint64_t value = 0;
    for (std::size_t i = sizeof(Unsigned); i-- > 0;)
        value = value << 8 | static_cast<unsigned char>(bytes[i]);
    return static_cast<Unsigned>(value);
}

float singleOf(std::string_view bytes) { return std::bit_cast<float>(little<std::uint32_t>(bytes)); }
double doubleOf(std::string_view bytes) { return std::bit_cast<double>(little<std::uint64_t>(bytes)); }

std::uint32_t bitsOf(float value) { return std::bit_cast<std::uint32_t>(value); }
std::uint64_t bitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }

struct Appender {
    std::string& bytes;

    void operator()(std::monostate) const { appendLittle(bytes, nothing); }
    void operator()(std::int16_t value) const {
        appendLittle(bytes, integer16, static_cast<std::uint16_t>(value));
    }
    void operator()(std::int32_t value) const {
        appendLittle(bytes, integer32, static_cast<std::uint32_t>(value));
    }
    void operator()(double value) const { appendLittle(bytes, floating, bitsOf(value)); }
    void operator()(const Text& value) const {
        appendTextHead(bytes, value.size());
        appendWindows1252(value, bytes);
    }
    void operator()(const Decimal& value) const {
        appendLittle(bytes, exactDecimal, static_cast<std::uint8_t>(value.scale()),
                     value.isNegative() ? negativeSign : positiveSign, value.high(), value.low(),
                     value.mid());
    }
};

bool isDecodableDecimal(std::string_view content) {
    const auto scale = little<std::uint8_t>(content);
    const auto sign = little<std::uint8_t>(content.substr(1));
    return scale <= Decimal::maxScale && (sign == positiveSign || sign == negativeSign);
}

Decimal decimalOf(std::string_view content) {
    const auto part = [&](std::size_t at) { return little<std::uint32_t>(content.substr(at)); };
    return Decimal::fromParts(part(6), part(10), part(2), little<std::uint8_t>(content), content[1] != 0);
}

Text textOf(std::string_view content) {
    Text result;
    appendFromWindows1252(content, result);
    return result;
}

}  // namespace

void appendTagged(std::string& bytes, const CalcValue& value) { std::visit(Appender{bytes}, value.value()); }

void appendTagged(std::string& bytes, float value) { appendLittle(bytes, single, bitsOf(value)); }

void appendTextHead(std::string& bytes, std::size_t length) {
    if (length < longLength) return appendLittle(bytes, text, static_cast<std::uint16_t>(length));
    appendLittle(bytes, text, longLength, static_cast<std::uint32_t>(length));
}

void append(std::string& bytes, float value) { appendLittle(bytes, bitsOf(value)); }

void append(std::string& bytes, double value) { appendLittle(bytes, bitsOf(value)); }

bool TaggedBytes::isText() const { return type == text; }

CalcValue TaggedBytes::value() const {
    switch (type) {
        case integer16:
            return CalcValue(CalcValue::Value(static_cast<std::int16_t>(little<std::uint16_t>(content))));
        case integer32:
            return CalcValue(CalcValue::Value(static_cast<std::int32_t>(little<std::uint32_t>(content))));
        case single:
            return CalcValue(double{singleOf(content)});
        case floating:
            return CalcValue(doubleOf(content));
        case text:
            return CalcValue(textOf(content));
        case exactDecimal:
            return CalcValue(decimalOf(content));
        default:
            return CalcValue();
    }
}

TaggedBytes RecordReader::tagged() {
    if (rest_.empty()) return {};
    const auto type = little<std::uint16_t>(take(2));
    switch (type) {
        case nothing:
            return {};
        case integer16:
            return {type, take(2)};
        case integer32:
        case single:
            return {type, take(4)};
        case floating:
            return {type, take(8)};
        case text: {
            std::size_t length = little<std::uint16_t>(take(2));
            if (length == longLength) length = little<std::uint32_t>(take(4));
            return {type, take(length)};
        }
        case exactDecimal: {
            const TaggedBytes value{type, take(decimalSize)};
            if (!isDecodableDecimal(value.content)) throw RecordFailure();
            return value;
        }
        default:
            throw RecordFailure();
    }
}

void RecordReader::read(float& value) {
    if (!rest_.empty()) value = singleOf(take(sizeof value));
}

void RecordReader::read(double& value) {
    if (!rest_.empty()) value = doubleOf(take(sizeof value));
}

std::string_view RecordReader::take(std::size_t size) {
    if (size > rest_.size()) throw RecordFailure();
    const std::string_view taken = rest_.substr(0, size);
    rest_.remove_prefix(size);
    return taken;
}

}  // namespace zifferon
