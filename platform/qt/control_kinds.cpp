// One view for each kind of control, but for the text fields.
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSvgRenderer>

#include "platform/qt/control_view.h"
#include "platform/qt/form_view.h"
#include "platform/qt/text_view.h"

namespace zifferon {

namespace {

class LabelView : public ControlView {
  public:
    LabelView(Control& control, FormView& form) : ControlView(control, *new QLabel(&form), form) {
        label().setTextFormat(Qt::PlainText);
    }

  private:
    QLabel& label() const { return static_cast<QLabel&>(widget()); }

    void refreshContent() override {
        if (differs(caption_, control().caption)) label().setText(toQString(control().caption));
        if (differs(alignment_, control().alignment)) label().setAlignment(qtAlignment(control().alignment));
    }

    std::optional<Text> caption_;
    std::optional<Alignment> alignment_;
};

// Push buttons and check boxes. The keyboard never goes to them: their access keys take the key road.
class ButtonView : public ControlView {
  public:
    ButtonView(Control& control, QAbstractButton& button, FormView& form)
        : ControlView(control, button, form), button_(button) {
        button_.setFocusPolicy(Qt::NoFocus);
        connect(&button_, &QAbstractButton::clicked, this, [this] { this->form().press(this->control()); });
    }

  protected:
    void refreshContent() override {
        if (!differs(caption_, control().caption)) return;
        button_.setText(toQString(control().caption));
        button_.setShortcut({});
    }

  private:
    QAbstractButton& button_;
    std::optional<Text> caption_;
};

class CheckBoxView : public ButtonView {
  public:
    CheckBoxView(Control& control, FormView& form)
        : ButtonView(control, *new QCheckBox(&form), form), checkBox_(static_cast<CheckBox&>(control)) {}

  private:
    void refreshContent() override {
        ButtonView::refreshContent();
        static_cast<QCheckBox&>(widget()).setChecked(checkBox_.ticked());
    }

    CheckBox& checkBox_;
};

// A panel with a line around it, which its caption interrupts.
class Panel : public QWidget {
  public:
    using QWidget::QWidget;

    void setCaption(const QString& caption) {
        caption_ = caption;
        update();
    }

  private:
    void paintEvent(QPaintEvent*) override {
        constexpr int captionLeft = 9, captionGap = 4;
        QPainter painter(this);
        const QRect text = painter.fontMetrics().boundingRect(caption_);
        const int lineHeight = painter.fontMetrics().height();
        const int top = lineHeight / 2;
        const QRectF line = QRectF(rect()).adjusted(0.5, top + 0.5, -0.5, -0.5);
        const QColor ground = palette().color(QPalette::Window);
        const auto outline = [&](const QColor& colour, const QRectF& where) {
            painter.setPen(colour);
            painter.drawRoundedRect(where, 3, 3);
        };
        painter.setRenderHint(QPainter::Antialiasing);
        outline(ground.lighter(118), line.translated(0, 1).adjusted(0, 0, 0, -1));
        outline(ground.darker(135), line.adjusted(0, 0, 0, -1));
        if (caption_.isEmpty()) return;
        const QRect gap(captionLeft - captionGap, 0, text.width() + 2 * captionGap, lineHeight);
        painter.fillRect(gap, ground);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(gap, Qt::AlignCenter, caption_);
    }

    QString caption_;
};

class FrameView : public ControlView {
  public:
    FrameView(Control& control, FormView& form) : ControlView(control, *new Panel(&form), form) {}

  private:
    void refreshContent() override {
        if (!differs(caption_, control().caption)) return;
        static_cast<Panel&>(widget()).setCaption(toQString(control().caption));
        widget().setAccessibleName(toQString(control().caption));
    }

    std::optional<Text> caption_;
};

// A drawing, sharp at every scale. Without one the picture is a mere place, and what lies below it is seen.
class Picture : public QWidget {
  public:
    using QWidget::QWidget;

    void setDrawing(TextView name) {
        setAutoFillBackground(!name.empty());
        if (!name.empty()) drawing_.load(QStringLiteral(":/pictures/%1.svg").arg(toQString(name)));
        update();
    }

  private:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        if (drawing_.isValid()) drawing_.render(&painter);
    }

    QSvgRenderer drawing_;
};

class PictureView : public ControlView {
  public:
    PictureView(Control& control, FormView& form) : ControlView(control, *new Picture(&form), form) {}

  private:
    void refreshContent() override {
        if (!differs(picture_, control().picture)) return;
        static_cast<Picture&>(widget()).setDrawing(control().picture);
    }

    std::optional<Text> picture_;
};

}  // namespace

std::unique_ptr<ControlView> makeControlView(Control& control, FormView& form) {
    switch (control.kind) {
        case ControlKind::textField:
            return makeTextView(static_cast<TextField&>(control), form);
        case ControlKind::label:
            return std::make_unique<LabelView>(control, form);
        case ControlKind::button:
            return std::make_unique<ButtonView>(control, *new QPushButton(&form), form);
        case ControlKind::checkBox:
            return std::make_unique<CheckBoxView>(control, form);
        case ControlKind::frame:
            return std::make_unique<FrameView>(control, form);
        case ControlKind::picture:
            return std::make_unique<PictureView>(control, form);
    }
    return nullptr;
}

}  // namespace zifferon
