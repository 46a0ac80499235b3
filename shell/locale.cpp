#include "shell/locale.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include "storage/settings_files.h"

namespace zifferon {

namespace {

// All identifiers have four leading zeros. Each list is in ascending order.
constexpr std::array<std::uint16_t, 103> commaLocales = {
    0x0402, 0x0403, 0x0405, 0x0406, 0x0407, 0x0408, 0x040A, 0x040B, 0x040C, 0x040E, 0x040F, 0x0410, 0x0413,
    0x0414, 0x0415, 0x0416, 0x0418, 0x0419, 0x041A, 0x041B, 0x041C, 0x041D, 0x041F, 0x0421, 0x0422, 0x0423,
    0x0424, 0x0425, 0x0426, 0x0427, 0x0428, 0x042A, 0x042C, 0x042D, 0x042E, 0x042F, 0x0437, 0x0438, 0x043B,
    0x043E, 0x043F, 0x0440, 0x0442, 0x0443, 0x0444, 0x0450, 0x0456, 0x0462, 0x0463, 0x046B, 0x046D, 0x046E,
    0x046F, 0x047A, 0x047E, 0x0482, 0x0483, 0x0484, 0x0485, 0x0487, 0x0488, 0x048C, 0x080C, 0x0813, 0x0814,
    0x0816, 0x081A, 0x081D, 0x082C, 0x082E, 0x083B, 0x083E, 0x0843, 0x085F, 0x086B, 0x0C07, 0x0C0A, 0x0C0C,
    0x0C1A, 0x0C3B, 0x1007, 0x101A, 0x103B, 0x140A, 0x140C, 0x141A, 0x143B, 0x180C, 0x181A, 0x183B, 0x1C1A,
    0x1C3B, 0x200A, 0x201A, 0x203B, 0x240A, 0x243B, 0x2C0A, 0x300A, 0x340A, 0x380A, 0x3C0A, 0x400A};

constexpr std::array<std::uint16_t, 102> pointLocales = {
    0x0401, 0x0404, 0x0409, 0x040D, 0x0411, 0x0412, 0x0417, 0x041E, 0x0420, 0x0429, 0x042B, 0x0432, 0x0434,
    0x0435, 0x0436, 0x0439, 0x043A, 0x0441, 0x0445, 0x0446, 0x0447, 0x0448, 0x0449, 0x044A, 0x044B, 0x044C,
    0x044D, 0x044E, 0x044F, 0x0451, 0x0452, 0x0453, 0x0454, 0x0457, 0x045A, 0x045B, 0x045D, 0x045E, 0x0461,
    0x0464, 0x0465, 0x0468, 0x046A, 0x046C, 0x0478, 0x047C, 0x0480, 0x0481, 0x0486, 0x0801, 0x0804, 0x0807,
    0x0809, 0x080A, 0x0810, 0x083C, 0x0845, 0x0850, 0x085D, 0x0C01, 0x0C04, 0x0C09, 0x0C6B, 0x1001, 0x1004,
    0x1009, 0x100A, 0x100C, 0x1401, 0x1404, 0x1407, 0x1409, 0x1801, 0x1809, 0x180A, 0x1C01, 0x1C09, 0x1C0A,
    0x2001, 0x2009, 0x2401, 0x2409, 0x2801, 0x2809, 0x280A, 0x2C01, 0x2C09, 0x3001, 0x3009, 0x3401, 0x3409,
    0x3801, 0x3C01, 0x4001, 0x4009, 0x4409, 0x440A, 0x4809, 0x480A, 0x4C0A, 0x500A, 0x540A};

constexpr float commaChoice = 1, pointChoice = 2;  // in decpoint.dat

void take(CalculatorState& state, SeparatorState& separator, float choice) {
    separator.separatorChoice = choice;
    setDecimalPointStyle(state, choice == pointChoice ? 1 : 0);
}

// The opening lines tell why is asked; the rest is the same at the start and during the run.
constexpr TextView germanOpeningAtStart =
    u"Zifferon PRO konnte die Ländereinstellung Ihres Systems nicht  \r\n"
    u"ermitteln. Bitte wählen Sie die korrekte Formatierung, die für   \r\n"
    u"die Darstellung des Dezimalzeichens in Ihrem Land gültig ist.   \r\n";
constexpr TextView germanOpeningInRun =
    u"Bitte wählen Sie die korrekte Formatierung, die für die  \r\n"
    u"Darstellung des Dezimalzeichens in Ihrem Land gültig ist.   \r\n";
constexpr TextView germanQuestion =
    u"\r\n"
    u"Wenn das Dezimalzeichen in Ihrem Land üblicherweise als  \r\n"
    u"Komma ( , ) dargestellt wird, klicken Sie bitte auf JA.\r\n"
    u"Beispiel: Einhundert = 100,00   \r\n"
    u"\r\n"
    u"Wenn das Dezimalzeichen in Ihrem Land üblicherweise als  \r\n"
    u"Punkt ( . ) dargestellt wird, klicken Sie bitte auf NEIN.\r\n"
    u"Beispiel: Einhundert = 100.00   \r\n"
    u"\r\n"
    u"Sie können diese Einstellung jederzeit wieder ändern, indem Sie   \r\n"
    u"die Datei 'DECPOINT.DAT' im Zifferon PRO-Verzeichnis löschen.";

constexpr TextView englishOpeningAtStart =
    u"Zifferon PRO was not able to identify the location settings on   \r\n"
    u"your machine. Please choose the kind of decimal separator which   \r\n"
    u"is used in your country.   \r\n";
constexpr TextView englishOpeningInRun =
    u"Please choose the kind of decimal separator which is used   \r\n"
    u"in your country.   \r\n";
constexpr TextView englishQuestion =
    u"\r\n"
    u"If the comma ( , ) is used as the decimal separator, please click   \r\n"
    u"on YES. Example: one hundred = 100,00   \r\n"
    u"\r\n"
    u"If the point ( . ) is used as the decimal separator, please click   \r\n"
    u"on NO. Example: one hundred = 100.00   \r\n"
    u"\r\n"
    u"You can change the setting anytime by deleting the file  \r\n"
    u"'DECPOINT.DAT', which is located in the Zifferon PRO folder.   ";

// Asks, takes the answer, and stores it.
void ask(CalculatorState& state, SeparatorState& separator, Files& files, const Messages& messages,
         Words opening) {
    const Text german = Text(opening.german).append(germanQuestion);
    const Text english = Text(opening.english).append(englishQuestion);
    const bool comma = messages.titled(u"Zifferon PRO 5.0 - Setup").confirm({german, english});
    const float choice = comma ? commaChoice : pointChoice;
    take(state, separator, choice);
    writeSingle(files, settingsFile::decimalSeparator, choice);
}

// Of an identifier in hexadecimal digits; 0, which is none, for any other text.
std::uint32_t numberOf(std::string_view code) {
    std::uint32_t number = 0;
    const char* const end = code.data() + code.size();
    const auto [behind, error] = std::from_chars(code.data(), end, number, 16);
    return code.size() == 8 && error == std::errc() && behind == end ? number : 0;
}

}  // namespace

DecimalSeparator separatorOfLocale(std::string_view code) {
    const std::uint32_t number = numberOf(code);
    if (std::binary_search(commaLocales.begin(), commaLocales.end(), number)) return DecimalSeparator::comma;
    if (std::binary_search(pointLocales.begin(), pointLocales.end(), number)) return DecimalSeparator::point;
    return DecimalSeparator::unknown;
}

Language languageOfLocale(std::string_view code) {
    constexpr std::uint32_t languageBits = 0x3FF, german = 0x07;
    return (numberOf(code) & languageBits) == german ? Language::german : Language::english;
}

void settleSeparator(CalculatorState& state, SeparatorState& separator, Files& files,
                     const Messages& messages) {
    const float choice = readSetting(files, settingsFile::decimalSeparator);
    if (choice == commaChoice || choice == pointChoice) return take(state, separator, choice);
    ask(state, separator, files, messages, {germanOpeningAtStart, englishOpeningAtStart});
}

void askSeparator(CalculatorState& state, SeparatorState& separator, Files& files, const Messages& messages) {
    state.language = readLanguage(files);
    ask(state, separator, files, messages, {germanOpeningInRun, englishOpeningInRun});
}

bool hasModernFrame(const System& system) {
    if (!system.GetWindowsStyle().empty()) return false;
    constexpr std::array<std::string_view, 6> old = {"Windows 32s",   "Windows 95", "Windows 98",
                                                     "Windows 98 SE", "Windows ME", "Windows 2000"};
    return std::find(old.begin(), old.end(), system.GetSystemName()) == old.end();
}

}  // namespace zifferon
