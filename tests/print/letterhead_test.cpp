#include "print/letterhead.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/posix_files.h"
#include "storage/tagged_value.h"
#include "tests/support/fresh_folder.h"

namespace zifferon {
namespace {

// What a test stores; the rest of the record is always the same.
struct Stored {
    CalcValue firstTick = 0, fifthLineTick = 0, master = 1;
    double bold1 = 1;
    CalcValue firstSize = u"30";
};

std::string encoded(const Stored& stored) {
    RecordWriter writer;
    for (const char16_t* line : {u"Haus Groß", u"zwei", u"drei", u"vier", u"fünf"}) writer.tagged(Text(line));
    writer.tagged(stored.firstSize);
    for (const char16_t* list : {u"11", u"", u"10", u"No Such Font", u"9", u"14"}) writer.tagged(Text(list));
    writer.tagged(stored.firstTick);
    for (const int tick : {0, 0, 0, 1, 0}) writer.tagged(CalcValue(tick));  // Check5 is on
    writer.tagged(stored.fifthLineTick);
    writer.tagged(Text(u"Bank\r\nBüro"));
    writer.tagged(stored.master);
    writer.tagged(Text(u"Courier"));
    writer.tagged(Text());
    writer.write(stored.bold1);
    for (const double tick : {0.0, 1.0, 0.0, 1.0, 0.0}) writer.write(tick);
    writer.tagged(CalcValue(0));
    return std::string(writer.bytes());
}

class LetterheadTest : public testing::Test {
  protected:
    void read(const std::string& bytes, Kopf& into) {
        folder.put("setup.zfr", bytes);
        readLetterhead(files, into);
    }
    bool isRefused(const std::string& bytes) {
        Kopf fresh(language);
        try {
            read(bytes, fresh);
        } catch (const RecordFailure&) {
            return true;
        }
        return false;
    }

    FreshFolder folder;
    PosixFiles files{folder.path()};
    Language language = Language::german;
    Kopf kopf{language};
};

TEST_F(LetterheadTest, bringsEachItemToItsControl) {
    read(encoded({}) + "a longer record's tail", kopf);
    completeFonts(kopf);
    const std::pair<const TextField&, TextView> fields[] = {
        {kopf.zeile1, u"Haus Groß"}, {kopf.zeile5, u"fünf"},           {kopf.Combo1, u"30"},
        {kopf.Combo3, u"12"},        {kopf.Combo5, u"No Such Font"},   {kopf.Combo6, u"9"},
        {kopf.Combo7, u"14"},        {kopf.nachtext, u"Bank\r\nBüro"}, {kopf.combfoart2, u"Courier"},
        {kopf.combfoart3, u"Arial"}};
    for (const auto& [field, text] : fields) EXPECT_EQ(field.text(), text) << toUtf8(field.name);
    Text ticked;  // in the order of the window
    for (const Control* control : kopf.controls()) {
        const auto* tick = dynamic_cast<const CheckBox*>(control);
        if (tick != nullptr && tick->ticked()) ticked += tick->name + u' ';
    }
    EXPECT_EQ(ticked, u"checkstamm Check5 bold1 kur2 bold3 ");
}

TEST_F(LetterheadTest, putsTheNoteInABlankLineWhoseTickIsCheck7ForLineFive) {
    read(encoded({.fifthLineTick = 1}), kopf);
    const Text german = Text(19, u' ') + u"Diese Zeile wird als Leerzeile ausgegeben.";
    EXPECT_EQ(kopf.zeile5.text(), german);
    EXPECT_FALSE(kopf.zeile5.enabled);
    EXPECT_EQ(kopf.zeile4.text(), u"vier");

    language = Language::english;
    kopf.Check7.setTicked(false);
    EXPECT_EQ(kopf.zeile5.text(), u"");
    EXPECT_TRUE(kopf.zeile5.enabled);
    kopf.Check7.setTicked(true);
    EXPECT_EQ(kopf.zeile5.text(), Text(36, u' ') + u"This line will be blank.");
}

TEST_F(LetterheadTest, takesWhatCanBeAppliedAndRefusesTheRest) {
    read(encoded({.firstTick = u"1", .master = CalcValue(), .firstSize = 24}), kopf);
    EXPECT_TRUE(kopf.Check1.ticked());
    EXPECT_FALSE(kopf.checkstamm.ticked());
    EXPECT_EQ(kopf.Combo1.text(), u"24");
    EXPECT_FALSE(isRefused(encoded({.master = 2})));

    for (const CalcValue& value : {CalcValue(3), CalcValue(-1), CalcValue(70000), CalcValue(1e300),
                                   CalcValue(u""), CalcValue(u"on"), CalcValue(Text(400, u'9'))}) {
        EXPECT_TRUE(isRefused(encoded({.master = value}))) << describe(value);
    }
    for (const double value :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(), -1.0, 2.6}) {
        EXPECT_TRUE(isRefused(encoded({.bold1 = value}))) << value;
    }
    EXPECT_TRUE(isRefused("\x01\x02"));
}

TEST_F(LetterheadTest, ofAnyLengthAndWithAnyWrongByteIsReadOrRefused) {
    const std::string whole = encoded({});
    int refused = 0;
    for (std::size_t size = 0; size < whole.size(); ++size) {
        refused += isRefused(whole.substr(0, size)) ? 1 : 0;
        for (const char wrong : {'\x7F', '\xFF'}) {
            std::string damaged = whole;
            damaged[size] = static_cast<char>(damaged[size] ^ wrong);
            EXPECT_NO_THROW(isRefused(damaged)) << size;
        }
    }
    EXPECT_EQ(refused, static_cast<int>(whole.size()) - 30);  // but where it is cut in front of an item
}

TEST_F(LetterheadTest, isWrittenAsItWasRead) {
    const std::string stored = encoded({}) + "the tail of a longer one";
    read(stored, kopf);
    writeLetterhead(files, kopf);
    EXPECT_EQ(folder.bytes("setup.zfr"), stored);

    Kopf again(language);
    const Text line = Text(65534, u'ß') + u"\r\n";
    for (const Text& text : {line, line + line + u"Ende"}) {
        kopf.nachtext.setText(text);
        writeLetterhead(files, kopf);
        readLetterhead(files, again);
        EXPECT_EQ(again.nachtext.text(), text);
        EXPECT_EQ(again.combfoart2.text(), u"Courier");
    }
}

}  // namespace
}  // namespace zifferon
