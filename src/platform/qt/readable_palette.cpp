#include "platform/qt/readable_palette.h"

#include <array>

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QToolTip>

#include "platform/qt/contrast.h"

namespace kelvora {
namespace {

// Styles shade the grounds of buttons and bars a little; what is grey on purpose keeps away from
// the limit by that much.
constexpr double kGreyContrast = 5.4;
// The row in focus is drawn a little lighter than the ground of what is chosen.
constexpr double kChosenContrast = 5.4;

constexpr std::array kGroups = {QPalette::Active, QPalette::Inactive, QPalette::Disabled};

struct LettersOnGround {
  QPalette::ColorRole letters;
  QPalette::ColorRole ground;
};
constexpr std::array kPairs = {
    LettersOnGround{QPalette::WindowText, QPalette::Window},
    LettersOnGround{QPalette::Text, QPalette::Base},
    LettersOnGround{QPalette::ButtonText, QPalette::Button},
    LettersOnGround{QPalette::ToolTipText, QPalette::ToolTipBase},
};

bool IsReadable(const QPalette& palette, QPalette::ColorGroup group, const LettersOnGround& pair) {
  return ContrastOf(palette.color(group, pair.letters), palette.color(group, pair.ground)) >=
         kLeastContrast;
}

void MakeLettersReadable(QPalette& palette, QPalette::ColorGroup group) {
  for (const LettersOnGround& pair : kPairs) {
    if (IsReadable(palette, group, pair)) continue;
    palette.setColor(group, pair.letters, LettersOn(palette.color(group, pair.ground)));
  }
  const QColor text = palette.color(group, QPalette::Text);
  for (const auto role : {QPalette::AlternateBase, QPalette::Link, QPalette::LinkVisited}) {
    const bool is_ground = role == QPalette::AlternateBase;
    const QColor ground = palette.color(group, QPalette::Base);
    if (ContrastOf(palette.color(group, role), is_ground ? text : ground) >= kLeastContrast) {
      continue;
    }
    palette.setColor(group, role, is_ground ? ground : text);
  }
}

void MakeChosenReadable(QPalette& palette, QPalette::ColorGroup group) {
  palette.setColor(group, QPalette::Highlight,
                   GroundUnder(palette.color(group, QPalette::HighlightedText),
                               palette.color(group, QPalette::Highlight), kChosenContrast));
}

// The greys begin at the letters of what is not disabled, since a theme may have left the others
// unset.
void MakeGreysReadable(QPalette& palette, QPalette::ColorGroup group) {
  palette.setColor(group, QPalette::PlaceholderText,
                   QuietColour(palette, QPalette::Text, QPalette::Base));
  if (group != QPalette::Disabled) return;
  for (const LettersOnGround& pair : kPairs) {
    if (pair.letters == QPalette::ToolTipText) continue;
    palette.setColor(group, pair.letters, QuietColour(palette, pair.letters, pair.ground));
  }
}

// What of a palette is not the desktop's, and nothing else: the rest goes on following it.
QPalette Differences(const QPalette& palette, const QPalette& desktop) {
  QPalette own;
  for (const auto group : kGroups) {
    for (int i = 0; i < QPalette::NColorRoles; ++i) {
      const auto role = static_cast<QPalette::ColorRole>(i);
      if (palette.color(group, role) == desktop.color(group, role)) continue;
      own.setColor(group, role, palette.color(group, role));
    }
  }
  return own;
}

class PaletteKeeper : public QObject {
 public:
  explicit PaletteKeeper(QApplication& application) : QObject(&application) {
    setObjectName(QStringLiteral("palette_keeper"));
    application.installEventFilter(this);
    Take();
  }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (object == parent() && event->type() == QEvent::ApplicationPaletteChange && !taking_) Take();
    return false;
  }

 private:
  void Take() {
    const QScopedValueRollback taking(taking_, true);
    QApplication::setPalette(QPalette());  // the desktop's own comes through
    const QPalette desktop = QApplication::palette();
    QApplication::setPalette(Differences(ReadablePalette(desktop), desktop));
    QToolTip::setPalette(ReadablePalette(QToolTip::palette()));
  }

  bool taking_ = false;
};

}  // namespace

QPalette ReadablePalette(const QPalette& desktop) {
  QPalette palette = desktop;
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    MakeLettersReadable(palette, group);
  }
  for (const auto group : kGroups) {
    MakeChosenReadable(palette, group);
    MakeGreysReadable(palette, group);
  }
  return palette;
}

QColor QuietColour(const QPalette& palette, QPalette::ColorRole letters,
                   QPalette::ColorRole ground) {
  constexpr int kLighterPages = 130;  // percent; pages and buttons on a dark desktop
  const auto colour = [&](QPalette::ColorRole role) {
    return palette.color(QPalette::Active, role);
  };
  // Each kind of letters is drawn on the others' grounds too.
  const QColor grey =
      HintColour(colour(letters),
                 {colour(ground), palette.color(QPalette::Disabled, ground),
                  colour(QPalette::Window), colour(QPalette::Base), colour(QPalette::Button),
                  colour(QPalette::Button).lighter(kLighterPages)},
                 kGreyContrast);
  // Where those are too far apart for any grey, its own one counts.
  return grey == colour(letters) ? HintColour(grey, colour(ground)) : grey;
}

void KeepTextsReadable(QApplication& application) {
  new PaletteKeeper(application);  // the application owns it
}

}  // namespace kelvora
