#include "platform/qt/key_events.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QMouseEvent>
#include <QWidget>
#include <utility>

#include "platform/mouse.h"
#include "platform/qt/form_view.h"
#include "platform/tab_order.h"

namespace zifferon {

namespace {

Qt::KeyboardModifiers commandModifiers(const QKeyEvent& event) {
    return event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

bool onKeypad(const QKeyEvent& event) { return event.modifiers() & Qt::KeypadModifier; }

// The keys that edit in every program, by the letter pressed with Ctrl; 0: none of them.
int editingLetter(const QKeyEvent& event) {
    const bool shift = event.modifiers() & Qt::ShiftModifier;
    const bool control = commandModifiers(event) == Qt::ControlModifier;
    switch (event.key()) {
        case Qt::Key_Insert:
            if (onKeypad(event)) return 0;
            if (control && !shift) return Qt::Key_C;
            return shift && !commandModifiers(event) ? Qt::Key_V : 0;
        case Qt::Key_Copy:
            return Qt::Key_C;
        case Qt::Key_Cut:
            return Qt::Key_X;
        case Qt::Key_Paste:
            return Qt::Key_V;
        case Qt::Key_Undo:
            return Qt::Key_Z;
        default:
            return control && !shift ? event.key() : 0;
    }
}

bool moves(int code) { return code >= keyCode::pageUp && code <= keyCode::down; }

bool isFunctionKey(int code) { return code >= keyCode::f1 && code <= keyCode::f1 + 15; }

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
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return Key{keyCode::tab};
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

// With and without NumLock; without it the keys of the keypad have the names of those that move.
std::optional<Key> keypadKey(int key) {
    switch (key) {
        case Qt::Key_Insert:
            return keyOfCharacter(u'0');
        case Qt::Key_End:
            return keyOfCharacter(u'1');
        case Qt::Key_Down:
            return keyOfCharacter(u'2');
        case Qt::Key_PageDown:
            return keyOfCharacter(u'3');
        case Qt::Key_Left:
            return keyOfCharacter(u'4');
        case Qt::Key_Clear:
            return keyOfCharacter(u'5');
        case Qt::Key_Right:
            return keyOfCharacter(u'6');
        case Qt::Key_Home:
            return keyOfCharacter(u'7');
        case Qt::Key_Up:
            return keyOfCharacter(u'8');
        case Qt::Key_PageUp:
            return keyOfCharacter(u'9');
        case Qt::Key_Asterisk:
            return Key{keyCode::multiply, u'*'};
        case Qt::Key_Plus:
            return Key{keyCode::add, u'+'};
        case Qt::Key_Minus:
            return Key{keyCode::subtract, u'-'};
        case Qt::Key_Slash:
            return Key{keyCode::divide, u'/'};
        case Qt::Key_Comma:
        case Qt::Key_Delete:
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
    if (onKeypad(event) && !commandModifiers(event)) {
        if (const auto keypad = keypadKey(event.key())) return keypad;
    }
    const auto named = onKeypad(event) && commandModifiers(event) ? std::nullopt : namedKey(event.key());
    const bool closesWindow = event.key() == Qt::Key_F4 && commandModifiers(event) == Qt::AltModifier;
    const bool actsWithAll = named && !closesWindow && (moves(named->code) || isFunctionKey(named->code));
    if (commandModifiers(event)) return actsWithAll ? named : std::nullopt;
    if (named) return named;
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
        letGoOfAll();
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
        case QEvent::FocusIn:
            if (static_cast<QFocusEvent&>(*event).reason() == Qt::OtherFocusReason)
                form_.followFocus(*widget);
            return false;
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

void KeyEvents::letGoOfAll() {
    held_.clear();
    release_.reset();
    keys_.releaseAll();
    FormView::refreshAll();
}

void KeyEvents::keyPressed(const QKeyEvent& event) {
    keysCame_ = true;
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
    if (edits(event)) return FormView::refreshAll();
    const auto key = keyOf(event);
    if (!key && commandModifiers(event) == Qt::AltModifier) {
        if (Control* const control = accessControl(event.text())) {
            control->accessKey != 0 ? form_.run([&] { form_.window().setFocus(*control); })
                                    : form_.press(*control);
        }
    }
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

// Whether the key copies, pastes, selects, undoes or goes back to the control before; it is none of the
// calculator's then.
bool KeyEvents::edits(const QKeyEvent& event) {
    const Window& window = form_.window();
    Control* const focus = window.focus();
    const auto call = [](const std::function<void()>& command) {
        if (command) command();
        return true;
    };
    switch (editingLetter(event)) {
        case Qt::Key_A:
            if (focus != nullptr) keys_.run([&] { focus->selectAll(); });
            return true;
        case Qt::Key_C:
            return call(window.onCopy);
        case Qt::Key_V:
            paste(QGuiApplication::clipboard()->text());
            return true;
        case Qt::Key_X:
            return call(window.onCut);
        case Qt::Key_Z:
            return call(window.onUndo);
        default:
            break;
    }
    if (event.key() == Qt::Key_Backtab && !window.tabOrder.empty()) {
        keys_.run([&] { focusNext(form_.window(), true); });
        return true;
    }
    const auto key = keyOf(event);
    if (!key || key->character != 0 || focus == nullptr || !(event.modifiers() & Qt::ShiftModifier))
        return false;
    if (!focus->selectsBy(key->code)) return false;
    held_[event.nativeScanCode()] = *key;
    keys_.run([&] { focus->handleKey(key->code, true); });
    return true;
}

void KeyEvents::paste(const QString& text) {
    if (!form_.window().onPaste) return type(text);
    form_.settleActivation();
    form_.window().onPaste(text.toStdU16String());
    FormView::refreshAll();
}

void KeyEvents::type(const QString& text) {
    form_.settleActivation();
    for (const QChar character : text) {
        if (const auto key = isLineEnd(character) ? keyOfCharacter(13) : typedKey(character))
            keys_.stroke(*key);
    }
    FormView::refreshAll();
}

namespace {

// The one that the control has beside its caption, or the letter behind the "&" in it.
QChar accessKeyOf(const Control& control) {
    if (control.accessKey != 0) return control.accessKey;
    const bool pressable = control.kind == ControlKind::button || control.kind == ControlKind::menu ||
                           control.kind == ControlKind::checkBox;
    const std::size_t mark = control.caption.find(u'&');
    if (!pressable || mark + 1 >= control.caption.size()) return {};
    return QChar(control.caption[mark + 1]).toLower();
}

}  // namespace

// The topmost control that can be reached and has that access key.
Control* KeyEvents::accessControl(const QString& typed) const {
    if (typed.size() != 1) return nullptr;
    const QChar letter = typed.front().toLower();
    const auto answers = [&](const Control* control) {
        return accessKeyOf(*control) == letter && isReachable(form_.window(), *control);
    };
    const auto& controls = form_.window().controls();
    const auto found = std::find_if(controls.rbegin(), controls.rend(), answers);
    return found == controls.rend() ? nullptr : *found;
}

}  // namespace zifferon
