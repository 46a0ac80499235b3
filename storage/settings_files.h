// The settings, each a tiny file of its own in the program folder, written at the moment it changes. An
// absent file is created by reading it; absent, empty and holding 0 are one and the same. Every function
// throws FileFailure where the file cannot be read or written, unless it says otherwise.
#pragma once

#include <optional>
#include <string>

#include "platform/files.h"
#include "platform/language.h"
#include "platform/text.h"

namespace zifferon {

// A single of 4 bytes, little-endian.
namespace settingsFile {
inline const std::string language = "language.dat";          // 0 German, 1 English
inline const std::string decimalSeparator = "decpoint.dat";  // 1 comma, 2 point, 0 to be asked
inline const std::string format = "format.dat";              // 1 formatted, 2 unformatted
inline const std::string textColours = "gui1.dat";           // 1 to 8
inline const std::string backColours = "gui2.dat";           // 1 to 16
inline const std::string firstRunDone = "ntcheck.zfr";       // 1 once it is
inline const std::string writeProbe = "wpcheck.zfr";         // what it holds does not matter
inline const std::string printFont = "font.zfr";             // 1 to 8
}  // namespace settingsFile

// The value of such a file, or `whenZero`; a file of less than 4 bytes is 0.
float readSingle(Files& files, const std::string& name, float whenZero = 0);

// The same, but a file that cannot be read is 0, too.
float readSetting(Files& files, const std::string& name);

// The language on file.
Language readLanguage(Files& files);

// Replaces the first 4 bytes.
void writeSingle(Files& files, const std::string& name, float value);

void writeLanguage(Files& files, Language language);

// winstate.dat: how the main window starts. 20 bytes: left and top as tagged singles, the window mode and the
// start in the tray as tagged 16-bit integers. In the three below an item that is no number, and every item
// behind one that cannot be decoded, reads as if the file ended there.
struct StartOptions {
    struct Position {
        int left = 0, top = 0;  // twips
        bool operator==(const Position&) const = default;
    };
    std::optional<Position> position;  // nothing: where the system puts it
    int windowMode = 0;                // 0 full, 1 narrow, 2 strip; any other number reads as 2
    bool minimised = false;
};
StartOptions readStartOptions(Files& files);
void writeStartOptions(Files& files, const StartOptions& options);

// style.dat: the window's size on systems that need one stored. 12 bytes: a single, and width and height in
// twips as tagged 16-bit integers. Sizes that the window cannot have read as none.
struct StoredSizes {
    float active = 0;  // 0: the layouts have their own sizes
    int width = 0, height = 0;
};
StoredSizes readStoredSizes(Files& files);
void writeStoredSizes(Files& files, const StoredSizes& sizes);

// visible.zfr: whether the window stood always on top when the print page opened. A tagged 16-bit integer.
bool readAlwaysOnTop(Files& files);
void writeAlwaysOnTop(Files& files, bool alwaysOnTop);

// printer.zfr: the name of the printer, a line of text. It is read up to a comma or the end of the line, or
// from quote to quote; without a file, or without a name in it, there is none. Reading creates no file.
std::optional<Text> readPrinterName(Files& files);
void writePrinterName(Files& files, TextView name);

}  // namespace zifferon
