// The views of text fields: one line, or a tape of any length.
#pragma once

#include "platform/qt/control_view.h"
#include "platform/text_field.h"

namespace zifferon {

std::unique_ptr<ControlView> makeTextView(TextField& field, FormView& form);

}  // namespace zifferon
