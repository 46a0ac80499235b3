#include "platform/qt/control_access.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QTimer>
#include <algorithm>

#include "platform/combo_box.h"
#include "platform/qt/control_view.h"
#include "platform/qt/form_view.h"

namespace zifferon {

namespace {

// A control with a text, of which caret and selection are the calculator's.
class FieldAccess : public QAccessibleWidget, public QAccessibleTextInterface {
  protected:
    FieldAccess(QWidget& widget, QAccessible::Role role, const TextField& field)
        : QAccessibleWidget(&widget, role), field_(field) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
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
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return 0; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }
    void setCursorPosition(int) override {}
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}

  private:
    const TextField& field_;
};

class TapeAccess : public FieldAccess {
  public:
    explicit TapeAccess(TapeArea& area)
        : FieldAccess(area, QAccessible::EditableText, area.field()), area_(area) {}

  private:
    QAccessible::State state() const override {
        QAccessible::State state = FieldAccess::state();
        state.multiLine = true;
        return state;
    }

    QRect characterRect(int offset) const override {
        const QRect place = area_.rectAt(std::size_t(offset));
        return {area_.viewport()->mapToGlobal(place.topLeft()), place.size()};
    }
    int offsetAtPoint(const QPoint& point) const override {
        return int(area_.positionAt(area_.viewport()->mapFromGlobal(point)));
    }
    void scrollToSubstring(int start, int) override { area_.showPosition(std::size_t(start)); }

    TapeArea& area_;
};

// The toolkit would tell the text of a combo box as its name.
class ComboAccess : public FieldAccess {
  public:
    ComboAccess(QComboBox& box, const ComboBox& combo)
        : FieldAccess(box, QAccessible::ComboBox, combo), box_(box) {}

  private:
    QStringList actionNames() const override {
        return QStringList{pressAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& name) override {
        if (name != pressAction()) return QAccessibleWidget::doAction(name);
        QTimer::singleShot(0, &box_, &QComboBox::showPopup);
    }

    QComboBox& box_;
};

class PictureAccess : public QAccessibleWidget {
  public:
    PictureAccess(QWidget& picture, Control& control, FormView& form)
        : QAccessibleWidget(&picture, QAccessible::Graphic), control_(control), form_(form) {}

  private:
    QStringList actionNames() const override {
        const QStringList names = QAccessibleWidget::actionNames();
        return control_.onClick ? QStringList{pressAction()} + names : names;
    }
    void doAction(const QString& name) override {
        if (name != pressAction()) return QAccessibleWidget::doAction(name);
        QTimer::singleShot(0, &form_, [&form = form_, &control = control_] { form.press(control); });
    }

    Control& control_;
    FormView& form_;
};

QAccessibleInterface* accessOf(const QString&, QObject* object) {
    auto* const widget = qobject_cast<QWidget*>(object);
    auto* const form = widget != nullptr ? dynamic_cast<FormView*>(widget->window()) : nullptr;
    if (form == nullptr) return nullptr;
    if (form == widget) return new QAccessibleWidget(widget, QAccessible::Window);
    Control* const control = form->controlOf(*widget);
    if (control == nullptr) return nullptr;
    switch (control->kind) {
        case ControlKind::frame:
            return new QAccessibleWidget(widget, QAccessible::Grouping);
        case ControlKind::picture:
            return new PictureAccess(*widget, *control, *form);
        case ControlKind::comboBox:
            return new ComboAccess(static_cast<QComboBox&>(*widget), static_cast<ComboBox&>(*control));
        case ControlKind::textField: {
            auto* const area = dynamic_cast<TapeArea*>(widget);
            return area != nullptr ? new TapeAccess(*area) : nullptr;
        }
        default:
            return nullptr;
    }
}

}  // namespace

void offerControlsToScreenReaders() { QAccessible::installFactory(accessOf); }

void announceTapeText(TapeArea& area, std::size_t position, TextView text) {
    if (!QAccessible::isActive() || text.empty()) return;
    QAccessibleTextInsertEvent event(&area, int(position), toQString(text));
    QAccessible::updateAccessibility(&event);
}

}  // namespace zifferon
