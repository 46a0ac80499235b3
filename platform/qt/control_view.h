// The widget of one control: it follows the control's properties and hands on what the mouse does.
#pragma once

#include <QObject>
#include <QWidget>
#include <memory>
#include <optional>

#include "platform/control.h"

namespace zifferon {

class FormView;

// Twips to logical pixels: 15 to the pixel at every scale.
constexpr int twipsPerPixel = 15;
QRect pixels(const Place& place);
QFont fontOf(const Font& font);
QColor colourOf(Colour colour);
Qt::Alignment qtAlignment(Alignment alignment);

class ControlView : public QObject {
  public:
    // `widget` belongs to the form; `surface` is the part of it that the mouse touches.
    ControlView(Control& control, QWidget& widget, QWidget& surface, FormView& form);
    ControlView(Control& control, QWidget& widget, FormView& form)
        : ControlView(control, widget, widget, form) {}

    // Shows what has changed in the control since the last call, and touches nothing else. `seen`: the
    // control is shown, and nothing covers the whole window above it.
    void refresh(bool seen);

    Control& control() const { return control_; }
    QWidget& widget() const { return widget_; }

  protected:
    // Caption, text or tick, whatever the kind of control shows beside the properties that all have.
    virtual void refreshContent() {}

    // What a press at `position` selects before any handler learns of it.
    virtual void mousePressing(QPoint) {}

    // What a press at `position`, and a drag from the last press to it, mean to this kind of control.
    virtual void mousePressed(QPoint) {}
    virtual void mouseDragged(QPoint) {}

    FormView& form() const { return form_; }

  private:
    bool eventFilter(QObject* surface, QEvent* event) override;
    void refreshPlace();
    void refreshColours();
    void drop();

    Control& control_;
    QWidget& widget_;
    FormView& form_;
    bool clickPending_ = false;
    std::optional<QPoint> grip_;  // where the mouse has taken hold of it to drag it

    // What the widget shows.
    std::optional<Place> place_;
    std::optional<Font> font_;
    std::optional<Colour> foreColour_, backColour_;
    std::optional<Text> toolTip_ = Text(), accessibleName_ = Text();  // a new widget has neither
    std::optional<bool> enabled_, visible_;
};

// The view of a control, with a new widget in `form`.
std::unique_ptr<ControlView> makeControlView(Control& control, FormView& form);

// True where `shown` had another value; it then takes the wanted one.
template <typename Value>
bool differs(std::optional<Value>& shown, const Value& wanted) {
    if (shown == wanted) return false;
    shown = wanted;
    return true;
}

inline QString toQString(TextView text) { return QString::fromUtf16(text.data(), qsizetype(text.size())); }

// The file of a drawing.
inline QString drawingOf(TextView name) { return QStringLiteral(":/pictures/%1.svg").arg(toQString(name)); }

}  // namespace zifferon
