#include "days/popup_window.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

#include "days/day_dialogs.h"
#include "language/main_texts.h"
#include "language/popup_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

using namespace popup_text;

constexpr int kWidth = 6465;  // twips, as the heights
constexpr int kSplashHeight = 3580;
constexpr int kAboutHeight = 5740;
constexpr int kProgramIconSize = 72;
constexpr int kLoadIconSize = 32;
constexpr int kMarkSize = 210;
constexpr int kThanksPictureSize = 120;
constexpr double kMarkOpacity = 0.12;
constexpr double kDarkOpacity = 0.45;

constexpr std::array<std::string_view, kLoadPictures> kLoadIcons = {
    "settings", "foods", "consumptions", "open", "screens-default"};

int NearestPixels(int twips) {
  return (twips + kTwipsPerPixel / 2) / kTwipsPerPixel;
}

QPixmap Picture(const QWidget& place, std::string_view icon, int size) {
  return IconNamed(icon).pixmap(QSize(size, size), place.devicePixelRatioF());
}

QPixmap Faded(const QWidget& place, std::string_view icon, int size) {
  const QPixmap grey =
      IconNamed(icon).pixmap(QSize(size, size), place.devicePixelRatioF(), QIcon::Disabled);
  QPixmap faded(grey.size());
  faded.setDevicePixelRatio(grey.devicePixelRatio());
  faded.fill(Qt::transparent);
  QPainter painter(&faded);
  painter.setOpacity(kDarkOpacity);
  painter.drawPixmap(0, 0, grey);
  return faded;
}

void EnlargeLetters(QWidget* widget, double factor) {
  QFont font = widget->font();
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * factor);
  } else {
    font.setPixelSize(qRound(font.pixelSize() * factor));
  }
  font.setBold(true);
  widget->setFont(font);
}

}  // namespace

PopupWindow::PopupWindow(Program& program, std::string_view PopupMode, QWidget* parent)
    : QDialog(parent), program_(program), about_(IsAbout(PopupMode)), Timer1_(this), Timer2_(this) {
  NameWidget(this, "KV_popup");
  if (!about_) {
    // On top, or the wizard that comes up at once would hide it for all of its short life.
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus |
                   Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
  }
  loader_ = NewLabel(this, QStringLiteral("loader"));
  ProgressBar_ = new QProgressBar(this);
  NameWidget(ProgressBar_, "ProgressBar");
  ProgressBar_->setTextVisible(false);
  ProgressBar_->setRange(0, 100);
  ProgressBar_->setValue(0);
  ProgressBar_->setMaximumHeight(12);
  cmd_annuleer_ = new QPushButton(this);
  NameWidget(cmd_annuleer_, "cmd_annuleer");

  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(22, 18, 22, 16);
  layout->setSpacing(10);
  layout->addLayout(BuildHeading());
  layout->addLayout(BuildLines());
  layout->addStretch();
  layout->addLayout(BuildLoadPictures());
  layout->addWidget(loader_);
  layout->addWidget(ProgressBar_);
  layout->addWidget(BuildThanks(), 1);
  layout->addWidget(cmd_annuleer_, 0, Qt::AlignRight);
  for (QWidget* const widget : std::initializer_list<QWidget*>{
           lbl_txt1_, lbl_nfo_1_, lbl_txt6_, lbl_nfo_4_, Pic_dankwoord_, cmd_annuleer_}) {
    widget->setVisible(about_);
  }
  loader_->setVisible(!about_);
  ProgressBar_->setVisible(!about_);
  for (const LoadPicture& picture : Loadpic_) {
    picture.dark->setVisible(!about_);
    picture.lit->hide();
  }

  connect(cmd_annuleer_, &QPushButton::clicked, this, &PopupWindow::reject);
  Timer1_.setObjectName(QStringLiteral("Timer1"));
  Timer1_.setSingleShot(true);
  Timer1_.setTimerType(Qt::PreciseTimer);
  Timer2_.setObjectName(QStringLiteral("Timer2"));
  Timer2_.setTimerType(Qt::PreciseTimer);
  connect(&Timer1_, &QTimer::timeout, this, &PopupWindow::EndSplash);
  connect(&Timer2_, &QTimer::timeout, this, &PopupWindow::Tick);
  Set_Taal();
  const QSize size(NearestPixels(kWidth), NearestPixels(about_ ? kAboutHeight : kSplashHeight));
  setFixedSize(size.expandedTo(layout->minimumSize()));
}

QHBoxLayout* PopupWindow::BuildHeading() {
  QLabel* const icon = NewLabel(this, QStringLiteral("Pic_program"));
  icon->setPixmap(Picture(*this, "kelvora-food", kProgramIconSize));
  QLabel* const name = NewLabel(this, QStringLiteral("lbl_program"));
  name->setText(ToQt(AppTitle));
  EnlargeLetters(name, 2.2);
  lbl_type_ = NewLabel(this, QStringLiteral("lbl_type"));
  auto* const words = new QVBoxLayout;
  words->setSpacing(2);
  words->addStretch();
  words->addWidget(name);
  words->addWidget(lbl_type_);
  words->addStretch();
  auto* const heading = new QHBoxLayout;
  heading->setSpacing(16);
  heading->addWidget(icon);
  heading->addLayout(words, 1);
  return heading;
}

