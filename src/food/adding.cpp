#include "food/adding.h"

#include "food/food_values.h"
#include "language/new_food_texts.h"
#include "language/own_texts.h"
#include "nutrition/totals.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/settings_file.h"

namespace kelvora {
namespace {

using namespace new_food_text;

// True if the sodium is no surprise, or the user keeps it.
bool SodiumIsMeant(Program& program, const NewFoodForm& form) {
  const Text& sodium = form.txt_d[FoodValue::kSodium];
  if (!IsHighSodium(sodium)) return true;
  const TextTables& texts = program.texts;
  const Box box{.title = texts[kHighSodiumTitle],
                .text = texts[kHighSodium] + "\n\n" + texts[kHighSodiumValue] + " " + sodium +
                        "\n" + texts[kHighSodiumInGram] + "\n\n" + texts[kHighSodiumSure],
                .icon = BoxIcon::question,
                .buttons = BoxButtons::yes_no};
  return program.platform.boxes.Show(box) == BoxAnswer::yes;
}

void Refuse(Program& program, Text text) {
  Tell(program, BoxIcon::error, std::move(text));
}

// Tells why the food can't be added, and returns the box that is to blame; nothing if it can be.
// The values are calculated on the way: what was typed last counts.
std::optional<NewFoodBox> WhatHolds(Program& program, NewFoodForm& form) {
  auto fault = CheckTyped(form);
  if (!fault) {
    Calculate(form, UnitsOf(program));
    fault = CheckLine(form);
  }
  if (fault) {
    Refuse(program, TextOf(program.texts, *fault));
    return fault->box;
  }
  if (!SodiumIsMeant(program, form)) {
    return NewFoodBox{NewFoodBox::Kind::value, FoodValue::kSodium};
  }
  if (!program.store.Custom_list.FindFirst(KeyOf(Trimmed(form.txt_dNaam)))) return std::nullopt;
  Refuse(program, JoinLines(program.texts, {kNameExists, kChooseAnotherName}));
  return NewFoodBox{NewFoodBox::Kind::name};
}

// True if the own list lies on the disk with the food.
bool AddToOwnList(Program& program, const NewFoodForm& form) {
  program.store.Custom_list.Add(LineOfNewFood(form));
  return Save_Custom(program, CustomFile(program.paths, program.paths.UserName));
}

// The lists select the row of the food that was clicked last.
void SelectInFoodLists(Program& program, const NewFoodForm& form) {
  program.day.last_clicked_food = Trimmed(form.txt_dNaam);
  if (program.windows.lists != nullptr) program.windows.lists->Populate_Food_List_Custom();
}

void GoOnToNextFood(Program& program, NewFoodForm& form) {
  SelectInFoodLists(program, form);
  BeginNextFood(form, UnitsOf(program));
  CalculateFood(program, form);
}

// What the button to add does runs under one failure path, behind the end of a submission too.
template <class Part>
bool RunPartOfAdding(Program& program, Part part) {
  return program.Guard("#F1-2", part);
}

}  // namespace

std::array<Text, 5> UnitChoices(const TextTables& texts) {
  return {texts[kUnitChoicePiece], texts[kUnitChoiceSpoon], texts[kUnitChoiceGlass],
          texts[kUnitChoiceDish], texts[kUnitChoiceSlice]};
}

NewFoodForm EmptyNewFood(Program& program) {
  NewFoodForm form;
  BeginNextFood(form, UnitsOf(program));
  return form;
}

bool MayAddToInternet(const Program& program) {
  return program.settings[Setting::chk_internet] == "1" && !program.servers.submission.empty();
}

bool AddsToInternet(Program& program) {
  Rec_Settings& settings = program.settings;
  if (settings[Setting::chk_internet] == "0") settings[Setting::chk_addinternet] = "0";
  return MayAddToInternet(program) && settings[Setting::chk_addinternet] == "1";
}

Text AddToInternetTip(const Program& program) {
  const TextTables& texts = program.texts;
  if (program.servers.submission.empty()) return OwnTextOf(texts, OwnText::no_food_server);
  return texts[kTipAddToInternet] + "\n" +
         OwnTextWith(texts, OwnText::sent_under_name, SenderName());
}

void StoreAddsToInternet(Program& program, bool on) {
  program.settings[Setting::chk_addinternet] = on ? "1" : "0";
  Save_Settings(program);
}

void CalculateFood(Program& program, NewFoodForm& form) {
  program.Guard("#F1-0", [&] { Calculate(form, UnitsOf(program)); });
}

void LeaveWeight(Program& program, NewFoodForm& form, WeightBoxes NewFoodForm::*boxes,
                 WeightUnit unit) {
  if (TakeWeight(form.*boxes, unit, UnitsOf(program))) CalculateFood(program, form);
}

void LeaveValue(Program& program, NewFoodForm& form, std::size_t index) {
  program.Guard("#F1-1", [&] {
    LinkEnergy(form, index, program.platform.locale.DecimalSeparator());
    CalculateFood(program, form);
  });
}

void TickEnergyLink(Program& program, NewFoodForm& form, bool on) {
  form.chk_kj = on;
  if (on) CalculateFood(program, form);
}

Text LineOfNewFood(const NewFoodForm& form) {
  return JoinFields(form, kFieldEnd);
}

AddedFood AddNewFood(Program& program, NewFoodForm& form, FoodSubmission& submission,
                     std::function<void()> on_sent) {
  AddedFood result;
  RunPartOfAdding(program, [&] {
    result.look_at = WhatHolds(program, form);
    if (result.look_at) return;
    const bool saved = AddToOwnList(program, form);
    if (saved && AddsToInternet(program)) {
      result.sending = true;
      submission.Send({form.txt_dNaam, form.txt_i}, [&program, &form, on_sent] {
        RunPartOfAdding(program, [&] { GoOnToNextFood(program, form); });
        on_sent();
      });
    } else {
      if (saved) Tell(program, BoxIcon::information, program.texts[kSaved]);
      GoOnToNextFood(program, form);
    }
    result.added = true;
  });
  return result;
}

}  // namespace kelvora
