#include "storage/tagged_value.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/windows1252.h"

#include "tests/support/fresh_folder.h"

namespace zifferon {
namespace {

std::string encoded(const CalcValue& value) {
    RecordWriter writer;
    writer.tagged(value);
    return std::string(writer.bytes());
}

TEST(TaggedValue, hasTheBytesOfItsType) {
    for (const auto& [value, bytes] : {std::pair(CalcValue(), "00 00"),
                                       {-2, "02 00 FE FF"},
                                       {70000, "03 00 70 11 01 00"},
                                       {-70000, "03 00 90 EE FE FF"},
                                       {2.5, "05 00 00 00 00 00 00 00 04 40"},
                                       {u"", "08 00 00 00"},
                                       {u"«÷»ß€\r\nΩ", "08 00 08 00 AB F7 BB DF 80 0D 0A 3F"},
                                       {Decimal::fromParts(0x01020304, 0x05060708, 0x090A0B0C, 2, true),
                                        "0E 00 02 80 0C 0B 0A 09 04 03 02 01 08 07 06 05"}}) {
        EXPECT_EQ(toHex(encoded(value)), bytes);
    }
    RecordWriter writer;
    writer.write(1.0F);
    writer.write(1.0);
    writer.tagged(5.0F);
    EXPECT_EQ(toHex(writer.bytes()), "00 00 80 3F 00 00 00 00 00 00 F0 3F 04 00 00 00 A0 40");
}

TEST(TaggedValue, comesBackWithItsTypeAndEveryDigit) {
    constexpr std::uint32_t all = 0xFFFFFFFF;
    Text everyCharacter;
    for (int byte = 0; byte < 256; ++byte)
        everyCharacter += fromWindows1252(static_cast<unsigned char>(byte));
    for (const CalcValue& value :
         {CalcValue(), CalcValue(0), CalcValue(-32768), CalcValue(32768),
          CalcValue(std::numeric_limits<int>::min()), CalcValue(0.1), CalcValue(-1e300), CalcValue(u"61"),
          CalcValue(everyCharacter), CalcValue(Decimal::fromParts(all, all, all, 28, true)),
          CalcValue(Decimal::fromParts(0, 0, 0, 3, true)),
          CalcValue(Decimal::fromParts(0, all, 0, 0, false))}) {
        const std::string bytes = encoded(value);
        RecordReader reader(bytes);
        EXPECT_EQ(describe(reader.tagged().value()), describe(value));
    }
    const std::string wide = fromHex("03 00 07 00 00 00");  // though it would fit 16 bits
    RecordReader reader(wide);
    EXPECT_EQ(encoded(reader.tagged().value()), wide);
}

TEST(TaggedValue, keepsTextsOfAnyLength) {
    const auto head = [](std::size_t length) {
        const std::string bytes = encoded(Text(length, u'7'));
        RecordReader reader(bytes);
        EXPECT_EQ(reader.tagged().value().text()->size(), length);
        return toHex(bytes.substr(0, bytes.size() - length));
    };
    EXPECT_EQ(head(65534), "08 00 FE FF");
    EXPECT_EQ(head(65535), "08 00 FF FF FF FF 00 00");
    EXPECT_EQ(head(65536), "08 00 FF FF 00 00 01 00");
    EXPECT_EQ(head(200000), "08 00 FF FF 40 0D 03 00");
}

TEST(TaggedValue, isRefusedWhereItCannotBeDecoded) {
    for (const char* bytes :
         {"01 00", "04", "04 00 00 00 80", "05 00 00 00 00 00 00 00 04", "04 00 00 00 C0 7F",
          "05 00 00 00 00 00 00 00 F0 FF", "08 00", "08 00 01", "08 00 02 00 30", "08 00 FF FF 01 00 00",
          "08 00 FF FF FF FF FF FF 30", "0E 00 1D 00 00 00 00 00 00 00 00 00 00 00 00 00",
          "0E 00 02 01 00 00 00 00 00 00 00 00 00 00 00 00",
          "0E 00 02 00 00 00 00 00 00 00 00 00 00 00 00"}) {
        const std::string file = fromHex(bytes);
        RecordReader reader(file);
        EXPECT_THROW(reader.tagged(), RecordFailure) << bytes;
    }
    float single = 0;
    EXPECT_THROW(RecordReader("abc").read(single), RecordFailure);
}

TEST(TaggedValue, behindTheEndIsNothingAndLeavesVariables) {
    RecordReader reader({});
    float single = 1.5F;
    double number = 2.5;
    reader.read(single);
    reader.read(number);
    EXPECT_TRUE(reader.tagged().value().isNothing());
    EXPECT_EQ(single, 1.5F);
    EXPECT_EQ(number, 2.5);
}

}  // namespace
}  // namespace zifferon
