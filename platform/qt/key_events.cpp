#include "platform/qt/key_events.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMouseEvent>
#include <QWidget>
#include <utility>

#include "platform/qt/form_view.h"

namespace zifferon {

namespace {

Qt::KeyboardModifiers commandModifiers(const QKeyEvent& event) {
    return event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

bool isPaste(const QKeyEvent& event) {
    const bool shift = event.modifiers() & Qt::ShiftModifier;
    if (event.key() == Qt::Key_Insert) return shift && !commandModifiers(event);
    return event.key() == Qt::Key_Paste ||
           (event.key() == Qt::Key_V && !shift && commandModifiers(event) == Qt::ControlModifier);
}

std::optional<Key> namedKey(int key) {
    if (key >= Qt::Key_F1 && key <= Qt::Key_F16) return Key{keyCode::f1 + key - Qt::Key_F1};
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return Key{keyCode::enter, 13};
        case Qt::Key_Escape:
            return Key{keyCode::escape, 27};
        case Qt::Key_Backspace:
            return Key{keyCode::back, 8};
        case Qt::Key_Delete:
            return Key{keyCode::del};
        case Qt::Key_Insert:
            return Key{keyCode::insert};
        case Qt::Key_Left:
            return Key{keyCode::left};
        case Qt::Key_Up:
            return Key{keyCode::up};
        case Qt::Key_Right:
            return Key{keyCode::right};
        case Qt::Key_Down:
            return Key{keyCode::down};
        case Qt::Key_Home:
            return Key{keyCode::home};
        case Qt::Key_End:
            return Key{keyCode::end};
        case Qt::Key_PageUp:
            return Key{keyCode::pageUp};
        case Qt::Key_PageDown:
            return Key{keyCode::pageDown};
        default:
            return std::nullopt;
    }
}

std::optional<Key> keypadOperator(int key) {
    switch (key) {
        case Qt::Key_Asterisk:
            return Key{keyCode::multiply, u'*'};
        case Qt::Key_Plus:
            return Key{keyCode::add, u'+'};
        case Qt::Key_Minus:
            return Key{keyCode::subtract, u'-'};
        case Qt::Key_Slash:
            return Key{keyCode::divide, u'/'};
        case Qt::Key_Comma:
            return Key{keyCode::decimal, u','};
        case Qt::Key_Period:
            return Key{keyCode::decimal, u'.'};
        default:
            return std::nullopt;
    }
}

// The key of a typed character, or nothing for what is no character of one unit. Digits and the decimal
// separator of any script count as those of the calculator.
std::optional<Key> typedKey(QChar character) {
    constexpr char16_t arabicDecimalSeparator = 0x066B;
    if (character.isDigit()) return keyOfCharacter(static_cast<char16_t>(u'0' + character.digitValue()));
    if (character == arabicDecimalSeparator) return keyOfCharacter(u',');
    if (!character.isPrint() || character.isSurrogate()) return std::nullopt;
    return keyOfCharacter(character.unicode());
}

// Between the two events of one repetition, in milliseconds.
constexpr int longestGap = 5;

bool isLineEnd(QChar character) { return character == u'\r' || character == u'\n'; }

}  // namespace

std::optional<Key> keyOf(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Alt) return Key{keyCode::alt};
    if (commandModifiers(event) == Qt::ControlModifier && event.key() == Qt::Key_R) {
        return Key{keyOfCharacter(u'R').code, 18};
    }
    if (commandModifiers(event)) return std::nullopt;
    if (const auto named = namedKey(event.key())) return named;
    if (event.modifiers() & Qt::KeypadModifier) {
        if (const auto keypad = keypadOperator(event.key())) return keypad;
    }
    return event.text().size() == 1 ? typedKey(event.text().front()) : std::nullopt;
}

KeyEvents::KeyEvents(FormView& form, KeyRoad& keys) : form_(form), keys_(keys) {
    // Only there every key comes by before a widget or a shortcut can take it.
    qApp->installEventFilter(this);
    releaseTimer_.setSingleShot(true);
    connect(&releaseTimer_, &QTimer::timeout, [this] { settleRelease(); });
}

