// A print device that tells each call as a line of the log, and fails where it is told to.
#pragma once

#include <functional>
#include <string>

#include "platform/print_device.h"

namespace zifferon {

class HeadlessPrinter : public PrintDevice {
  public:
    // `tell` takes each line.
    explicit HeadlessPrinter(std::function<void(std::string)> tell) : tell_(std::move(tell)) {}

    // The first printer is the default one.
    void addPrinter(const Text& name);
    void addFont(const Text& name) { fonts_.push_back(name); }

    // The n-th call from now on fails, counted from 1; 0: none. Reading is no call.
    void failCall(int n) { callsToFault_ = n; }

    // The default printer is the current one again.
    void beginAnew();

    void find(std::function<void()> found) override { found(); }
    std::vector<Text> printerNames() override { return printers_; }
    Text deviceName() override { return current_; }
    std::vector<Text> fontNames() override { return fonts_; }
    void setPrinter(TextView name) override;
    void setFontName(TextView name) override;
    void setFontSize(TextView points) override;
    void setFontBold(bool bold) override;
    void setFontItalic(bool italic) override;
    void setLeft(int twips) override;
    void print(TextView text) override;
    void paintPicture(const PrintedPicture& picture) override;
    void setOrientation(Orientation orientation) override;
    void setCurrentX(int twips) override;
    void setCurrentY(int twips) override;
    void endDoc() override;
    void drop() override {}

  private:
    void call(const std::string& line, bool fails = false);

    std::function<void(std::string)> tell_;
    std::vector<Text> printers_, fonts_;
    Text current_;
    int callsToFault_ = 0;
};

}  // namespace zifferon