QGridLayout* PopupWindow::BuildLines() {
  lbl_txt1_ = NewLabel(this, QStringLiteral("lbl_txt1"));
  lbl_nfo_1_ = NewLabel(this, QStringLiteral("lbl_nfo_1"));
  lbl_txt6_ = NewLabel(this, QStringLiteral("lbl_txt6"));
  lbl_nfo_4_ = NewLabel(this, QStringLiteral("lbl_nfo_4"));
  auto* const lines = new QGridLayout;
  lines->setHorizontalSpacing(14);
  lines->setVerticalSpacing(4);
  lines->setColumnStretch(1, 1);
  lines->addWidget(lbl_txt1_, 0, 0);
  lines->addWidget(lbl_nfo_1_, 0, 1);
  lines->addWidget(lbl_txt6_, 1, 0);
  lines->addWidget(lbl_nfo_4_, 1, 1);
  return lines;
}

QHBoxLayout* PopupWindow::BuildLoadPictures() {
  auto* const row = new QHBoxLayout;
  row->setSpacing(14);
  for (std::size_t i = 0; i < Loadpic_.size(); ++i) {
    const QString name = QStringLiteral("Loadpic_%1_%2").arg(i + 1);
    Loadpic_[i] = {NewLabel(this, name.arg(0)), NewLabel(this, name.arg(1))};
    Loadpic_[i].dark->setPixmap(Faded(*this, kLoadIcons[i], kLoadIconSize));
    Loadpic_[i].lit->setPixmap(Picture(*this, kLoadIcons[i], kLoadIconSize));
    row->addWidget(Loadpic_[i].dark);
    row->addWidget(Loadpic_[i].lit);
  }
  row->addStretch();
  return row;
}

// The thanks are a picture: a laid table for everyone who had a part in what the program is made
// of.
QWidget* PopupWindow::BuildThanks() {
  QLabel* const panel = NewLabel(this, QStringLiteral("Pic_dankwoord"));
  panel->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
  panel->setAutoFillBackground(true);
  panel->setBackgroundRole(QPalette::Base);
  panel->setAlignment(Qt::AlignCenter);
  panel->setPixmap(IconNamed("thanks").pixmap(QSize(2 * kThanksPictureSize, kThanksPictureSize),
                                              devicePixelRatioF()));
  Pic_dankwoord_ = panel;
  return panel;
}

void PopupWindow::Set_Taal() {
  const TextTables& texts = program_.texts;
  const AboutLines lines = AboutLinesOf(program_);
  setWindowTitle(about_ ? ToQt(texts[main_text::kAbout])
                        : ToQt(Text(AppTitle) + " " + Text(VersionText)));
  lbl_type_->setText(ToQt(lines.lbl_type));
  lbl_txt1_->setText(ToQt(texts[kVersion]));
  lbl_nfo_1_->setText(ToQt(lines.lbl_nfo_1));
  lbl_txt6_->setText(ToQt(texts[kInternet]));
  lbl_nfo_4_->setText(ToQt(lines.lbl_nfo_4));
  cmd_annuleer_->setText(CaptionFrom(texts[kClose]));
  cmd_annuleer_->setAccessibleName(ToQt(texts[kClose]));
}

void PopupWindow::ShowSplash() {
  Timer1_.start(kSplashEndMilliseconds);
  Timer2_.start(kSplashTickMilliseconds);
  move(screen()->availableGeometry().center() - rect().center());
  show();
  // Seen before the loading begins, which lets no events run.
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void PopupWindow::Tick() {
  counter_ += kSplashTickStep;
  Set_Taal();  // the language comes while the splash is up already
  const SplashStep step = StepOf(counter_);
  if (step.text) {
    loader_->setText(ToQt(program_.texts[*step.text]));
    ProgressBar_->setAccessibleName(loader_->text());
  }
  if (step.picture) {
    const LoadPicture& picture = Loadpic_[static_cast<std::size_t>(*step.picture - 1)];
    picture.dark->hide();
    picture.lit->show();
  }
  if (step.progress) ProgressBar_->setValue(*step.progress);
}

void PopupWindow::EndSplash() {
  Timer2_.stop();
  done(QDialog::Accepted);
  // A desktop may make the splash the active window after all, and a box that came up then hangs on
  // it and must not go with it. The main window clears up in the end.
  if (findChildren<QDialog*>().isEmpty()) deleteLater();
}

void PopupWindow::reject() {
  if (about_) QDialog::reject();
}

void PopupWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor ground = palette().color(QPalette::Window);
  QLinearGradient shade(rect().topLeft(), rect().bottomLeft());
  shade.setColorAt(0, ground.lighter(104));
  shade.setColorAt(1, ground.darker(108));
  painter.fillRect(rect(), shade);
  painter.setOpacity(kMarkOpacity);
  painter.drawPixmap(width() - kMarkSize * 3 / 4, -kMarkSize / 6,
                     Picture(*this, "kelvora-mark", kMarkSize));
  painter.setOpacity(1);
  if (about_) return;  // the desktop gives it a frame
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void PopupWindow::mouseReleaseEvent(QMouseEvent* event) {
  QDialog::mouseReleaseEvent(event);
  reject();
}

void PopupWindow::mouseDoubleClickEvent(QMouseEvent* event) {
  QDialog::mouseDoubleClickEvent(event);
  reject();
}

void ShowPopup(Program& program, std::string_view PopupMode, QWidget* parent) {
  if (IsAbout(PopupMode)) {
    PopupWindow(program, PopupMode, parent).exec();
  } else {
    (new PopupWindow(program, PopupMode, parent))->ShowSplash();
  }
}

}  // namespace kelvora
