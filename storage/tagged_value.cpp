#include "storage/tagged_value.h"

#include <bit>
#include <cmath>

#include "platform/windows1252.h"

namespace zifferon {

namespace {

using Type = std::uint16_t;
constexpr Type nothing = 0, integer16 = 2, integer32 = 3, single = 4, floating = 5, text = 8,
               exactDecimal = 14;

constexpr std::uint16_t longLength = 0xFFFF;  // in place of a length that does not fit
constexpr std::size_t decimalSize = 14;
constexpr std::uint8_t positiveSign = 0, negativeSign = 0x80;

template <class... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <class... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

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

Decimal decimalOf(std::string_view content) {
    const auto part = [&](std::size_t at) { return little<std::uint32_t>(content.substr(at)); };
    return Decimal::fromParts(part(6), part(10), part(2), little<std::uint8_t>(content), content[1] != 0);
}

// Whether the bytes are those of a value that a calculation can have.
bool isSound(const TaggedBytes& value) {
    switch (value.type) {
        case single:
            return std::isfinite(singleOf(value.content));
        case floating:
            return std::isfinite(doubleOf(value.content));
        case exactDecimal: {
            const auto scale = little<std::uint8_t>(value.content);
            const auto sign = little<std::uint8_t>(value.content.substr(1));
            return scale <= Decimal::maxScale && (sign == positiveSign || sign == negativeSign);
        }
        default:
            return true;
    }
}

Text textOf(std::string_view content) {
    Text result(content.size(), u'\0');
    decodeWindows1252(content, result.data());
    return result;
}

}  // namespace

inline char* RecordWriter::grow(std::size_t size) {
    const std::size_t before = size_;
    size_ += size;
    if (size_ > bytes_.size()) bytes_.resize(2 * size_);
    return bytes_.data() + before;
}

template <class... Unsigned>
inline void RecordWriter::put(Unsigned... values) {
    char* next = grow((sizeof values + ...));
    const auto putOne = [&](auto value) {
        for (std::size_t i = 0; i < sizeof value; ++i) *next++ = static_cast<char>(value >> 8 * i);
    };
    (putOne(values), ...);
}

void RecordWriter::tagged(const CalcValue& value) {
    std::visit(Overloaded{
                   [&](std::monostate) { put(nothing); },
                   [&](std::int16_t number) { put(integer16, static_cast<std::uint16_t>(number)); },
                   [&](std::int32_t number) { put(integer32, static_cast<std::uint32_t>(number)); },
                   [&](double number) { put(floating, bitsOf(number)); },
                   [&](const Text& characters) { tagged(characters); },
                   [&](const Decimal& number) {
                       put(exactDecimal, static_cast<std::uint8_t>(number.scale()),
                           number.isNegative() ? negativeSign : positiveSign, number.high(), number.low(),
                           number.mid());
                   },
               },
               value.value());
}

void RecordWriter::tagged(const Text& value) {
    textHead(value.size());
    encodeWindows1252(value, grow(value.size()));
}

void RecordWriter::tagged(float value) { put(single, bitsOf(value)); }

void RecordWriter::textHead(std::size_t length) {
    if (length < longLength) return put(text, static_cast<std::uint16_t>(length));
    put(text, longLength, static_cast<std::uint32_t>(length));
}

void RecordWriter::write(float value) { put(bitsOf(value)); }

void RecordWriter::write(double value) { put(bitsOf(value)); }

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
    const auto type = little<Type>(take(sizeof(Type)));
    const TaggedBytes value{type, take(takeSize(type))};
    if (!isSound(value)) throw RecordFailure();
    return value;
}

// The number of bytes that a value of the type has here.
std::size_t RecordReader::takeSize(std::uint16_t type) {
    switch (type) {
        case nothing:
            return 0;
        case integer16:
            return 2;
        case integer32:
        case single:
            return 4;
        case floating:
            return 8;
        case exactDecimal:
            return decimalSize;
        case text: {
            const auto length = little<std::uint16_t>(take(2));
            return length == longLength ? little<std::uint32_t>(take(4)) : length;
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
