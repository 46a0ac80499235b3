#include "platform/qt/application.h"

#include <QIcon>
#include <QPixmap>
#include <QResource>
#include <QToolTip>

#include "platform/qt/own_style.h"

namespace zifferon {

namespace {

// Then the application begins with that one, whatever was chosen before.
bool anotherStyleIsWanted() { return qEnvironmentVariableIsSet("QT_STYLE_OVERRIDE"); }

// Chosen before the application begins, which would otherwise make another style first.
int& withOwnStyle(int& argc) {
    QApplication::setDesktopSettingsAware(false);
    if (!anotherStyleIsWanted()) QApplication::setStyle(newOwnStyle());
    return argc;
}

QFont arial(int pixels) {
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(pixels);
    font.setStyleStrategy(QFont::PreferNoShaping);  // as in the controls
    return font;
}

QIcon drawnIcon() {
    QIcon icon;
    for (const int size : {16, 32, 48}) {
        const QResource pixels(QStringLiteral(":/icons/%1").arg(size));
        icon.addPixmap(
            QPixmap::fromImage(QImage(pixels.data(), size, size, QImage::Format_ARGB32_Premultiplied)));
    }
    return icon;
}

}  // namespace

QFont boxFont() { return arial(13); }

Application::Application(int& argc, char** argv) : QApplication(withOwnStyle(argc), argv) {
    setQuitOnLastWindowClosed(false);
    if (anotherStyleIsWanted()) setStyle(newOwnStyle());
    setPalette(OwnStyle::palette());
    setFont(arial(11));  // that of most controls: each font more is seen at the start
    QToolTip::setPalette(palette());
    QToolTip::setFont(font());
    setWindowIcon(drawnIcon());
}

}  // namespace zifferon
