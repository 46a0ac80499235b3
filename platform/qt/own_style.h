// The look of the program, the same on every desktop and with every setting of the toolkit. A style named on
// the command line, with -style, is still taken.
#pragma once

#include <QPalette>
#include <QProxyStyle>

namespace zifferon {

class OwnStyle : public QProxyStyle {
  public:
    OwnStyle();

    // All roles, so that no theme adds any of its own.
    static QPalette palette();

  private:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    void drawScrollBar(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const;
};

// For the application, which owns the style that it is given.
OwnStyle* newOwnStyle();

}  // namespace zifferon
