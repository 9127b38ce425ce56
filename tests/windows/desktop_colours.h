// The colours of desktops, light and dark, as their themes give them to programs.
#pragma once

#include <vector>

#include <QApplication>
#include <QPalette>
#include <QStyle>

namespace kelvora {

struct DesktopColours {
  const char* name;
  std::vector<std::pair<QPalette::ColorRole, const char*>> colours;
};

// What a desktop sets, over what the style has by itself. The two dark ones are those of Breeze
// Dark and Adwaita Dark, as they publish them; the last one sets grounds and no letters.
inline const std::vector<DesktopColours> kDesktops = {
    {"none", {}},
    {"dark, as KDE sets it",
     {{QPalette::Window, "#2a2e32"},
      {QPalette::WindowText, "#fcfcfc"},
      {QPalette::Base, "#1b1e20"},
      {QPalette::AlternateBase, "#232629"},
      {QPalette::Text, "#fcfcfc"},
      {QPalette::Button, "#31363b"},
      {QPalette::ButtonText, "#fcfcfc"},
      {QPalette::Highlight, "#3daee9"},
      {QPalette::HighlightedText, "#fcfcfc"}}},
    {"dark, as GNOME sets it",
     {{QPalette::Window, "#353535"},
      {QPalette::WindowText, "#eeeeec"},
      {QPalette::Base, "#2d2d2d"},
      {QPalette::AlternateBase, "#353535"},
      {QPalette::Text, "#ffffff"},
      {QPalette::Button, "#373737"},
      {QPalette::ButtonText, "#eeeeec"},
      {QPalette::Highlight, "#15539e"},
      {QPalette::HighlightedText, "#ffffff"}}},
    {"dark grounds alone",
     {{QPalette::Window, "#2a2e32"}, {QPalette::Base, "#1b1e20"}, {QPalette::Button, "#31363b"}}},
};

inline QPalette PaletteOf(const DesktopColours& desktop) {
  QPalette palette = QApplication::style()->standardPalette();
  for (const auto& [role, colour] : desktop.colours) palette.setColor(role, QColor(colour));
  return palette;
}

}  // namespace kelvora
