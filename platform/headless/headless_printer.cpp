#include "platform/headless/headless_printer.h"

#include "platform/font_size.h"
#include "platform/headless/quoted.h"

namespace zifferon {

void HeadlessPrinter::addPrinter(const Text& name) {
    if (printers_.empty()) current_ = name;
    printers_.push_back(name);
}

void HeadlessPrinter::beginAnew() { current_ = printers_.empty() ? Text() : printers_.front(); }

void HeadlessPrinter::setPrinter(TextView name) {
    call("printer " + quoted(name));
    current_ = name;
}

void HeadlessPrinter::setFontName(TextView name) { call("font " + quoted(name)); }

void HeadlessPrinter::setFontSize(TextView points) {
    const auto size = fontSizeOf(points);
    call("size " + (size ? std::to_string(*size) : quoted(points)), !size);
}

void HeadlessPrinter::setFontBold(bool bold) { call(bold ? "bold true" : "bold false"); }

void HeadlessPrinter::setFontItalic(bool italic) { call(italic ? "italic true" : "italic false"); }

void HeadlessPrinter::setLeft(int twips) { call("left " + std::to_string(twips)); }

void HeadlessPrinter::print(TextView text) { call("text " + quoted(text)); }

void HeadlessPrinter::paintPicture(const PrintedPicture& picture) {
    call("picture " + toUtf8(picture.name) + ' ' + std::to_string(picture.left) + ' ' +
         std::to_string(picture.top));
}

void HeadlessPrinter::setOrientation(Orientation orientation) {
    call("orientation " + std::to_string(static_cast<int>(orientation)));
}

void HeadlessPrinter::setCurrentX(int twips) { call("currentx " + std::to_string(twips)); }

void HeadlessPrinter::setCurrentY(int twips) { call("currenty " + std::to_string(twips)); }

void HeadlessPrinter::endDoc() { call("end"); }

void HeadlessPrinter::call(const std::string& line, bool fails) {
    if (callsToFault_ > 0 && --callsToFault_ == 0) fails = true;
    if (fails || printers_.empty()) {
        tell_("print " + line + " -> fails");
        throw PrintFailure();
    }
    tell_("print " + line);
}

}  // namespace zifferon
