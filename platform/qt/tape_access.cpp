#include "platform/qt/tape_access.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <algorithm>

#include "platform/qt/control_view.h"

namespace zifferon {

namespace {

class TapeAccess : public QAccessibleWidget, public QAccessibleTextInterface {
  public:
    explicit TapeAccess(TapeArea& area)
        : QAccessibleWidget(&area, QAccessible::EditableText), area_(area), field_(area.field()) {}

  private:
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.multiLine = true;
        state.readOnly = field_.locked;
        return state;
    }

    using QAccessibleWidget::text;

    QString text(int start, int end) const override {
        const auto from = std::size_t(std::max(start, 0));
        return toQString(
            TextView(field_.text()).substr(std::min(from, field_.text().size()), std::size_t(end) - from));
    }

    int characterCount() const override { return int(field_.text().size()); }
    int cursorPosition() const override { return int(field_.caret()); }
    int selectionCount() const override { return field_.selectionLength() > 0 ? 1 : 0; }
    void selection(int, int* start, int* end) const override {
        *start = int(field_.selectionStart());
        *end = *start + int(field_.selectionLength());
    }
    QRect characterRect(int offset) const override {
        const QRect place = area_.rectAt(std::size_t(offset));
        return {area_.viewport()->mapToGlobal(place.topLeft()), place.size()};
    }
    int offsetAtPoint(const QPoint& point) const override {
        return int(area_.positionAt(area_.viewport()->mapFromGlobal(point)));
    }
    void scrollToSubstring(int start, int) override { area_.showPosition(std::size_t(start)); }
    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

    // Caret and selection are the calculator's.
    void setCursorPosition(int) override {}
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}

    TapeArea& area_;
    const TextField& field_;
};

QAccessibleInterface* accessOf(const QString&, QObject* object) {
    auto* const area = dynamic_cast<TapeArea*>(object);
    return area != nullptr ? new TapeAccess(*area) : nullptr;
}

}  // namespace

void offerTapesToScreenReaders() { QAccessible::installFactory(accessOf); }

void announceTapeText(TapeArea& area, std::size_t position, TextView text) {
    if (!QAccessible::isActive() || text.empty()) return;
    QAccessibleTextInsertEvent event(&area, int(position), toQString(text));
    QAccessible::updateAccessibility(&event);
}

}  // namespace zifferon
