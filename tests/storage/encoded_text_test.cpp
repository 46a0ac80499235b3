#include "storage/encoded_text.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "platform/windows1252.h"

namespace zifferon {
namespace {

std::string encodedAtOnce(TextView text) {
    std::string bytes(text.size(), '\0');
    encodeWindows1252(text, bytes.data());
    return bytes;
}

Text decodedAtOnce(std::string_view bytes) {
    Text text(bytes.size(), u'\0');
    decodeWindows1252(bytes, text.data());
    return text;
}

TEST(Windows1252, convertsLongTextsAsItDoesOneCharacter) {
    Text all;
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) all += static_cast<char16_t>(unit);
    const std::string bytes = encodedAtOnce(all);
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const unsigned char expected = toWindows1252(static_cast<char16_t>(unit)).value_or('?');
        ASSERT_EQ(static_cast<unsigned char>(bytes[unit]), expected) << unit;
    }
    for (unsigned byte = 0; byte < 256; ++byte) {
        std::string among(200, '7');
        among[130] = static_cast<char>(byte);
        Text expected(200, u'7');
        expected[130] = fromWindows1252(static_cast<unsigned char>(byte));
        ASSERT_EQ(decodedAtOnce(among), expected) << byte;
        ASSERT_EQ(encodedAtOnce(expected), among) << byte;
    }
}

// Whatever happens to a field between two snapshots, its bytes are those of the whole text; and whatever
// bytes are read, the field gets the whole text of them.
TEST(EncodedText, followsItsFieldThroughAllChanges) {
    std::mt19937 random(7);
    TextField field;
    EncodedText encoded(field);
    std::vector<std::string> earlier{""};
    const auto someText = [&] { return Text(random() % 200, static_cast<char16_t>(u'a' + random() % 3)); };
    for (int turn = 0; turn < 5000; ++turn) {
        const unsigned long kind = random() % 8, place = random() % (field.text().size() + 1);
        if (kind == 0) field.setText(someText());
        if (kind == 1) field.setTextFrom(place, someText());
        if (kind == 2) field.setCaret(place), field.handleCharacter(random() % 2 == 0 ? u'\b' : u'«');
        if (kind == 3) encoded.setBytes(earlier[random() % earlier.size()]);
        if (kind == 3 && random() % 2 == 0) encoded.writeToField();
        if (kind > 3) field.append(u"12 ÷");
        if (random() % 3 == 0) continue;
        encoded.takeFromField();
        const std::string whole = encodedAtOnce(field.text());
        ASSERT_EQ(encoded.bytes(), whole);
        earlier.push_back(whole);

        const std::string& other = earlier[random() % earlier.size()];
        encoded.setBytes(other);
        encoded.writeToField();
        ASSERT_EQ(field.text(), decodedAtOnce(other));
    }
}

}  // namespace
}  // namespace zifferon
