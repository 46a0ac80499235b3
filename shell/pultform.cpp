#include "shell/pultform.h"

#include <string>

namespace zifferon {

Pultform::Pultform() {
    name = u"Pultform";
    caption = programTitle;
    place = {0, 0, 8205, 8085};
    CalculatorState& s = state;
    add(Picture1, u"Picture1");
    add(s.anzeige, u"anzeige");
    add(Frame1, u"Frame1");
    add(Frame2, u"Frame2");
    add(Frame3, u"Frame3");
    add(Frame4, u"Frame4");
    constexpr TextView memoNames[] = {u"memo1", u"memo2", u"memo3", u"memo4", u"memo5"};
    constexpr TextView labelNames[] = {u"Label3", u"Label4", u"Label5", u"Label6", u"Label7"};
    for (std::size_t i = 0; i < s.memo.size(); ++i) {
        add(memoLabels[i], labelNames[i]);
        add(s.memo[i], memoNames[i]);
    }
    add(s.zwischen, u"zwischen");
    add(s.eingabe, u"eingabe");
    add(s.txtop, u"txtop");
    add(s.checkrnd, u"checkrnd");
    add(s.rndleft, u"rndleft");
    add(s.rndright, u"rndright");
    add(s.spezrnd, u"spezrnd");
    add(nixspez, u"nixspez");
    add(Command3, u"Command3");
    add(Hilfe, u"Hilfe");
    add(cmdexit, u"cmdexit");
    add(s.zurück, u"zurück");
    add(s.clipcheck, u"clipcheck");
    add(s.Checksound, u"Checksound");
    add(s.Checkob, u"Checkob");
    add(page.edit, u"edit");
    add(s.Texterror, u"Texterror");
    add(page.blende, u"blende");
    add(page.blendevorschau, u"blendevorschau");
    add(page.insertmode, u"insertmode");
    add(page.Check33, u"Check33");
    add(s.superdruck, u"superdruck");
    add(page.Frame7, u"Frame7");
    add(page.leave, u"leave");
    add(Frame5, u"Frame5");
    add(laden, u"laden");
    add(killfile, u"killfile");
    add(Frame6, u"Frame6");
    add(Speichern, u"Speichern");
    add(editordruck, u"editordruck");
    add(optbtn, u"optbtn");
    add(Frame8, u"Frame8");
    add(Label1, u"Label1");
    add(Label2, u"Label2");
    add(standardprint, u"standardprint");
    add(cmdkopf, u"cmdkopf");
    add(back, u"back");
    for (std::size_t i = 0; i < stripes.raster.size(); ++i) {
        add(stripes.raster[i], fromUtf8("raster" + std::to_string(i)));
    }
    add(Timer2, u"Timer2");
    add(minitimer, u"minitimer");
    add(stripes.timerraster, u"timerraster");
    add(s.errortimer, u"errortimer");
    add(s.messtimer, u"messtimer");
    s.spezrnd.flat = nixspez.flat = true;
    layOutPultform(*this);
    s.eingabeForeColor = s.eingabe.foreColour;
}

}  // namespace zifferon
