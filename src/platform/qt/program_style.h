// The style of the program: Fusion, with title bars and buttons of child windows that are drawn in
// the colours of the palette, so that they can be seen on a dark one too.
#pragma once

#include <QProxyStyle>

class QStyleOptionTitleBar;

namespace kelvora {

class ProgramStyle : public QProxyStyle {
 public:
  ProgramStyle();

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;

 private:
  void DrawTitleBar(const QStyleOptionTitleBar& bar, QPainter& painter,
                    const QWidget* widget) const;
  void DrawButtonsInMenuBar(const QStyleOptionComplex& bar, QPainter& painter,
                            const QWidget* widget) const;
};

}  // namespace kelvora
