#include "print/letterhead_desk.h"

#include <initializer_list>

namespace zifferon {

void LetterheadDesk::wire() {
    k.dakill.onClick = [this] { clear(); };
    k.muster.onClick = [this] { fillSample(); };
    k.logo.onMouseDown = [this] { tellOfLogo(); };
    k.logo.doWhenConfirmed([this] { tellOfLogo(); });
    k.logo.onClick = [this] { k.logo.setTicked(false); };
    for (const Kopf::Look& look : k.looks) {
        look.font.onLostFocus = [&font = look.font] {
            if (font.empty()) font.setText(u"Arial");
        };
    }
}

void LetterheadDesk::fillFonts(const std::vector<Text>& names) {
    for (const Kopf::Look& look : k.looks) look.font.rows = names;
}

void LetterheadDesk::remind() const {
    if (k.checkstamm.ticked()) return;
    messages_.tell(
        {u"Bitte vergessen Sie nicht, die Checkbox BRIEFKOPF DRUCKEN   \r\n"
         u"anzuwählen, sofern Sie den Briefkopf ausdrucken möchten.",
         u"Don´t forget to activate the checkbox PRINT LETTERHEAD!    "});
}

void LetterheadDesk::setTicks(bool on, std::initializer_list<CheckBox*> ticks) {
    for (CheckBox* tick : ticks) tick->setTicked(on);
}

void LetterheadDesk::clear() {
    setTicks(false, {&k.logo, &k.Check1, &k.Check2, &k.Check3, &k.Check4, &k.Check7, &k.Check5, &k.Check6,
                     &k.bold1, &k.bold2, &k.bold3, &k.kur1, &k.kur2, &k.kur3, &k.checkstamm});
    for (const Kopf::Line& line : k.lines) {
        line.text.setText(u"");
        line.size.setText(u"12");
    }
    k.nachtext.setText(u"");
    for (const Kopf::Look& look : k.looks) look.font.setText(u"Arial");
    k.Combo6.setText(u"8");
}

void LetterheadDesk::fillSample() {
    setTicks(false, {&k.logo, &k.Check1, &k.Check2, &k.Check3, &k.Check4, &k.Check7, &k.bold3, &k.kur1,
                     &k.kur2, &k.kur3});
    setTicks(true, {&k.Check5, &k.Check6, &k.bold1, &k.bold2});
    k.Combo1.setText(u"30");
    for (ComboBox* size : {&k.Combo2, &k.Combo3, &k.Combo4}) size->setText(u"10");
    k.Combo6.setText(u"8");
    k.Combo7.setText(u"12");
    k.Combo5.setText(u"Times New Roman");
    k.combfoart2.setText(u"Arial");
    k.combfoart3.setText(u"Arial");
    const auto say = [this](TextField& field, Words words) { field.setText(words.in(language_)); };
    say(k.zeile1, {u" Nachname Vorname", u" Surname Forename"});
    say(k.zeile2, {u"    Berufsbezeichnung", u"    Job Title"});
    say(k.zeile3, {u"    Strasse 1, 1234 Stadt, Land", u"    Street 1, 1234 City, Country"});
    say(k.zeile4, {u"    E-Mail: name@example.com", u"    email: name@example.com"});
    k.zeile5.setText(u"");
    say(k.nachtext,
        {u"     Bankverbindung: Kto.Nr. 12345 678 901, BLZ: 12345 (Musterbank, Stadt)",
         u"     Correspondent Bank: IBAN: XX001234567890123456, BIC/SWIFT: BANKXXAA (Sample Bank, City)"});
    k.checkstamm.setTicked(true);
}

// A logo of one's own is made to order; the tick never stands.
void LetterheadDesk::tellOfLogo() {
    k.logo.setTicked(false);
    const Text address = u"support@zifferon-pro.example";
    const Text german =
        u"Bitte kontaktieren Sie uns unter " + address +
        u", wenn Sie ein \r\nindividuelles Firmenlogo in Zifferon PRO implementieren möchten.";
    const Text english =
        u"Please contact us at " + address + u", if you want to implement \r\nan individual company logo.  ";
    messages_.tell({german, english});
    k.setFocus(k.kopfok);
}

}  // namespace zifferon
