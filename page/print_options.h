// The options of printing, a panel over the foot of the page.
#pragma once

#include "page/page_controls.h"
#include "page/preview.h"
#include "platform/window.h"
#include "storage/settings.h"

namespace zifferon {

class PrintOptions {
  public:
    // All of them must outlive it.
    PrintOptions(PageControls& controls, Preview& preview, Window& window, const Settings& settings);

    void wire();

    // Shows the type setting that is stored.
    void restore();

    // Takes the panel away.
    void close();

    // 1 to 8, one of the rows of druckcomb; any other number is none of them.
    float printFontCode() const { return printFontCode_; }

  private:
    void chosen();
    void showFont();

    PageControls& c;
    Preview& preview_;
    Window& window_;
    const Settings& settings_;
    float printFontCode_ = 0;
};

}  // namespace zifferon
