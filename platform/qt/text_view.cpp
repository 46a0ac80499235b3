#include "platform/qt/text_view.h"

#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <tuple>

#include "platform/qt/form_view.h"
#include "platform/qt/tape_area.h"

namespace zifferon {

namespace {

// What the mouse does is the same in every text field: a press places the caret, a drag selects from there.
class TextView : public ControlView {
  public:
    TextView(TextField& field, QWidget& widget, QWidget& surface, FormView& form)
        : ControlView(field, widget, surface, form), field_(field) {
        widget.setFocusPolicy(Qt::TabFocus);  // so that a screen reader may focus it, but no click does
        surface.setCursor(field.takesFocus ? Qt::IBeamCursor : Qt::ArrowCursor);
    }

  protected:
    TextField& field() const { return field_; }

    // The number of characters before the place.
    virtual std::size_t positionAt(QPoint position) const = 0;

  private:
    void mousePressed(QPoint position) override {
        if (!field_.takesFocus) return;
        anchor_ = positionAt(position);
        field_.setCaret(anchor_);
    }

    void mouseDragged(QPoint position) override {
        if (!field_.takesFocus) return;
        const std::size_t end = positionAt(position);
        form().run(
            [&] { field_.select(std::min(anchor_, end), std::max(anchor_, end) - std::min(anchor_, end)); });
    }

    TextField& field_;
    std::size_t anchor_ = 0;
};

// A lone sign in a centred field, such as + or =, stands in the middle of it, wherever it stands in its line.
class Line : public QLineEdit {
  public:
    using QLineEdit::QLineEdit;

  private:
    void paintEvent(QPaintEvent* event) override {
        if (!isReadOnly() || alignment() != Qt::AlignCenter || text().size() != 1) {
            return QLineEdit::paintEvent(event);
        }
        QPainterPath sign;
        sign.addText(0, 0, font(), text());
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(rect(), palette().base());
        painter.translate(QRectF(rect()).center() - sign.boundingRect().center());
        painter.fillPath(sign, palette().text());
    }
};

constexpr int lineMargin = 5;   // pixels beside the text: frame, the line edit's own, and the caret
constexpr int leastPixels = 8;  // smaller digits are hard to read

class LineView : public TextView {
  public:
    LineView(TextField& field, FormView& form) : LineView(field, *new Line(&form), form) {}

  private:
    LineView(TextField& field, QLineEdit& line, FormView& form)
        : TextView(field, line, line, form), line_(line) {
        line_.setContextMenuPolicy(Qt::NoContextMenu);
        line_.setAcceptDrops(false);
        line_.setReadOnly(!field.takesFocus);
        line_.setFrame(
            field.takesFocus);  // what only shows something does not look as if one could type there
    }

    std::size_t positionAt(QPoint position) const override {
        return std::size_t(line_.cursorPositionAt(position));
    }

    void refreshContent() override {
        const QString text = toQString(field().text());
        if (line_.text() != text) line_.setText(text);
        if (field().shrinks && differs(fitted_, std::tuple(text, line_.width(), field().font))) fitFont(text);
        if (differs(alignment_, field().alignment)) line_.setAlignment(qtAlignment(field().alignment));
        const int caret = int(field().caret());
        const int length = int(field().selectionLength());
        if (line_.cursorPosition() == caret && line_.selectionLength() == length) return;
        // A selection made backwards leaves the caret at its start.
        line_.setSelection(caret + length, -length);
    }

    // The font of the field, made smaller where the text is too long for it, and then narrower where it would
    // become too small to be read.
    void fitFont(const QString& text) {
        const auto widthIn = [&](const QFont& font) { return QFontMetrics(font).horizontalAdvance(text); };
        const int room = line_.width() - 2 * lineMargin;
        QFont font = fontOf(field().font);
        for (int width = widthIn(font); width > room && font.pixelSize() > leastPixels;
             width = widthIn(font)) {
            font.setPixelSize(std::clamp(font.pixelSize() * room / width, leastPixels, font.pixelSize() - 1));
        }
        int stretch = 100;
        for (int width = widthIn(font); width > room && stretch > 1; width = widthIn(font)) {
            stretch = std::clamp(stretch * room / width, 1, stretch - 1);
            font.setStretch(stretch);
        }
        if (line_.font() != font) line_.setFont(font);
    }

    QLineEdit& line_;
    std::optional<Alignment> alignment_;
    std::optional<std::tuple<QString, int, Font>>
        fitted_;  // text, width and font that the font was fitted to
};

class TapeView : public TextView {
  public:
    TapeView(TextField& field, FormView& form) : TapeView(field, *new TapeArea(field, &form), form) {}

  private:
    TapeView(TextField& field, TapeArea& area, FormView& form)
        : TextView(field, area, *area.viewport(), form), area_(area) {}

    std::size_t positionAt(QPoint position) const override { return area_.positionAt(position); }

    void refreshContent() override { area_.follow(); }

    TapeArea& area_;
};

}  // namespace

std::unique_ptr<ControlView> makeTextView(TextField& field, FormView& form) {
    if (field.multiLine) return std::make_unique<TapeView>(field, form);
    return std::make_unique<LineView>(field, form);
}

}  // namespace zifferon
