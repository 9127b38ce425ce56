#include "storage/untaken_diary.h"

#include "core/common.h"
#include "language/own_texts.h"

namespace kelvora {
namespace {

// Without a day there is nothing that the text could be taken into.
bool HoldsUntakenText(const Program& program) {
  const DiaryView* const diary = program.windows.diary;
  return !program.ending && program.store.DayIsOpen() && diary != nullptr &&
         diary->HoldsUntakenText();
}

BoxAnswer AskWhetherToTakeOver(Program& program) {
  const Box box{.title = Text(AppTitle),
                .text = OwnTextOf(program.texts, OwnText::diary_unsaved) + "\n\n" +
                        OwnTextOf(program.texts, OwnText::diary_save_first),
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no_cancel};
  return program.platform.boxes.Show(box);
}

enum class Dropping { at_once, with_the_day };

bool MayGoOn(Program& program, Dropping dropping) {
  if (!HoldsUntakenText(program)) return true;
  const BoxAnswer answer = AskWhetherToTakeOver(program);
  DiaryView* const diary = program.windows.diary;
  if (answer == BoxAnswer::yes) return diary == nullptr || diary->TakeOver();
  if (answer != BoxAnswer::no) return false;
  if (dropping == Dropping::at_once && diary != nullptr) diary->Refresh_Tekst();
  return true;
}

}  // namespace

bool MayLeaveDiary(Program& program) {
  return MayGoOn(program, Dropping::at_once);
}

bool MayCloseDiaryWithDay(Program& program) {
  return MayGoOn(program, Dropping::with_the_day);
}

}  // namespace kelvora
