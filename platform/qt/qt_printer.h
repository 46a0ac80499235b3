// The system's printers, and the printing to a PDF file that every desktop offers.
#pragma once

#include <QFont>
#include <QObject>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryFile>
#include <memory>

#include "platform/print_device.h"

namespace zifferon {

class QtPrinter : public PrintDevice {
  public:
    QtPrinter() = default;
    ~QtPrinter() override;

    // A print service that does not answer keeps nobody waiting: it is asked beside the event loop.
    void find(std::function<void()> found) override;
    std::vector<Text> printerNames() override { return names_; }
    Text deviceName() override { return current_; }
    std::vector<Text> fontNames() override;
    void setPrinter(TextView name) override { current_ = name; }
    void setFontName(TextView name) override;
    void setFontSize(TextView points) override;
    void setFontBold(bool bold) override { font_.setBold(bold); }
    void setFontItalic(bool italic) override { font_.setItalic(italic); }
    void setLeft(int twips) override { left_ = twips; }
    void print(TextView text) override;
    void paintPicture(const PrintedPicture& picture) override;
    void setOrientation(Orientation orientation) override { orientation_ = orientation; }
    void setCurrentX(int twips) override;
    void setCurrentY(int twips) override;
    void endDoc() override;
    void drop() override;

  private:
    class Progress;

    void take(std::vector<Text> names, const Text& current, const std::function<void()>& found);
    void askForPrinters(const std::function<void()>& found);
    void begin();
    void printLine(TextView line);
    QPageLayout layoutOfFile();
    QPageLayout layoutOfPrinter() const;
    QSizeF page() const;
    void handOver();

    std::vector<Text> names_;
    Text current_;
    QObject alive_;  // what was asked for a device that has gone is not answered

    // The unfinished document, if any: a PDF file that nobody has seen yet. Its painter's units are twips.
    std::unique_ptr<QTemporaryFile> file_;
    std::unique_ptr<QPdfWriter> document_;
    QString target_;  // the file that it becomes; empty: the printer's
    QPainter painter_;
    QFont font_;
    Orientation orientation_ = Orientation::upright;
    int left_ = 0;
    QPointF next_;  // of the next line, from where `left_` meets the upper edge of the printable area
};

}  // namespace zifferon
