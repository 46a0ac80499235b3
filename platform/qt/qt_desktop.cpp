#include "platform/qt/qt_desktop.h"

#include <QApplication>
#include <QIcon>
#include <QProcess>

#include "platform/qt/application.h"
#include "platform/qt/form_view.h"
#include "platform/qt/to_front.h"

namespace zifferon {

void QtDesktop::attachTo(FormView& mainWindow) {
    mainWindow_ = &mainWindow;
    const int callers = summons_.listen();
    if (callers < 0) return;
    summonsNotifier_ = std::make_unique<QSocketNotifier>(callers, QSocketNotifier::Read);
    QObject::connect(summonsNotifier_.get(), &QSocketNotifier::activated, [this] { summoned(); });
}

void QtDesktop::addTrayIcon() {
    if (!tray_) makeTray();
    tray_->icon.show();
}

void QtDesktop::removeTrayIcon() {
    if (tray_) tray_->icon.hide();
}

void QtDesktop::makeTray() {
    tray_ = std::make_unique<Tray>();
    const auto addEntry = [this](const char* text, const std::function<void()>& handler) {
        QObject::connect(tray_->menu.addAction(QString::fromLatin1(text)), &QAction::triggered,
                         [this, &handler] { runUnlessModal(handler); });
    };
    addEntry("Show", onTrayShow);
    addEntry("Exit", onTrayExit);
    tray_->menu.setFont(boxFont());
    tray_->icon.setIcon(QIcon(QStringLiteral(":/pictures/zifferonpro.svg")));
    tray_->icon.setToolTip(QStringLiteral("Zifferon PRO"));
    tray_->icon.setContextMenu(&tray_->menu);
    QObject::connect(&tray_->icon, &QSystemTrayIcon::activated,
                     [this](QSystemTrayIcon::ActivationReason reason) { trayClicked(reason); });
}

// The right button opens the menu by itself; pressed twice, it shows the window.
void QtDesktop::trayClicked(QSystemTrayIcon::ActivationReason reason) {
    if (reason == QSystemTrayIcon::DoubleClick) return runUnlessModal(onTrayDoubleClick);
    if (reason != QSystemTrayIcon::Context) return;
    QElapsedTimer& since = tray_->sinceRightClick;
    if (!since.isValid() || since.restart() > QApplication::doubleClickInterval()) return since.start();
    since.invalidate();
    tray_->menu.hide();
    runUnlessModal(onTrayShow);
}

void QtDesktop::tellFromTray(TextView text) {
    constexpr int untilTheIconStands = 500, shown = 10000;  // milliseconds
    tray_->message.disconnect();
    tray_->message.setSingleShot(true);
    tray_->message.callOnTimeout([this, message = toQString(text)] {
        if (!tray_->icon.isVisible()) return;
        tray_->icon.showMessage(QStringLiteral("Zifferon PRO 5.0"), message, tray_->icon.icon(), shown);
    });
    tray_->message.start(untilTheIconStands);
}

// In a Wayland session an X server, if any, sees only the keys that are typed into its own windows.
void QtDesktop::registerHotKey() {
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        hotKey_.grab();
    } else {
        portalHotKey_.grab();
    }
}

void QtDesktop::unregisterHotKey() {
    hotKey_.release();
    portalHotKey_.release();
}

bool QtDesktop::run(const std::function<void()>& handler) {
    if (mainWindow_ == nullptr || !handler) return false;
    mainWindow_->run(handler);
    return true;
}

void QtDesktop::runUnlessModal(const std::function<void()>& handler) {
    if (QApplication::activeModalWidget() == nullptr) run(handler);
}

void QtDesktop::endSummons() {
    summonsNotifier_.reset();
    summons_.endListening();
}

void QtDesktop::summoned() {
    const std::optional<std::string> token = summons_.next();
    if (!token) return;
    // Where the toolkit looks for it when it asks a Wayland compositor.
    if (!token->empty()) qputenv("XDG_ACTIVATION_TOKEN", QByteArray::fromStdString(*token));
    comeForward();
    summons_.answered();
}

void QtDesktop::comeForward() {
    if (QWidget* const modal = QApplication::activeModalWidget()) return bringToFront(*modal);
    if (run(onTrayShow)) return;
    // The main window is still to come.
    for (FormView* const form : FormView::all()) {
        if (form->isVisible()) bringToFront(*form);
    }
}

void QtDesktop::openDocument(const std::string& fileName) {
    auto* const opener = new QProcess(qApp);
    const auto finished = [this, opener, fileName](int exitCode, QProcess::ExitStatus) {
        opener->deleteLater();
        const bool compressed = fileName.ends_with(".chm");
        if (exitCode != 0 && compressed) openDocument(fileName.substr(0, fileName.size() - 4) + ".html");
    };
    QObject::connect(opener, &QProcess::finished, finished);
    QObject::connect(opener, &QProcess::errorOccurred, opener, &QObject::deleteLater);
    opener->setStandardOutputFile(QProcess::nullDevice());
    opener->setStandardErrorFile(QProcess::nullDevice());
    opener->start(QStringLiteral("xdg-open"), {QString::fromStdString(fileName)});
}

}  // namespace zifferon
