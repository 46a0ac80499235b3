// The printers of the machine, and the document that goes to the current one. Whatever is printed first
// begins a document; endDoc hands it to the spooler.
#pragma once

#include <exception>
#include <functional>
#include <vector>

#include "platform/language.h"

namespace zifferon {

// A call on the device that came to nothing.
class PrintFailure : public std::exception {
  public:
    const char* what() const noexcept override { return "print failure"; }
};

// The user has stopped the document.
class PrintStopped : public std::exception {
  public:
    const char* what() const noexcept override { return "print stopped"; }
};

enum class Orientation { upright = 1, across = 2 };

// A picture of the program on a page.
struct PrintedPicture {
    TextView name;          // as the program calls it
    TextView drawing;       // name of the file
    int left = 0, top = 0;  // its upper left corner, in twips from that of the printable area
    double share = 0;       // of the greatest size that it can have from there; 0: its own size
};

class PrintDevice {
  public:
    virtual ~PrintDevice() = default;

    Language language = Language::german;  // of what it tells the user while it prints

    // Looks for printers and fonts; `found` runs when they are known, never before the windows that are shown
    // now have been painted, and without a window at once. Until then there are none. It may run once more,
    // when a print service that is slow to answer knows others.
    virtual void find(std::function<void()> found) = 0;

    // In the order of the system. Never fails; a print service that does not answer has no printers.
    virtual std::vector<Text> printerNames() = 0;

    // The printer that takes the next document, empty where there is none. At first it is the system's
    // default printer, else the first one. Never fails.
    virtual Text deviceName() = 0;

    // The fonts that can be printed, in the order of the system.
    virtual std::vector<Text> fontNames() = 0;

    // The following throw PrintFailure.

    // Makes one of the printers the current one. The system's default printer stays.
    virtual void setPrinter(TextView name) = 0;

    // Font of what follows. A size is a whole number of points from 1 to 999, as text; any other fails.
    virtual void setFontName(TextView name) = 0;
    virtual void setFontSize(TextView points) = 0;
    virtual void setFontBold(bool bold) = 0;
    virtual void setFontItalic(bool italic) = 0;

    // Where lines start, in twips from the left edge of the printable area.
    virtual void setLeft(int twips) = 0;

    // Prints a text, which may hold CR LF, and ends its line: a lone CR LF goes on by two lines. What runs
    // beyond the right edge is cut. At the end of a page the device goes on with the next. Throws
    // PrintStopped.
    virtual void print(TextView text) = 0;

    virtual void paintPicture(const PrintedPicture& picture) = 0;

    // The direction of the pages, from the next document on.
    virtual void setOrientation(Orientation orientation) = 0;

    // Where the next line starts, in twips from the left edge set before and from the upper edge.
    virtual void setCurrentX(int twips) = 0;
    virtual void setCurrentY(int twips) = 0;

    virtual void endDoc() = 0;

    // Forgets the unfinished document; the next one begins anew, with its font, and upright. Never fails.
    virtual void drop() = 0;
};

}  // namespace zifferon
