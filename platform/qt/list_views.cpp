#include "platform/qt/list_views.h"

#include <QAbstractListModel>
#include <QComboBox>
#include <QListView>
#include <QPainter>
#include <algorithm>

#include "platform/qt/form_view.h"

namespace zifferon {

namespace {

// The rows of a list, as they stand in it.
class Rows : public QAbstractListModel {
  public:
    explicit Rows(const ListBox& list, QObject* parent) : QAbstractListModel(parent), list_(list) {}

    void follow() {
        beginResetModel();
        endResetModel();
    }

  private:
    int rowCount(const QModelIndex&) const override { return int(list_.rows().size()); }
    QVariant data(const QModelIndex& index, int role) const override {
        return role == Qt::DisplayRole ? toQString(list_.rows()[std::size_t(index.row())]) : QVariant();
    }

    const ListBox& list_;
};

// With a line around it while it has the keyboard.
class List : public QListView {
  public:
    using QListView::QListView;

  private:
    void paintEvent(QPaintEvent* event) override {
        QListView::paintEvent(event);
        if (!hasFocus()) return;
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::Text));
        painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
    }
};

class ListView : public ControlView {
  public:
    ListView(ListBox& list, FormView& form) : ListView(list, *new List(&form), form) {}

  private:
    ListView(ListBox& list, QListView& view, FormView& form)
        : ControlView(list, view, *view.viewport(), form),
          list_(list),
          view_(view),
          rows_(new Rows(list_, &view)) {
        view_.setModel(rows_);
        view_.setUniformItemSizes(true);
        view_.setFocusPolicy(Qt::TabFocus);
        view_.setEditTriggers(QAbstractItemView::NoEditTriggers);
        view_.setTextElideMode(Qt::ElideMiddle);
        view_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }

    // Before the handlers learn of the press; beside the rows it selects none.
    void mousePressing(QPoint position) override {
        list_.select(view_.indexAt(position).row() + 1);
        view_.setCurrentIndex(view_.indexAt(position));
    }

    void refreshContent() override {
        const bool renewed = differs(revision_, list_.revision());
        if (renewed) rows_->follow();
        if (!differs(row_, list_.row()) && !renewed) return;
        const QModelIndex index = rows_->index(list_.row() - 1);
        view_.setCurrentIndex(index);
        if (!index.isValid()) view_.clearSelection();
        list_.pageRows = std::max(1, view_.viewport()->height() / std::max(1, view_.sizeHintForRow(0)) - 1);
    }

    ListBox& list_;
    QListView& view_;
    Rows* rows_;
    std::optional<unsigned long> revision_;
    std::optional<int> row_;
};

// A combo box whose rows drop down; what is typed into it goes to the field as for any other.
class ComboView : public ControlView {
  public:
    ComboView(ComboBox& combo, FormView& form) : ComboView(combo, *new QComboBox(&form), form) {}

  private:
    ComboView(ComboBox& combo, QComboBox& box, FormView& form)
        : ControlView(combo, box, form), combo_(combo), box_(box) {
        box_.setFocusPolicy(Qt::TabFocus);
        connect(&box_, &QComboBox::activated, this,
                [this](int row) { this->form().run([&] { combo_.choose(row + 1); }); });
    }

    void refreshContent() override {
        if (differs(rows_, combo_.rows)) {
            box_.clear();
            for (const Text& row : combo_.rows) box_.addItem(toQString(row));
        }
        if (box_.currentIndex() != combo_.row() - 1) box_.setCurrentIndex(combo_.row() - 1);
        box_.setPlaceholderText(toQString(combo_.text()));  // seen where it is none of the rows
    }

    ComboBox& combo_;
    QComboBox& box_;
    std::optional<std::vector<Text>> rows_;
};

}  // namespace

std::unique_ptr<ControlView> makeListView(ListBox& list, FormView& form) {
    return std::make_unique<ListView>(list, form);
}

std::unique_ptr<ControlView> makeComboView(ComboBox& combo, FormView& form) {
    return std::make_unique<ComboView>(combo, form);
}

}  // namespace zifferon
