#include "platform/qt/readable_palette.h"

#include <gtest/gtest.h>
#include <memory>

#include "platform/qt/contrast.h"
#include "windows/desktop_colours.h"

namespace kelvora {
namespace {

TEST(ReadablePalette, LeavesWhatCanBeRead) {
  const QPalette desktop = PaletteOf(kDesktops[2]);
  const QPalette palette = ReadablePalette(desktop);
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    for (const auto role : {QPalette::Window, QPalette::WindowText, QPalette::Base, QPalette::Text,
                            QPalette::Button, QPalette::ButtonText, QPalette::Highlight,
                            QPalette::HighlightedText, QPalette::AlternateBase}) {
      EXPECT_EQ(palette.color(group, role), desktop.color(group, role)) << role;
    }
  }
  EXPECT_NE(palette.color(QPalette::Disabled, QPalette::Text),
            desktop.color(QPalette::Disabled, QPalette::Text));
}

// White on the style's own light blue has 3.7, on the blue of Breeze 2.4.
TEST(ReadablePalette, DarkensTheGroundOfWhatIsChosen) {
  for (const DesktopColours& desktop : kDesktops) {
    const QPalette palette = ReadablePalette(PaletteOf(desktop));
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
      EXPECT_GE(ContrastOf(palette.color(group, QPalette::HighlightedText),
                           palette.color(group, QPalette::Highlight)),
                kLeastContrast)
          << desktop.name;
    }
  }
}

TEST(ReadablePalette, IsKeptWhenTheDesktopChangesItsOwn) {
  const QPalette before = QApplication::palette();
  KeepTextsReadable(*qApp);
  const std::unique_ptr<QObject> keeper(qApp->findChild<QObject*>("palette_keeper"));
  ASSERT_NE(keeper, nullptr);
  const auto contrast = [] {
    const QPalette palette = QApplication::palette();
    return ContrastOf(palette.color(QPalette::Disabled, QPalette::Text),
                      palette.color(QPalette::Disabled, QPalette::Base));
  };
  EXPECT_GE(contrast(), kLeastContrast);
  QPalette changed;
  changed.setColor(QPalette::Disabled, QPalette::Text,
                   changed.color(QPalette::Disabled, QPalette::Base));
  QApplication::setPalette(changed);
  EXPECT_GE(contrast(), kLeastContrast);
  qApp->removeEventFilter(keeper.get());
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace kelvora
