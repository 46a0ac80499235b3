#include "platform/qt/tape_area.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "platform/line_starts.h"
#include "platform/qt/control_access.h"
#include "platform/qt/control_view.h"

namespace zifferon {

namespace {

constexpr double margin = 7;
constexpr int bottomMargin = 4;
constexpr int smallestLineHeight = 16;  // the ruled lines of the print copy stand 16 pixels apart

TextView trimmed(TextView text) { return text.substr(0, text.find_last_not_of(u' ') + 1); }

// The part of a line of the tape that ends at the column's edge: all but the mark behind it, a lone sign such
// as " +   ", and the blanks.
TextView beforeMark(TextView line) {
    const TextView text = trimmed(line);
    const std::size_t mark = text.rfind(u' ') + 1;
    const auto isSign = [](char16_t c) { return c == u'x' || !QChar(c).isLetterOrNumber(); };
    if (mark == 0 || !std::all_of(text.begin() + std::ptrdiff_t(mark), text.end(), isSign)) return text;
    return trimmed(text.substr(0, mark));
}

// The characters as a string that borrows them.
QString borrowed(TextView text) {
    return QString::fromRawData(reinterpret_cast<const QChar*>(text.data()), qsizetype(text.size()));
}

}  // namespace

TapeArea::TapeArea(TextField& field, QWidget* parent)
    : QAbstractScrollArea(parent), field_(field), follower_(field) {
    setFrameShape(QFrame::NoFrame);
    setVerticalScrollBarPolicy(field.bare ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setBackgroundRole(QPalette::Base);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, viewport(), qOverload<>(&QWidget::update));
}

void TapeArea::follow() {
    const TextFollower::Ends unchanged = follower_.takeUnchanged();
    const bool changed = unchanged.prefix != length_ || field_.text().size() != length_;
    const bool caretMoved =
        hasFocus() && (caret_ != field_.caret() || selection_ != field_.selectionLength());
    if (!changed && !caretMoved) return;
    if (changed) {
        const std::size_t before = std::exchange(length_, field_.text().size());
        followLines(starts_, field_.text(), unchanged, before);
        fitScrollBar();
        if (unchanged.prefix == before)
            announceTapeText(*this, before, TextView(field_.text()).substr(before));
    }
    caret_ = field_.caret();
    selection_ = field_.selectionLength();
    showPosition(hasFocus() ? caret_ : length_);
    viewport()->update();
}

void TapeArea::fitScrollBar() {
    verticalScrollBar()->setPageStep(linesInView());
    verticalScrollBar()->setRange(0, std::max(0, int(starts_.size()) - linesInView()));
}

void TapeArea::showPosition(std::size_t position) {
    const int line = int(lineOf(position));
    const int first = verticalScrollBar()->value();
    verticalScrollBar()->setValue(std::clamp(first, line - linesInView() + 1, line));
}

void TapeArea::resizeEvent(QResizeEvent*) {
    fitScrollBar();
    showPosition(length_);
}

void TapeArea::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange) fitScrollBar();
}

void TapeArea::focusInEvent(QFocusEvent*) {
    showPosition(field_.caret());
    viewport()->update();
}

void TapeArea::focusOutEvent(QFocusEvent*) { viewport()->update(); }

void TapeArea::paintEvent(QPaintEvent* event) {
    follow();  // a handler that waits for a box may have changed the text
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    // Whole lines only: half a figure reads as another one.
    const auto first = std::size_t(verticalScrollBar()->value());
    const std::size_t end = std::min(first + std::size_t(linesInView()), starts_.size());
    for (std::size_t i = first; i < end; ++i) {
        const int top = topOf(i);
        if (top > event->rect().bottom()) break;
        if (top + lineHeight() <= event->rect().top()) continue;
        paintLine(painter, i, top);
        if (hasFocus()) paintSelection(painter, i, top);
    }
    if (!hasFocus() || field_.bare) return;
    const QRect caret = rectAt(caret_);
    painter.fillRect(caret.x(), caret.y(), 1, caret.height(), palette().color(QPalette::Text));
}

void TapeArea::paintLine(QPainter& painter, std::size_t index, int top) const {
    const TextView text = line(index);
    if (text.empty()) return;
    const Columns columns = columnsOf(text);
    const int baseline = top + (lineHeight() - fontMetrics().height() + 1) / 2 + fontMetrics().ascent();
    painter.save();
    painter.translate(columns.left, baseline);
    painter.scale(columns.squeeze, 1);
    painter.drawText(QPointF(0, 0), borrowed(text.substr(0, columns.length)));
    painter.restore();
    painter.drawText(QPointF(columns.behind, baseline), borrowed(text.substr(columns.length)));
}

