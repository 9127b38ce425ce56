// The real outside: Qt's boxes, pointer, locale, folders, clock, screen, event loop and folder
// chooser, the printers of CUPS, and the transfers of curl_transfers.h.
#pragma once

#include <QElapsedTimer>

#include "platform/platform.h"
#include "platform/qt/cups_printers.h"
#include "platform/qt/curl_transfers.h"

namespace kelvora {

class QtBoxes : public Boxes {
 public:
  BoxAnswer Show(const Box& box) override;
};

class QtPointer : public Pointer {
 public:
 private:
  void Show(bool waiting) override;

  bool waiting_ = false;
};

class QtLocale : public Locale {
 public:
  Text SystemDecimalSeparator() const override;
  Text DayMonthYear(const LocalTime& time) const override;
  Text HourMinuteSecond(const LocalTime& time) const override;
  Text ShortDate(const LocalTime& time) const override;
  Text ShortTime(const LocalTime& time) const override;
  Text LongDatePattern() const override;
  Text WeekdayName(const LocalTime& time) const override;
};

class QtFolders : public Folders {
 public:
  std::string ApplicationData() const override;
  std::string Documents() const override;
  std::string State() const override;
  std::string UserData() const override;
  std::string ProgramFolder() const override;
};

class QtClock : public Clock {
 public:
  LocalTime Now() const override;
};

class QtScreenSize : public Screen {
 public:
  ScreenSize Size() const override;
};

class QtEvents : public Events {
 public:
  QtEvents() { last_.start(); }
  void Yield() override;
  void End() override;

 private:
  QElapsedTimer last_;
};

class QtOpener : public Opener {
 public:
  bool Open(const std::string& address) override;
  void OpenWithChosenProgram(const std::string& path) override;
  bool Start(const CommandLine& command, const std::string& folder) override;
};

class QtFolderChooser : public FolderChooser {
 public:
  std::optional<std::string> Choose(const Text& prompt, const std::string& start) override;
  std::optional<std::string> ChooseNewZip(const Text& prompt, const std::string& proposed) override;
  std::optional<std::string> ChooseZip(const Text& prompt, const std::string& start) override;
};

// All of them together, made once.
class QtPlatform {
 public:
  [[nodiscard]] Platform& Get() { return platform_; }

 private:
  QtBoxes boxes_;
  QtPointer pointer_;
  QtLocale locale_;
  QtFolders folders_;
  QtClock clock_;
  QtScreenSize screen_;
  QtEvents events_;
  QtOpener opener_;
  CupsPrinters printers_;
  QtFolderChooser folder_chooser_;
  CurlTransfers transfers_;
  Platform platform_{boxes_,  pointer_, locale_,   folders_,  clock_,          screen_,
                     events_, opener_,  printers_, printers_, folder_chooser_, transfers_};
};

}  // namespace kelvora
