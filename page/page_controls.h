// The controls of the Print/Edit page beside the print copy and its stripes.
#pragma once

#include "page/stripes.h"
#include "platform/combo_box.h"
#include "platform/control.h"
#include "platform/list_box.h"
#include "platform/text_field.h"

namespace zifferon {

struct PageControls {
    Control edit{ControlKind::button};             // on the desk: opens the page
    Control blende{ControlKind::label};            // covers the desk
    Control blendevorschau{ControlKind::picture};  // the head of the page
    Control vorschaulabel{ControlKind::label};
    CheckBox insertmode;  // ticked: the next key overwrites; lies hidden below Check33
    CheckBox Check33;     // ticked: the user wants to overwrite
    Stripes stripes;
    Timer Timer3;  // once: the stored printer

    // Over the print copy: name, text and date of a stored calculation.
    TextField txtvorschaulabel{Alignment::centre}, txtvorschau, txtvorschau2;

    Control Frame7{ControlKind::picture};  // the foot of the page
    Control leave{ControlKind::button};

    Control Frame5{ControlKind::frame};
    ListBox Files;
    Control laden{ControlKind::button}, killfile{ControlKind::button};

    Control Frame6{ControlKind::frame};
    TextField savefiles;
    Control Speichern{ControlKind::button};

    Control editordruck{ControlKind::button}, optbtn{ControlKind::button};

    // The options of printing, over the foot.
    Control Frame8{ControlKind::frame}, Label1{ControlKind::label}, Label2{ControlKind::label};
    ComboBox druckcomb, allprint;
    Control standardprint{ControlKind::button}, cmdkopf{ControlKind::button}, back{ControlKind::button};

    Control focuspic{ControlKind::picture};   // out of sight: takes the focus from what may not be typed
    Control druckblende{ControlKind::label};  // over all, while F11 prints

    // Whether always on top was ticked when the page or the help window took it away.
    bool savedAlwaysOnTop = false;
};

}  // namespace zifferon
