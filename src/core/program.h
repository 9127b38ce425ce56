// The process-wide state: one Program, made in main and once in every test, passed by reference.
// There are no other globals. Routines take what they need, and Program only where they act on the
// whole.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/common.h"
#include "core/day_undo.h"
#include "core/failure.h"
#include "core/kept_file.h"
#include "core/records.h"
#include "core/recovery.h"
#include "core/store.h"
#include "core/views.h"
#include "language/tables.h"
#include "platform/platform.h"

namespace kelvora {

// Where files lie: UTF-8 paths; each that names a folder ends in "/".
struct Paths {
  Text UserName;  // the current user; empty until one is chosen
  // The folder of the current user below UsersPath, as it is named on disk: UTF-8, without "/". It
  // need not be named as the user is, since text can't hold every name that a folder can have.
  std::string UserFolderName;
  std::string UsersPath;
  std::string FilesPath;  // the day files of the current user
  std::string LanguagePath;
  std::string ReportsPath;
  std::string ProgramPath;
  std::string SettingsFile;
  std::string StatePath;  // what the program keeps for its next start; empty: nowhere
  // The user's own category databases, beside those of the program; empty: there is no place.
  std::string UserDatabases;
};

enum class DayDialogMode { new_day, day_settings };

// The bare name of the file that a day was read from, in UTF-8, and what text can hold of it.
struct OpenedName {
  Text shown;
  std::string name;
};

struct DayState {
  bool FileChanged = false;
  // Leads to the open day's file while KV_bestand is what it shows.
  OpenedName opened_name;
  kelvora::DayDialogMode DayDialogMode = kelvora::DayDialogMode::new_day;
  // The Product of the row last clicked or changed in each consumption window.
  std::array<Text, 3> selected_names;
  // The Product of the row last clicked in the food lists, or of the food last added to them.
  Text last_clicked_food;
  // Routing code of the consumption window in which the running drag began.
  Text drag_source;
  DayUndo undo;
  // The part that was active last: what Enter in the food lists adds to.
  DayPart active_part = DayPart::morning;
};

// The bytes of the day file that was opened last, and the folder that it lay in.
struct OpenedDay {
  std::string folder;
  std::string bytes;
};

// The addresses of the chosen food server; empty while it is not known.
struct ServerAddresses {
  std::string search;
  std::string submission;
};

// What the analysis windows share for the life of the process.
struct AnalysisState {
  // The nutrient of the top five diagrams, in the order of the windows' menus: kilojoules,
  // kilocalories, unsaturated fat, saturated fat, protein, sodium, carbohydrates. A whole number.
  float gekozen_stof = 0;
};

// Since when there has been no backup ("2004-03-05", empty while that is not known), and whether
// the user wants to be told.
struct BackupReminder {
  std::string since;
  bool wanted = true;
};

struct Program {
  explicit Program(Platform& outside) : platform(outside) {}
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  KV_data store;
  Rec_Settings settings;
  Rec_Profile profile;
  TextTables texts;
  Paths paths;
  DayState day;
  AnalysisState analysis;
  OpenWindows windows;
  std::optional<OpenedDay> opened_day;  // what a day file with no record falls back on
  KeptFiles kept;
  DayOnDisk day_on_disk;
  RecoveryState recovery;
  BackupReminder backup_reminder;
  ServerAddresses servers;
  bool update_checked = false;  // a check for a newer version has begun since the start
  Text StartSeparator;          // the decimal separator that the locale had at start
  ActionLog actions;
  bool ending = false;  // the main window is gone for good: nothing new begins
  Platform& platform;

  // Runs a routine's body under its own failure code.
  template <class Body>
  bool Guard(std::string_view code, Body&& body) {
    return WithFailurePath(FailurePath(), code, std::forward<Body>(body));
  }
  [[nodiscard]] FailureBox FailurePath();
};

// Sets the unsaved-changes flag and, with it, the Save button.
void SetFileChanged(Program& program, bool changed);

// Makes `name` the current user: name and folder of the day files. The folder is the one of that
// name on disk; without one it goes by the user's name, and stays what it is for the user who is
// the current one already, so that this also brings `FilesPath` in step with another `UsersPath`.
void SetCurrentUser(Program& program, std::string_view name, std::string folder_name);
void SetCurrentUser(Program& program, std::string_view name);

// The nutrient that the current user gives priority.
[[nodiscard]] Priority PriorityOfUser(const Program& program);

// The folder of one user, with its closing "/": that of the current one as it is on disk, any other
// by the name. For a name that no folder can have it is one below a file, so that whatever is read
// or written there fails and reaches no other folder.
[[nodiscard]] std::string UserFolder(const Paths& paths, std::string_view name);

// The texts of the tables joined as the lines of one box; an empty id gives an empty line.
[[nodiscard]] Text JoinLines(const TextTables& texts,
                             std::initializer_list<std::optional<TextId>> lines);

// Ends the program as soon as everything under way has returned. Asks nothing and saves nothing.
void EndProgram(Program& program);

// Shows a box with the program's title and an OK button.
void Tell(Program& program, BoxIcon icon, Text text);

}  // namespace kelvora
