#include "platform/qt/own_style.h"

#include <QDialogButtonBox>
#include <QPainter>
#include <QStyleOption>

namespace zifferon {

namespace {

constexpr QRgb ground = 0xFFF0F0F0, button = 0xFFE6E6E6, white = 0xFFFFFFFF, black = 0xFF000000;
constexpr QRgb dim = 0xFF787878, selection = 0xFF000080, toolTip = 0xFFFFFFE1;
constexpr QRgb groove = 0xFFD0D0D0, handle = 0xFFF4F4F4, pressedHandle = 0xFFB8C4E0, border = 0xFF707070;

// A filled border holds at every scale; a line of one pixel may fall between two.
void fillFramed(QPainter& painter, const QRect& rect, QColor inner) {
    painter.fillRect(rect, QColor(border));
    painter.fillRect(rect.adjusted(1, 1, -1, -1), inner);
}

}  // namespace

OwnStyle::OwnStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

OwnStyle* newOwnStyle() { return new OwnStyle; }

QPalette OwnStyle::palette() {
    const QColor key(button);
    QPalette colours(QColor(black), key, key.lighter(150), key.darker(150), key.darker(130), QColor(black),
                     QColor(white), QColor(white), QColor(ground));
    colours.setColor(QPalette::Midlight, key.lighter(120));
    colours.setColor(QPalette::Shadow, QColor(border));
    colours.setColor(QPalette::AlternateBase, QColor(ground));
    colours.setColor(QPalette::Highlight, QColor(selection));
    colours.setColor(QPalette::HighlightedText, QColor(white));
    colours.setColor(QPalette::Link, QColor(selection));
    colours.setColor(QPalette::LinkVisited, QColor(selection));
    colours.setColor(QPalette::ToolTipBase, QColor(toolTip));
    colours.setColor(QPalette::ToolTipText, QColor(black));
    colours.setColor(QPalette::PlaceholderText, QColor(dim));
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
        colours.setColor(QPalette::Disabled, role, QColor(dim));
    }
    return colours;
}

// What the desktop would otherwise decide.
int OwnStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                        QStyleHintReturn* data) const {
    switch (hint) {
        case SH_DialogButtonLayout:
            return QDialogButtonBox::WinLayout;
        case SH_DialogButtonBox_ButtonsHaveIcons:
        case SH_ScrollBar_Transient:
            return 0;
        default:
            return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

// A control that has the keyboard shows it, however it came to it.
void OwnStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                           const QWidget* widget) const {
    const auto* const pressable = qstyleoption_cast<const QStyleOptionButton*>(option);
    const bool shows = element == CE_PushButton || element == CE_CheckBox;
    if (!shows || pressable == nullptr || !(pressable->state & State_HasFocus)) {
        return QProxyStyle::drawControl(element, option, painter, widget);
    }
    QStyleOptionButton focused(*pressable);
    focused.state |= State_KeyboardFocusChange;
    QProxyStyle::drawControl(element, &focused, painter, widget);
}

void OwnStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                  QPainter* painter, const QWidget* widget) const {
    if (control == CC_ScrollBar) return drawScrollBar(*option, *painter, widget);
    const auto* const combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (combo == nullptr || !(combo->state & State_HasFocus)) {
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
    QStyleOptionComboBox focused(*combo);
    focused.state |= State_KeyboardFocusChange;
    QProxyStyle::drawComplexControl(control, &focused, painter, widget);
}

// In colours of its own, whatever those of the text beside it.
void OwnStyle::drawScrollBar(const QStyleOptionComplex& option, QPainter& painter,
                             const QWidget* widget) const {
    fillFramed(painter, option.rect, QColor(groove));
    const bool upright = !(option.state & State_Horizontal);
    const auto draw = [&](SubControl part, PrimitiveElement sign) {
        const bool pressed = (option.state & State_Sunken) && (option.activeSubControls & part);
        const QRect rect = proxy()->subControlRect(CC_ScrollBar, &option, part, widget);
        fillFramed(painter, rect, QColor(pressed ? pressedHandle : handle));
        if (sign == PE_Widget) return;
        QStyleOption arrow(option);
        arrow.rect = rect.adjusted(3, 3, -3, -3);
        arrow.palette = palette();
        proxy()->drawPrimitive(sign, &arrow, &painter, widget);
    };
    draw(SC_ScrollBarSubLine, upright ? PE_IndicatorArrowUp : PE_IndicatorArrowLeft);
    draw(SC_ScrollBarAddLine, upright ? PE_IndicatorArrowDown : PE_IndicatorArrowRight);
    draw(SC_ScrollBarSlider, PE_Widget);
}

}  // namespace zifferon
