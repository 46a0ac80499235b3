#include <gtest/gtest.h>

#include <tuple>

#include "platform/posix_files.h"
#include "storage/settings_files.h"
#include "tests/support/fresh_folder.h"

namespace zifferon {
namespace {

class SettingsTest : public testing::Test {
  protected:
    FreshFolder folder;
    PosixFiles files{folder.path()};
};

TEST_F(SettingsTest, singlesAreFourBytesAndZeroWithoutThem) {
    writeSingle(files, settingsFile::textColours, 5);
    EXPECT_EQ(toHex(folder.bytes("gui1.dat")), "00 00 A0 40");
    EXPECT_EQ(readSingle(files, settingsFile::textColours), 5);
    EXPECT_EQ(readSingle(files, settingsFile::format, 1), 1);
    EXPECT_TRUE(folder.has("format.dat"));
    for (const auto& [bytes, value] : {std::pair("01 02 03", 1), {"00 00 00 00", 1}, {"00 00 00 40 55", 2}}) {
        folder.put("format.dat", fromHex(bytes));
        EXPECT_EQ(readSingle(files, settingsFile::format, 1), value) << bytes;
    }
    writeSingle(files, settingsFile::format, 1);
    EXPECT_EQ(toHex(folder.bytes("format.dat")), "00 00 80 3F 55");
}

// Left, top, mode and tick; what is damaged or absent is the default.
TEST_F(SettingsTest, startOptionsAreFourTaggedItems) {
    using Position = StartOptions::Position;
    const std::string whole = "04 00 00 80 BB 44 04 00 00 00 96 C2 02 00 02 00 02 00 01 00";
    writeStartOptions(files, {.position = Position{1500, -75}, .windowMode = 2, .minimised = true});
    EXPECT_EQ(toHex(folder.bytes("winstate.dat")), whole);
    const std::optional<Position> none;
    const std::tuple<std::string, std::optional<Position>, int, bool> rows[] = {
        {whole, Position{1500, -75}, 2, true},
        {whole.substr(0, 44), Position{1500, -75}, 0, false},
        {"00 00 04 00 00 00 A0 40 02 00 07 00 00 00", Position{0, 5}, 2, false},
        {"63 00" + whole.substr(5), none, 0, false},
        {"04 00 CA F2 49 71 04 00 CA F2 49 F1 00 00", none, 0, false},  // 1E30 twips away
        {"04 00 00 00 C0 7F 04 00 00 00 80 FF 00 00", none, 0, false},  // not a number, infinite
        {"08 00 01 00 31 00 00", none, 0, false},
        {"", none, 0, false}};
    for (const auto& [bytes, position, mode, minimised] : rows) {
        folder.put("winstate.dat", fromHex(bytes));
        const StartOptions options = readStartOptions(files);
        EXPECT_TRUE(options.position == position && options.minimised == minimised) << bytes;
        EXPECT_EQ(options.windowMode, mode) << bytes;
    }
    writeStartOptions(files, {.position = Position{0, 0}});
    EXPECT_TRUE(readStartOptions(files).position);
}

TEST_F(SettingsTest, thePrinterIsALineOfText) {
    EXPECT_EQ(readPrinterName(files), std::nullopt);
    EXPECT_FALSE(folder.has("printer.zfr"));
    writePrinterName(files, u"A much longer name");
    writePrinterName(files, u"Büro 2");
    EXPECT_EQ(folder.bytes("printer.zfr"), "B\xFCro 2\r\n");
    using Name = std::optional<Text>;
    for (const auto& [bytes, name] : {std::pair("B\xFCro 2\r\n", Name(u"Büro 2")),
                                      {"Laser, 2nd floor\r\n", u"Laser"},
                                      {"  \"Laser, 2nd floor\"\r\n", u"Laser, 2nd floor"},
                                      {"", std::nullopt}}) {
        folder.put("printer.zfr", bytes);
        EXPECT_EQ(readPrinterName(files), name) << bytes;
    }
}

}  // namespace
}  // namespace zifferon
