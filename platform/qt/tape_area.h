// Shows a text of many lines and follows its end. It keeps only where each line starts, and paints only the
// lines that are seen, so that a tape of any length costs the same.
#pragma once

#include <QAbstractScrollArea>
#include <cstddef>
#include <vector>

#include "platform/text_field.h"

namespace zifferon {

class TapeArea : public QAbstractScrollArea {
  public:
    explicit TapeArea(TextField& field, QWidget* parent = nullptr);

    // Takes over what has changed in the text since the last call.
    void follow();

    const TextField& field() const { return field_; }

    // The number of characters before a point of the viewport.
    std::size_t positionAt(QPoint point) const;

    // Where the character at `position` stands in the viewport, which may be out of sight.
    QRect rectAt(std::size_t position) const;

    // Scrolls until the line of the character is seen.
    void showPosition(std::size_t position);

  private:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

    // Where a line stands: its first `length` characters from `left` on, all narrower by `squeeze`, and the
    // rest from `behind` on.
    struct Columns {
        std::size_t length;
        double left, squeeze, behind;
    };

    void fitScrollBar();
    void paintLine(QPainter& painter, std::size_t line, int top) const;
    void paintSelection(QPainter& painter, std::size_t line, int top) const;

    TextView line(std::size_t index) const;
    std::size_t lineOf(std::size_t position) const;
    int lineHeight() const;
    int linesInView() const;
    int topOf(std::size_t line) const;
    Columns columnsOf(TextView line) const;
    double width(TextView text) const;

    const TextField& field_;
    TextFollower follower_;
    std::vector<std::size_t> starts_{0};
    std::size_t length_ = 0;
    std::size_t caret_ = 0;  // the caret and selection that were last followed
    std::size_t selection_ = 0;
};

}  // namespace zifferon
