#include "platform/qt/tape_area.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "platform/qt/control_view.h"
#include "platform/qt/tape_access.h"

namespace zifferon {

namespace {

constexpr int margin = 7;
constexpr int bottomMargin = 4;
constexpr int smallestLineHeight = 16;  // the ruled lines of the print copy stand 16 pixels apart

// The part of a line of the tape that ends at the column's edge: all but the mark behind it, a lone sign such
// as " +   ", and the blanks.
TextView beforeMark(TextView line) {
    const auto trimmed = [](TextView text) { return text.substr(0, text.find_last_not_of(u' ') + 1); };
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
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setBackgroundRole(QPalette::Base);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, viewport(), qOverload<>(&QWidget::update));
}

void TapeArea::follow() {
    const std::size_t unchanged = follower_.takeUnchangedPrefix();
    const bool changed = unchanged != length_ || field_.text().size() != length_;
    const bool caretMoved =
        hasFocus() && (caret_ != field_.caret() || selection_ != field_.selectionLength());
    if (!changed && !caretMoved) return;
    if (changed) {
        const std::size_t before = std::exchange(length_, field_.text().size());
        findLines(std::min(unchanged, before));
        fitScrollBar();
        if (unchanged == before) announceTapeText(*this, before, TextView(field_.text()).substr(before));
    }
    caret_ = field_.caret();
    selection_ = field_.selectionLength();
    showPosition(hasFocus() ? caret_ : length_);
    viewport()->update();
}

void TapeArea::findLines(std::size_t unchanged) {
    while (starts_.back() > unchanged) starts_.pop_back();
    const TextView text = field_.text();
    for (std::size_t end = text.find(u'\n', unchanged); end != TextView::npos;
         end = text.find(u'\n', end + 1)) {
        starts_.push_back(end + 1);
    }
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
    const auto first = std::size_t(std::max(0, verticalScrollBar()->value() - 1));
    for (std::size_t i = first; i < starts_.size(); ++i) {
        const int top = topOf(i);
        if (top > event->rect().bottom()) break;
        if (top + lineHeight() <= event->rect().top()) continue;
        paintLine(painter, i, top);
        if (hasFocus()) paintSelection(painter, i, top);
    }
    if (!hasFocus()) return;
    const QRect caret = rectAt(caret_);
    painter.fillRect(caret.x(), caret.y(), 1, caret.height(), palette().color(QPalette::Text));
}

void TapeArea::paintLine(QPainter& painter, std::size_t index, int top) const {
    const TextView text = line(index);
    if (text.empty()) return;
    const int left = leftOf(text);
    const int baseline = top + (lineHeight() - fontMetrics().height() + 1) / 2 + fontMetrics().ascent();
    if (left >= 0) return painter.drawText(left, baseline, borrowed(text));
    // A line that is too long is squeezed: a number must never be seen without its first digits.
    painter.save();
    painter.translate(columnEdge(), baseline);
    painter.scale(double(columnEdge() - margin) / (columnEdge() - left), 1);
    painter.drawText(left - columnEdge(), 0, borrowed(text));
    painter.restore();
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
    const std::size_t column = std::min(position - starts_[index], text.size());
    const auto width = [&](TextView part) { return fontMetrics().horizontalAdvance(borrowed(part)); };
    const int left = leftOf(text) + width(text.substr(0, column));
    return {left, topOf(index), width(text.substr(column, 1)), lineHeight()};
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

int TapeArea::leftOf(TextView text) const {
    if (field_.alignment != Alignment::right) return margin;
    return columnEdge() - fontMetrics().horizontalAdvance(borrowed(beforeMark(text)));
}

// Six blanks stand behind a number without a mark.
int TapeArea::columnEdge() const {
    return viewport()->width() - margin - fontMetrics().horizontalAdvance(QStringLiteral("      "));
}

}  // namespace zifferon
