#include "platform/qt/qt_machine.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QThread>
#include <cstdlib>

#include "platform/qt/application.h"
#include "platform/qt/control_view.h"
#include "platform/qt/form_view.h"

namespace zifferon {

namespace {

QMessageBox::Icon iconOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::information:
            return QMessageBox::Information;
        case BoxIcon::question:
            return QMessageBox::Question;
        case BoxIcon::warning:
            return QMessageBox::Warning;
        case BoxIcon::critical:
            return QMessageBox::Critical;
        case BoxIcon::none:
            break;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

BoxAnswer QtBoxes::show(const Box& box) {
    QMessageBox window(FormView::topmost());
    window.setFont(boxFont());
    window.setWindowTitle(toQString(box.title));
    window.setTextFormat(Qt::PlainText);
    window.setText(toQString(box.text));
    window.setIcon(iconOf(box.icon));
    if (box.buttons == BoxButtons::ok) {
        window.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
        window.exec();
        return BoxAnswer::ok;
    }
    const QString yesText = box.english ? QStringLiteral("&Yes") : QStringLiteral("&Ja");
    const QString noText = box.english ? QStringLiteral("&No") : QStringLiteral("&Nein");
    const QString cancelText = box.english ? QStringLiteral("Cancel") : QStringLiteral("Abbrechen");
    QPushButton* const yes = window.addButton(yesText, QMessageBox::YesRole);
    QPushButton* const no = window.addButton(noText, QMessageBox::NoRole);
    window.setDefaultButton(box.noIsDefault ? no : yes);
    window.setEscapeButton(no);
    if (box.buttons == BoxButtons::yesNoCancel) {
        window.setEscapeButton(window.addButton(cancelText, QMessageBox::RejectRole));
    }
    window.exec();
    const QAbstractButton* const clicked = window.clickedButton();
    if (clicked == yes) return BoxAnswer::yes;
    return clicked == no ? BoxAnswer::no : BoxAnswer::cancel;
}

void QtClipboard::clear() { QGuiApplication::clipboard()->clear(); }

void QtClipboard::setText(TextView text) { QGuiApplication::clipboard()->setText(toQString(text)); }

Text QtClipboard::text() const { return QGuiApplication::clipboard()->text().toStdU16String(); }

void QtSound::beep() { QApplication::beep(); }

// No destructor runs: handlers are on their way, and what they hold is nobody's any more.
void QtProcess::end() { std::_Exit(EXIT_SUCCESS); }

void QtProcess::pause(int milliseconds) {
    FormView::refreshAll();
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < milliseconds) {
        QCoreApplication::processEvents();
        QThread::msleep(2);
    }
}

}  // namespace zifferon
