// One view for each kind of control, but for text fields and lists.
#include <QCheckBox>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QResource>
#include <QSvgRenderer>
#include <QToolButton>

#include "platform/qt/control_view.h"
#include "platform/qt/form_view.h"
#include "platform/qt/list_views.h"
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

// Push buttons and check boxes. No click gives them the keyboard, and their access keys take the key road.
class ButtonView : public ControlView {
  public:
    ButtonView(Control& control, QAbstractButton& button, FormView& form)
        : ControlView(control, button, form), button_(button) {
        button_.setFocusPolicy(form.window().isTabStop(control) ? Qt::TabFocus : Qt::NoFocus);
        button_.setAutoFillBackground(!control.flat);
        connect(&button_, &QAbstractButton::clicked, this, [this] { this->form().press(this->control()); });
    }

  protected:
    void refreshContent() override {
        if (differs(picture_, control().picture) && !picture_->empty()) {
            button_.setIcon(QIcon(drawingOf(*picture_)));
        }
        if (!differs(caption_, control().caption)) return;
        button_.setText(control().flat ? QString() : toQString(control().caption));
        button_.setShortcut({});
    }

  private:
    QAbstractButton& button_;
    std::optional<Text> picture_, caption_;
};

QPushButton* newPushButton(const Control& control, FormView& form) {
    auto* const button = new QPushButton(&form);
    button->setFlat(control.flat);
    return button;
}

QToolButton* newMenu(FormView& form) {
    auto* const menu = new QToolButton(&form);
    menu->setAutoRaise(true);
    return menu;
}

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
        const QRect line = rect().adjusted(0, lineHeight / 2, 0, -2);
        const QColor ground = palette().color(QPalette::Window);
        paintOutline(painter, line.translated(0, 1), ground.lighter(118));
        paintOutline(painter, line, ground.darker(135));
        if (caption_.isEmpty()) return;
        const QRect gap(captionLeft - captionGap, 0, text.width() + 2 * captionGap, lineHeight);
        painter.fillRect(gap, ground);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(gap, Qt::AlignCenter, caption_);
    }

    // Plain lines that leave the corners out: curves would be a twentieth of the whole start.
    static void paintOutline(QPainter& painter, const QRect& where, const QColor& colour) {
        constexpr int corner = 2;
        const QRect inner = where.adjusted(corner, corner, -corner, -corner);
        painter.fillRect(inner.left(), where.top(), inner.width(), 1, colour);
        painter.fillRect(inner.left(), where.bottom(), inner.width(), 1, colour);
        painter.fillRect(where.left(), inner.top(), 1, inner.height(), colour);
        painter.fillRect(where.right(), inner.top(), 1, inner.height(), colour);
        const QPoint corners[] = {where.topLeft() + QPoint(1, 1), where.topRight() + QPoint(-1, 1),
                                  where.bottomLeft() + QPoint(1, -1), where.bottomRight() + QPoint(-1, -1)};
        for (const QPoint point : corners) painter.fillRect(QRect(point, QSize(1, 1)), colour);
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

// A drawing, sharp at every scale, and read when it is first seen; what the start shows is drawn by the build
// for the usual scale. Without one the picture is a mere place, and what lies below it is seen. With the
// keyboard it has a line around it.
class Picture : public QWidget {
  public:
    using QWidget::QWidget;

    void setDrawing(TextView name) {
        setAutoFillBackground(!name.empty());
        fileName_ = name.empty() ? QString() : drawingOf(name);
        pixels_.setFileName(QStringLiteral(":/pixels/") + toQString(name));
        drawing_.reset();
        update();
    }

  private:
    void paintEvent(QPaintEvent*) override {
        if (!fileName_.isEmpty()) paintDrawing();
        if (hasFocus()) paintFocus();
    }

    void paintDrawing() {
        QPainter painter(this);
        if (devicePixelRatioF() == 1 && pixels_.size() == qint64{4} * width() * height()) {
            constexpr auto format = QImage::Format_ARGB32_Premultiplied;
            return painter.drawImage(0, 0, QImage(pixels_.data(), width(), height(), format));
        }
        if (!drawing_) drawing_ = std::make_unique<QSvgRenderer>(fileName_);
        drawing_->render(&painter);
    }

    void paintFocus() {
        QPainter painter(this);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        painter.setPen(Qt::white);
        painter.drawRect(rect().adjusted(1, 1, -2, -2));
    }

    QString fileName_;
    QResource pixels_;
    std::unique_ptr<QSvgRenderer> drawing_;
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
            return std::make_unique<ButtonView>(control, *newPushButton(control, form), form);
        case ControlKind::checkBox:
            return std::make_unique<CheckBoxView>(control, form);
        case ControlKind::frame:
            return std::make_unique<FrameView>(control, form);
        case ControlKind::picture:
            return std::make_unique<PictureView>(control, form);
        case ControlKind::list:
            return makeListView(static_cast<ListBox&>(control), form);
        case ControlKind::menu:
            return std::make_unique<ButtonView>(control, *newMenu(form), form);
        case ControlKind::comboBox:
            return makeComboView(static_cast<ComboBox&>(control), form);
    }
    return nullptr;
}

}  // namespace zifferon
