#include <gtest/gtest.h>

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

// Position in two tagged items, then the mode and the tick.
TEST_F(SettingsTest, startOptionsAreFourTaggedItems) {
    using Position = StartOptions::Position;
    const StartOptions stored{.position = Position{1500, -75}, .windowMode = 2, .minimised = true};
    writeStartOptions(files, stored);
    EXPECT_EQ(toHex(folder.bytes("winstate.dat")),
              "04 00 00 80 BB 44 04 00 00 00 96 C2 02 00 02 00 02 00 01 00");
    const StartOptions options = readStartOptions(files);
    EXPECT_EQ(options.position, stored.position);
    EXPECT_TRUE(options.windowMode == 2 && options.minimised);
    folder.put("winstate.dat", fromHex("00 00 04 00 00 00 A0 40 02 00 07 00 00 00"));
    EXPECT_EQ(readStartOptions(files).position, (Position{0, 5}));
    EXPECT_EQ(readStartOptions(files).windowMode, 2);
    writeStartOptions(files, {.position = Position{0, 0}});
    EXPECT_TRUE(readStartOptions(files).position);
}

TEST_F(SettingsTest, startOptionsThatAreAbsentOrDamagedAreTheDefaults) {
    const std::string whole = fromHex("04 00 00 80 BB 44 04 00 00 00 96 C2 02 00 02 00 02 00 01 00");
    for (const std::string& damaged :
         {std::string(), std::string("x"), fromHex("63 00") + whole.substr(2),
          fromHex("04 00 CA F2 49 71 04 00 CA F2 49 F1 00 00"),  // 1E30 twips away
          fromHex("04 00 00 00 C0 7F 04 00 00 00 80 FF 00 00"),  // not a number, infinite
          fromHex("08 00 01 00 31 00 00")}) {
        folder.put("winstate.dat", damaged);
        const StartOptions options = readStartOptions(files);
        EXPECT_FALSE(options.position || options.windowMode != 0 || options.minimised);
    }
    folder.put("winstate.dat", whole.substr(0, 15));
    EXPECT_TRUE(readStartOptions(files).position);
    EXPECT_EQ(readStartOptions(files).windowMode, 0);
}

TEST_F(SettingsTest, sizesAndTheTopPlaceAreIntegers) {
    EXPECT_EQ(readStoredSizes(files).width, 0);
    writeStoredSizes(files, {.active = 0, .width = 8205, .height = 8085});
    EXPECT_EQ(toHex(folder.bytes("style.dat")), "00 00 00 00 02 00 0D 20 02 00 95 1F");
    EXPECT_EQ(readStoredSizes(files).height, 8085);
    EXPECT_FALSE(readAlwaysOnTop(files));
    writeAlwaysOnTop(files, true);
    EXPECT_EQ(toHex(folder.bytes("visible.zfr")), "02 00 01 00");
    EXPECT_TRUE(readAlwaysOnTop(files));
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
