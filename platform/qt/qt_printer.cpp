#include "platform/qt/qt_printer.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPointer>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QProgressDialog>
#include <QSvgRenderer>
#include <QTimer>
#include <thread>

#include "platform/font_size.h"
#include "platform/qt/control_view.h"
#include "platform/qt/form_view.h"

namespace zifferon {

namespace {

constexpr TextView toFile = u"Print to File (PDF)";
constexpr int twipsPerInch = 1440;
constexpr int twipsPerPoint = 20;

}  // namespace

// Tells how far a long print is, and stops it. While it stands no other window takes keys or the mouse, and
// no timer ticks.
class QtPrinter::Progress {
  public:
    Progress(qsizetype all, Language language) : all_(all), language_(language) { clock_.start(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() { FormView::holdTimers(false); }

    // Throws PrintStopped.
    void tell(qsizetype done) {
        constexpr int untilSeen = 400, pause = 50;  // milliseconds
        if (clock_.elapsed() < (dialog_ ? pause : untilSeen)) return;
        clock_.restart();
        if (!dialog_) open();
        dialog_->setValue(int(100 * done / all_));
        QCoreApplication::processEvents();
        if (dialog_->wasCanceled()) throw PrintStopped();
    }

  private:
    void open() {
        dialog_ = std::make_unique<QProgressDialog>(FormView::topmost());
        dialog_->setWindowModality(Qt::ApplicationModal);
        dialog_->setWindowTitle(QStringLiteral("Zifferon PRO 5.0"));
        dialog_->setLabelText(QStringLiteral(" printing...."));
        dialog_->setCancelButtonText(toQString(Words{u"Abbrechen", u"Cancel"}.in(language_)));
        FormView::holdTimers(true);
        dialog_->setAutoClose(false);
        dialog_->setMinimumDuration(0);
    }

    qsizetype all_;
    Language language_;
    QElapsedTimer clock_;
    std::unique_ptr<QProgressDialog> dialog_;
};

QtPrinter::~QtPrinter() { drop(); }

// The thread is left to itself: the process may end, whether the service has answered or not.
void QtPrinter::find(std::function<void()> found) {
    constexpr int untilPainted = 200;  // milliseconds
    const auto take = [this, found](std::vector<Text> names, const Text& current) {
        names_ = std::move(names);
        names_.emplace_back(toFile);
        current_ = current.empty() ? names_.front() : current;
        found();
    };
    const auto ask = [take, alive = QPointer<QObject>(&alive_)] {
        std::vector<Text> names;
        for (const QString& name : QPrinterInfo::availablePrinterNames())
            names.push_back(name.toStdU16String());
        const Text current = QPrinterInfo::defaultPrinterName().toStdU16String();
        QMetaObject::invokeMethod(qApp, [take, alive, names, current] {
            if (alive) take(names, current);
        });
    };
    QTimer::singleShot(untilPainted, &alive_, [ask] { std::thread(ask).detach(); });
}

std::vector<Text> QtPrinter::fontNames() {
    std::vector<Text> names;
    for (const QString& name : QFontDatabase::families()) names.push_back(name.toStdU16String());
    return names;
}

void QtPrinter::setFontName(TextView name) { font_.setFamily(toQString(name)); }

// A unit of the device is a twip: whole points come out exactly.
void QtPrinter::setFontSize(TextView points) {
    const auto size = fontSizeOf(points);
    if (!size) throw PrintFailure();
    font_.setPixelSize(*size * twipsPerPoint);
}

// Of a name that it does not know the toolkit makes the default printer.
void QtPrinter::begin() {
    if (document_) return;
    const bool intoFile = current_ == toFile;
    QPrinter printer(QPrinter::HighResolution);
    if (intoFile) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        target_ = askForFile();
        if (target_.isEmpty()) throw PrintStopped();
    } else {
        target_.clear();
        printer.setPrinterName(toQString(current_));
        if (current_.empty() || printer.printerName() != toQString(current_)) throw PrintFailure();
    }
    file_ = std::make_unique<QTemporaryFile>();
    if (!file_->open()) throw PrintFailure();
    document_ = std::make_unique<QPdfWriter>(file_.get());
    document_->setPageLayout(printer.pageLayout());
    document_->setResolution(twipsPerInch);
    document_->setTitle(QStringLiteral("Zifferon PRO"));
    if (!painter_.begin(document_.get())) throw PrintFailure();
    top_ = 0;
}

// The dialog asks itself before it overwrites.
QString QtPrinter::askForFile() const {
    return QFileDialog::getSaveFileName(FormView::topmost(), {}, QStringLiteral("Zifferon PRO.pdf"),
                                        QStringLiteral("PDF (*.pdf)"));
}

void QtPrinter::print(TextView text) {
    begin();
    Progress progress(qsizetype(text.size()) + 1, language);
    for (std::size_t done = 0;;) {
        const std::size_t end = std::min(text.find(u"\r\n", done), text.size());
        printLine(text.substr(done, end - done));
        if (end == text.size()) return;
        done = end + 2;
        progress.tell(qsizetype(done));
    }
}

void QtPrinter::printLine(TextView line) {
    const QFontMetricsF metrics(font_, document_.get());
    const double pageHeight = document_->pageLayout().paintRectPixels(twipsPerInch).height();
    if (top_ > 0 && top_ + metrics.height() > pageHeight) {
        if (!document_->newPage()) throw PrintFailure();
        top_ = 0;
    }
    painter_.setFont(font_);
    painter_.drawText(QPointF(left_, top_ + metrics.ascent()), toQString(line));
    top_ += metrics.lineSpacing();
}

void QtPrinter::paintPicture(TextView name, int left, int top) {
    begin();
    QSvgRenderer picture(drawingOf(name));
    if (picture.isValid())
        picture.render(&painter_, QRectF(QPointF(left, top), picture.defaultSize() * twipsPerPixel));
}

void QtPrinter::endDoc() {
    begin();
    if (!painter_.end()) throw PrintFailure();
    document_.reset();
    if (!file_->flush() || file_->error() != QFileDevice::NoError) throw PrintFailure();
    handOver();
    file_.reset();
}

// The print service gets it whole, by its own command, or never.
void QtPrinter::handOver() {
    if (!target_.isEmpty()) {
        QFile::remove(target_);
        if (!file_->copy(target_)) throw PrintFailure();
        return;
    }
    constexpr int longestWait = 30000;  // milliseconds
    QProcess command;
    command.start(QStringLiteral("lp"), {QStringLiteral("-d"), toQString(current_), QStringLiteral("-t"),
                                         QStringLiteral("Zifferon PRO"), file_->fileName()});
    const bool done = command.waitForFinished(longestWait);
    if (!done || command.exitStatus() != QProcess::NormalExit || command.exitCode() != 0)
        throw PrintFailure();
}

void QtPrinter::drop() {
    if (painter_.isActive()) painter_.end();
    document_.reset();
    file_.reset();
}

}  // namespace zifferon
