#include "platform/qt/qt_printer.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QLocale>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QProgressDialog>
#include <QSaveFile>
#include <QSvgRenderer>
#include <QTimer>
#include <chrono>
#include <future>
#include <optional>
#include <thread>
#include <utility>

#include "platform/font_size.h"
#include "platform/qt/control_view.h"
#include "platform/qt/form_view.h"

namespace zifferon {

namespace {

constexpr TextView toFile = u"Print to File (PDF)";
constexpr int twipsPerInch = 1440;
constexpr int twipsPerPoint = 20;

QPageSize paperOfTheCountry() {
    const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(letter ? QPageSize::Letter : QPageSize::A4);
}

// Asks the print service. Of a name that it does not know the toolkit makes the default printer.
std::optional<QPageLayout> layoutOf(const QString& printerName) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(printerName);
    if (printer.printerName() != printerName) return std::nullopt;
    const QPageSize paper = QPrinterInfo::printerInfo(printerName).defaultPageSize();
    printer.setPageSize(paper.isValid() ? paper : paperOfTheCountry());
    return printer.pageLayout();
}

}  // namespace

// Tells how far a long print is, and stops it. While it stands no other window takes keys or the mouse, and
// no timer ticks.
class QtPrinter::Progress {
  public:
    // Of `all` steps; 0: nobody knows how many.
    Progress(qsizetype all, Language language) : all_(all), language_(language) { clock_.start(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    ~Progress() { FormView::holdTimers(false); }

    // Throws PrintStopped.
    void tell(qsizetype done) {
        constexpr int untilSeen = 400;
        if (clock_.elapsed() < (dialog_ ? pause : untilSeen)) return;
        clock_.restart();
        if (!dialog_) open();
        if (all_ > 0) dialog_->setValue(int(100 * done / all_));
        QCoreApplication::processEvents();
        if (dialog_->wasCanceled()) throw PrintStopped();
    }

    // Returns when `isDone`, which takes so many milliseconds, is true, and throws PrintFailure when that is
    // too late, and PrintStopped.
    void waitUntil(const std::function<bool(int milliseconds)>& isDone) {
        constexpr int longestWait = 30000;
        QElapsedTimer waited;
        waited.start();
        while (!isDone(pause)) {
            if (waited.elapsed() > longestWait) throw PrintFailure();
            tell(0);
        }
    }

  private:
    static constexpr int pause = 50;  // milliseconds

    void open() {
        dialog_ = std::make_unique<QProgressDialog>(FormView::topmost());
        dialog_->setWindowModality(Qt::ApplicationModal);
        dialog_->setWindowTitle(QStringLiteral("Zifferon PRO 5.0"));
        dialog_->setLabelText(QStringLiteral(" printing...."));
        dialog_->setCancelButtonText(toQString(Words{u"Abbrechen", u"Cancel"}.in(language_)));
        FormView::holdTimers(true);
        dialog_->setRange(0, all_ > 0 ? 100 : 0);
        dialog_->setAutoClose(false);
        dialog_->setMinimumDuration(0);
        dialog_->show();
    }

    qsizetype all_;
    Language language_;
    QElapsedTimer clock_;
    std::unique_ptr<QProgressDialog> dialog_;
};

QtPrinter::~QtPrinter() { drop(); }

void QtPrinter::find(std::function<void()> found) {
    constexpr int untilPainted = 200;  // milliseconds
    QTimer::singleShot(untilPainted, &alive_, [this, found] {
        take({}, {}, found);
        askForPrinters(found);
    });
}

void QtPrinter::take(std::vector<Text> names, const Text& current, const std::function<void()>& found) {
    names_ = std::move(names);
    names_.emplace_back(toFile);
    current_ = current.empty() ? names_.front() : current;
    found();
    FormView::refreshAll();
}

// Asked by the service's own command, it costs this process no libraries. It tells the names, and the default
// one behind words.
void QtPrinter::askForPrinters(const std::function<void()>& found) {
    auto* const command = new QProcess(&alive_);
    QProcessEnvironment english = QProcessEnvironment::systemEnvironment();
    english.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    command->setProcessEnvironment(english);
    QObject::connect(command, &QProcess::finished, &alive_, [this, command, found] {
        std::vector<Text> names;
        Text current;
        for (const QByteArray& line : command->readAllStandardOutput().split('\n')) {
            const QList<QByteArray> words = line.split(' ');
            if (line.startsWith("system default destination:"))
                current = fromUtf8(words.last().toStdString());
            if (words.size() == 1 && !line.isEmpty()) names.push_back(fromUtf8(line.toStdString()));
        }
        command->deleteLater();
        take(std::move(names), current, found);
    });
    command->start(QStringLiteral("lpstat"), {QStringLiteral("-e"), QStringLiteral("-d")});
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

void QtPrinter::begin() {
    if (document_) return;
    QPageLayout layout = current_ == toFile ? layoutOfFile() : layoutOfPrinter();
    if (orientation_ == Orientation::across) layout.setOrientation(QPageLayout::Landscape);
    file_ = std::make_unique<QTemporaryFile>();
    if (!file_->open()) throw PrintFailure();
    document_ = std::make_unique<QPdfWriter>(file_.get());
    document_->setPageLayout(layout);
    document_->setResolution(twipsPerInch);
    document_->setTitle(QStringLiteral("Zifferon PRO"));
    if (!painter_.begin(document_.get())) throw PrintFailure();
    next_ = {};
}

// Asks for the file. The dialog asks itself before it overwrites.
QPageLayout QtPrinter::layoutOfFile() {
    target_ = QFileDialog::getSaveFileName(FormView::topmost(), {}, QStringLiteral("Zifferon PRO.pdf"),
                                           QStringLiteral("PDF (*.pdf)"));
    if (target_.isEmpty()) throw PrintStopped();
    constexpr double margin = 12;  // points
    return {paperOfTheCountry(), QPageLayout::Portrait, QMarginsF(margin, margin, margin, margin)};
}

// The print service may not answer: it is asked by a thread that is left to itself.
QPageLayout QtPrinter::layoutOfPrinter() const {
    if (current_.empty()) throw PrintFailure();
    std::promise<std::optional<QPageLayout>> promise;
    auto answer = promise.get_future();
    std::thread([name = toQString(current_), promise = std::move(promise)]() mutable {
        promise.set_value(layoutOf(name));
    }).detach();
    Progress(0, language).waitUntil([&](int milliseconds) {
        return answer.wait_for(std::chrono::milliseconds(milliseconds)) == std::future_status::ready;
    });
    const std::optional<QPageLayout> layout = answer.get();
    if (!layout) throw PrintFailure();
    return *layout;
}

QSizeF QtPrinter::page() const { return document_->pageLayout().paintRectPixels(twipsPerInch).size(); }

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
    if (next_.y() > 0 && next_.y() + metrics.height() > page().height()) {
        if (!document_->newPage()) throw PrintFailure();
        next_ = {};
    }
    painter_.setFont(font_);
    painter_.drawText(next_ + QPointF(left_, metrics.ascent()), toQString(line));
    next_ = {0, next_.y() + metrics.lineSpacing()};
}

void QtPrinter::setCurrentX(int twips) {
    begin();
    next_.setX(twips);
}

void QtPrinter::setCurrentY(int twips) {
    begin();
    next_.setY(twips);
}

void QtPrinter::paintPicture(const PrintedPicture& picture) {
    begin();
    QSvgRenderer drawing(drawingOf(picture.drawing));
    if (!drawing.isValid()) return;
    const QPointF corner(picture.left, picture.top);
    QSizeF size = drawing.defaultSize() * twipsPerPixel;
    if (picture.share > 0) {
        size.scale(page() - QSizeF(picture.left, picture.top), Qt::KeepAspectRatio);
        size *= picture.share;
    }
    drawing.render(&painter_, QRectF(corner, size));
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
        QSaveFile target(std::exchange(target_, {}));
        if (!target.open(QIODevice::WriteOnly) || !file_->seek(0)) throw PrintFailure();
        constexpr int piece = 1 << 16;
        while (!file_->atEnd()) target.write(file_->read(piece));
        if (!target.commit()) throw PrintFailure();
        return;
    }
    QProcess command;
    command.start(QStringLiteral("lp"), {QStringLiteral("-d"), toQString(current_), QStringLiteral("-t"),
                                         QStringLiteral("Zifferon PRO"), file_->fileName()});
    Progress(0, language).waitUntil([&](int milliseconds) {
        return command.waitForFinished(milliseconds) || command.state() == QProcess::NotRunning;
    });
    if (command.error() == QProcess::FailedToStart || command.exitStatus() != QProcess::NormalExit ||
        command.exitCode() != 0) {
        throw PrintFailure();
    }
}

void QtPrinter::drop() {
    if (painter_.isActive()) painter_.end();
    document_.reset();
    file_.reset();
    target_.clear();
    orientation_ = Orientation::upright;
}

}  // namespace zifferon
