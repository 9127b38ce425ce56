#include "food/adding.h"

#include <algorithm>

#include "food/food_values.h"
#include "internet/submission.h"
#include "language/new_food_texts.h"
#include "nutrition/totals.h"
#include "storage/folders.h"
#include "storage/food_files.h"
#include "storage/settings_file.h"

namespace kelvora {
namespace {

using namespace new_food_text;

// The values in the order of a food line.
constexpr std::array<std::size_t, FoodValue::kCount> kLineOrder = {
    FoodValue::kKj,   FoodValue::kKcal,  FoodValue::kProtein, FoodValue::kFatU,
    FoodValue::kFatS, FoodValue::kCarbs, FoodValue::kSodium};

constexpr std::string_view kGroupOfOwnFoods = "0";

// The twelve fields of the line, each followed by `closing`.
Text JoinFields(const NewFoodForm& form, char closing) {
  Text joined;
  const auto add = [&](std::string_view field) { joined.append(field) += closing; };
  add(Trimmed(form.txt_dNaam));
  add(Trimmed(form.combo_dEenheid));
  add(form.portion_weight.weight);
  for (const std::size_t index : kLineOrder) add(form.txt_d[index]);
  add(kGroupOfOwnFoods);
  add({});  // no remark
  return joined;
}

bool IsIncomplete(const NewFoodForm& form) {
  const Text& weight = form.portion_weight.weight;
  return form.txt_dNaam.empty() || form.combo_dEenheid.empty() || weight.empty() ||
         HoldsDecimalMark(weight) || std::ranges::any_of(form.txt_d, &IsIncompleteNumber);
}

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

// Tells why the food can't be added; true if it can.
bool MayBeAdded(Program& program, const NewFoodForm& form) {
  if (const auto error = CheckNewFood(form)) {
    Refuse(program, TextOf(program.texts, *error));
    return false;
  }
  if (!SodiumIsMeant(program, form)) return false;
  // The name as it was typed: lines begin with a trimmed one, so blanks around it find no other.
  if (!program.store.Custom_list.FindFirst(KeyOf(form.txt_dNaam))) return true;
  Refuse(program, JoinLines(program.texts, {kNameExists, kChooseAnotherName}));
  return false;
}

void AddToOwnList(Program& program, const NewFoodForm& form) {
  program.store.Custom_list.Add(LineOfNewFood(form));
  Save_Custom(program, CustomFile(program.paths, program.paths.UserName));
  if (program.settings[Setting::chk_addinternet] == "1") return SubmitFood(program);
  Tell(program, BoxIcon::information, program.texts[kSaved]);
}

// The lists select the row of the food that was clicked last.
void SelectInFoodLists(Program& program, const NewFoodForm& form) {
  program.day.last_clicked_food = Trimmed(form.txt_dNaam);
  if (program.windows.lists != nullptr) program.windows.lists->Populate_Food_List_Custom();
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

bool AddsToInternet(Program& program) {
  Rec_Settings& settings = program.settings;
  if (settings[Setting::chk_internet] == "0") settings[Setting::chk_addinternet] = "0";
  return settings[Setting::chk_internet] == "1" && settings[Setting::chk_addinternet] == "1";
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

std::optional<NewFoodError> CheckNewFood(const NewFoodForm& form) {
  if (IsIncomplete(form)) return NewFoodError::incomplete;
  const Text tested = JoinFields(form, '-');
  if (HoldsTerminator(tested)) return NewFoodError::illegal_characters;
  if (tested.size() > kMaxFoodLength) return NewFoodError::too_long;
  return std::nullopt;
}

Text TextOf(const TextTables& texts, NewFoodError error) {
  switch (error) {
    case NewFoodError::incomplete:
      return JoinLines(texts, {kValuesMissing, kEnterValues});
    case NewFoodError::illegal_characters:
      return JoinLines(texts, {kIllegalCharacters, kHalfNotAllowed, kRemoveCharacters});
    case NewFoodError::too_long:
      return JoinLines(texts, {kTooMuchData, kShortenDescription});
  }
  return {};
}

Text LineOfNewFood(const NewFoodForm& form) {
  return JoinFields(form, kFieldEnd);
}

bool AddNewFood(Program& program, NewFoodForm& form) {
  bool added = false;
  program.Guard("#F1-2", [&] {
    if (!MayBeAdded(program, form)) return;
    AddToOwnList(program, form);
    SelectInFoodLists(program, form);
    BeginNextFood(form, UnitsOf(program));
    CalculateFood(program, form);
    added = true;
  });
  return added;
}

}  // namespace kelvora