bool KeyEvents::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate && receiver == &form_) {
        held_.clear();
        release_.reset();
        keys_.releaseAll();
        FormView::refreshAll();
        return false;
    }
    auto* const widget = qobject_cast<QWidget*>(receiver);
    if (widget == nullptr || widget->window() != &form_) return false;
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            break;
        case QEvent::KeyPress:
            keyPressed(static_cast<QKeyEvent&>(*event));
            break;
        case QEvent::KeyRelease:
            keyReleased(static_cast<QKeyEvent&>(*event));
            break;
        case QEvent::InputMethod:
            type(static_cast<QInputMethodEvent&>(*event).commitString());
            break;
        case QEvent::MouseButtonPress:
            if (static_cast<QMouseEvent&>(*event).button() != Qt::MiddleButton) return false;
            paste(QGuiApplication::clipboard()->text(QClipboard::Selection));
            break;
        default:
            return false;
    }
    event->accept();
    return true;
}

void KeyEvents::keyPressed(const QKeyEvent& event) {
    form_.settleActivation();
    settleReleaseBefore(event);
    const quint32 scanCode = event.nativeScanCode();
    // A key that went down in another window repeats here, and stays that window's.
    if (event.isAutoRepeat() && !held_.contains(scanCode)) return;
    // The window manager can keep the release of Alt to itself.
    if (!(event.modifiers() & Qt::AltModifier)) {
        const auto alt = std::find_if(held_.begin(), held_.end(),
                                      [](const auto& held) { return held.second.code == keyCode::alt; });
        if (alt != held_.end()) letGoOf(alt->first);
    }
    if (isPaste(event)) return paste(QGuiApplication::clipboard()->text());
    if (commandModifiers(event) == Qt::AltModifier && event.key() != Qt::Key_Alt) {
        if (Control* const control = accessControl(event.text())) form_.press(*control);
        return;
    }
    const auto key = keyOf(event);
    if (!key) return;
    const auto held = held_.find(scanCode);
    if (held != held_.end() && held->second != *key) letGoOf(scanCode);
    held_[scanCode] = *key;
    keys_.keyDown(*key);
    FormView::refreshAll();
}

void KeyEvents::keyReleased(const QKeyEvent& event) {
    settleRelease();
    if (event.isAutoRepeat() || !held_.contains(event.nativeScanCode())) return;
    release_ = Release{event.nativeScanCode(), event.timestamp()};
    releaseTimer_.start(longestGap);
}

void KeyEvents::settleRelease() {
    releaseTimer_.stop();
    const auto release = std::exchange(release_, std::nullopt);
    if (!release || !held_.contains(release->scanCode)) return;
    letGoOf(release->scanCode);
    FormView::refreshAll();
}

// A repeating key comes as a release and a press of the same moment. On a busy machine the toolkit may not
// see the press yet when it tells of the release, and so does not call it a repetition.
void KeyEvents::settleReleaseBefore(const QKeyEvent& press) {
    const bool repeats =
        release_ && release_->scanCode == press.nativeScanCode() && release_->timestamp == press.timestamp();
    if (!repeats) return settleRelease();
    releaseTimer_.stop();
    release_.reset();
}

void KeyEvents::letGoOf(quint32 scanCode) {
    const Key key = held_.extract(scanCode).mapped();
    keys_.keyUp(key);
}

void KeyEvents::paste(const QString& text) {
    if (!form_.window().onPaste) return type(text);
    const std::u16string pasted = text.toStdU16String();
    type(QString::fromStdU16String(form_.window().onPaste(pasted)));
}

void KeyEvents::type(const QString& text) {
    form_.settleActivation();
    for (const QChar character : text) {
        if (const auto key = isLineEnd(character) ? keyOfCharacter(13) : typedKey(character))
            keys_.stroke(*key);
    }
    FormView::refreshAll();
}

// The topmost control that is in use and has the letter behind the "&" of its caption.
Control* KeyEvents::accessControl(const QString& typed) const {
    if (typed.size() != 1) return nullptr;
    const QChar letter = typed.front().toLower();
    const auto answers = [&](const Control* control) {
        const bool pressable = control->kind == ControlKind::button || control->kind == ControlKind::checkBox;
        const std::size_t mark = control->caption.find(u'&');
        return pressable && control->shown() && control->enabled && mark + 1 < control->caption.size() &&
               QChar(control->caption[mark + 1]).toLower() == letter;
    };
    const auto& controls = form_.window().controls();
    const auto found = std::find_if(controls.rbegin(), controls.rend(), answers);
    return found == controls.rend() ? nullptr : *found;
}

}  // namespace zifferon
