#include "platform/qt/qt_machine.h"

#include <QApplication>
#include <QClipboard>
#include <QDateTime>
#include <QLocale>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QSvgRenderer>
#include <QTimer>
#include <QtMath>
#include <algorithm>
#include <cstdlib>
#include <thread>

#include "platform/qt/application.h"
#include "platform/qt/control_view.h"
#include "platform/qt/form_view.h"

namespace zifferon {

namespace {

TextView drawingFor(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::information:
            return u"box_information";
        case BoxIcon::question:
            return u"box_question";
        case BoxIcon::warning:
            return u"box_warning";
        case BoxIcon::critical:
            return u"box_critical";
        case BoxIcon::none:
            break;
    }
    return {};
}

// Drawn for the pixels of the screen on which the box opens.
QPixmap pictureOf(BoxIcon icon, const QWidget& box) {
    const TextView drawing = drawingFor(icon);
    if (drawing.empty()) return {};
    constexpr int size = 36;
    const double scale = box.devicePixelRatioF();
    QPixmap picture(QSize(qCeil(size * scale), qCeil(size * scale)));
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer(drawingOf(drawing)).render(&painter, QRectF(0, 0, size, size));
    return picture;
}

}  // namespace

BoxAnswer QtBoxes::show(const Box& box) {
    QMessageBox window(FormView::topmost());
    window.setFont(boxFont());
    window.setWindowTitle(toQString(box.title));
    window.setTextFormat(Qt::PlainText);
    window.setText(toQString(box.text));
    window.setIconPixmap(pictureOf(box.icon, window));
    if (box.buttons == BoxButtons::ok) {
        window.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
        window.exec();
        return BoxAnswer::ok;
    }
    const auto add = [&](Words caption) {
        return window.addButton(toQString(caption.in(box.language)), QMessageBox::ActionRole);
    };
    // One role for all: the buttons stand in this order on every desktop, and none of them is taken for a way
    // out. A question without Cancel has no way out but its buttons.
    QPushButton* const yes = add({u"&Ja", u"&Yes"});
    QPushButton* const no = add({u"&Nein", u"&No"});
    window.setDefaultButton(box.noIsDefault ? no : yes);
    if (box.buttons == BoxButtons::yesNoCancel) {
        window.setEscapeButton(add({u"Abbrechen", u"Cancel"}));
    } else {
        window.setWindowFlag(Qt::WindowCloseButtonHint, false);
    }
    window.exec();
    const QAbstractButton* const clicked = window.clickedButton();
    if (clicked == yes) return BoxAnswer::yes;
    return clicked == no ? BoxAnswer::no : BoxAnswer::cancel;
}

void QtClipboard::clear() { QGuiApplication::clipboard()->clear(); }

void QtClipboard::setText(TextView text) { QGuiApplication::clipboard()->setText(toQString(text)); }

Text QtClipboard::text() const { return QGuiApplication::clipboard()->text().toStdU16String(); }

// Its short forms, but with the whole year and the seconds.
Text QtSystem::shortDateTime(std::chrono::system_clock::time_point moment) const {
    const QLocale locale = QLocale::system();
    QString date = locale.dateFormat(QLocale::ShortFormat);
    QString time = locale.timeFormat(QLocale::ShortFormat);
    if (!date.contains(QStringLiteral("yyyy"))) date.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    if (!time.contains(QStringLiteral("ss"))) time.replace(QStringLiteral("mm"), QStringLiteral("mm:ss"));
    const auto sinceEpoch = std::chrono::duration_cast<std::chrono::milliseconds>(moment.time_since_epoch());
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(sinceEpoch.count());
    return locale.toString(local, date + QChar(QChar::Space) + time).toStdU16String();
}

void QtSound::beep() { QApplication::beep(); }

// No destructor runs: handlers are on their way, and what they hold is nobody's any more.
void QtProcess::end() { std::_Exit(EXIT_SUCCESS); }

// Pauses in a row keep step: what one is late is not added to the next. While the user waits, windows that
// come later get ready. The event loop may wake up a millisecond late: the very last ones are slept through.
void QtProcess::pause(int milliseconds) {
    using namespace std::chrono;
    constexpr auto inARow = 5ms;
    const auto now = steady_clock::now();
    if (now - pauseEnd_ > inARow) pauseEnd_ = now;
    pauseEnd_ += std::chrono::milliseconds(milliseconds);
    QTimer alarm;
    alarm.setTimerType(Qt::PreciseTimer);
    alarm.setSingleShot(true);
    alarm.start(std::max(0ms, floor<std::chrono::milliseconds>(pauseEnd_ - now) - 1ms));
    FormView::refreshAll();
    for (FormView* form : FormView::all()) form->getReady();
    while (alarm.isActive()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::this_thread::sleep_until(pauseEnd_);
}

}  // namespace zifferon