// What is selected of a line stands in exchanged colours, drawn over the line itself.
void TapeArea::paintSelection(QPainter& painter, std::size_t index, int top) const {
    const std::size_t start = std::max(starts_[index], caret_);
    const std::size_t end = std::min(starts_[index] + line(index).size(), caret_ + selection_);
    if (start >= end) return;
    const int left = rectAt(start).left();
    const QRect selected(left, top, rectAt(end - 1).right() + 1 - left, lineHeight());
    painter.save();
    painter.setClipRect(selected);
    painter.fillRect(selected, palette().color(QPalette::Highlight));
    painter.setPen(palette().color(QPalette::HighlightedText));
    paintLine(painter, index, top);
    painter.restore();
}

std::size_t TapeArea::positionAt(QPoint point) const {
    const int lines = (point.y() - topOf(0)) / lineHeight();
    const auto index = std::size_t(std::clamp(lines, 0, int(starts_.size()) - 1));
    const std::size_t end = starts_[index] + line(index).size();
    std::size_t position = starts_[index];
    while (position < end && rectAt(position).center().x() < point.x()) ++position;
    return position;
}

QRect TapeArea::rectAt(std::size_t position) const {
    const std::size_t index = lineOf(position);
    const TextView text = line(index);
    const Columns columns = columnsOf(text);
    const auto edgeOf = [&](std::size_t column) {
        if (column < columns.length) return columns.left + columns.squeeze * width(text.substr(0, column));
        return columns.behind + width(text.substr(columns.length, column - columns.length));
    };
    const std::size_t column = std::min(position - starts_[index], text.size());
    const int left = qRound(edgeOf(column));
    const int right = qRound(edgeOf(std::min(column + 1, text.size())));
    return {left, topOf(index), std::max(0, right - left), lineHeight()};
}

TextView TapeArea::line(std::size_t index) const {
    const bool last = index + 1 == starts_.size();
    TextView text = TextView(field_.text()).substr(starts_[index]);
    if (last) return text;
    text = text.substr(0, starts_[index + 1] - starts_[index] - 1);
    if (text.ends_with(u'\r')) text.remove_suffix(1);
    return text;
}

std::size_t TapeArea::lineOf(std::size_t position) const {
    return std::size_t(std::upper_bound(starts_.begin(), starts_.end(), position) - starts_.begin()) - 1;
}

int TapeArea::lineHeight() const { return std::max(smallestLineHeight, fontMetrics().height() + 1); }

int TapeArea::linesInView() const {
    return std::max(1, (viewport()->height() - bottomMargin) / lineHeight());
}

// A tape comes out of the machine below it: its last line stands at the bottom. Any other text begins at the
// top.
int TapeArea::topOf(std::size_t line) const {
    const int first = verticalScrollBar()->value();
    if (field_.alignment != Alignment::right) return (int(line) - first) * lineHeight();
    const int end = std::min(first + linesInView(), int(starts_.size()));
    return viewport()->height() - bottomMargin - (end - int(line)) * lineHeight();
}

// On a tape the figures end at one edge, and the marks behind them stand around one line to the right of it,
// however wide each is. A line that is too long is squeezed: a number must never be seen without some of its
// digits.
TapeArea::Columns TapeArea::columnsOf(TextView text) const {
    const bool tape = field_.alignment == Alignment::right;
    const TextView front = tape ? beforeMark(text) : text;
    const double length = width(front);
    const double end = viewport()->width() - margin - (tape ? width(u"      ") : 0);
    const double squeeze = length > end - margin ? (end - margin) / length : 1;
    const double left = tape ? end - squeeze * length : margin;
    Columns columns{front.size(), left, squeeze, left + squeeze * length};
    if (!tape || front.empty() || !QChar(front.back()).isDigit()) return columns;
    const TextView behind = text.substr(front.size());
    const TextView mark = trimmed(behind);
    const TextView sign = mark.substr(std::min(mark.find_first_not_of(u' '), mark.size()));
    const double middle = end + width(u" ") + width(u"+") / 2;
    if (!sign.empty())
        columns.behind = middle - width(sign) / 2 - width(mark.substr(0, mark.size() - sign.size()));
    return columns;
}

double TapeArea::width(TextView text) const {
    return QFontMetricsF(fontMetrics()).horizontalAdvance(borrowed(text));
}

}  // namespace zifferon
