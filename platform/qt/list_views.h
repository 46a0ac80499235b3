// The views of lists and combo boxes.
#pragma once

#include "platform/combo_box.h"
#include "platform/list_box.h"
#include "platform/qt/control_view.h"

namespace zifferon {

std::unique_ptr<ControlView> makeListView(ListBox& list, FormView& form);
std::unique_ptr<ControlView> makeComboView(ComboBox& combo, FormView& form);

}  // namespace zifferon
