#include "food/combining.h"

#include <algorithm>

#include "food/consumption.h"
#include "language/consumption_texts.h"
#include "nutrition/totals.h"
#include "storage/folders.h"
#include "storage/food_files.h"

namespace kelvora {
namespace {

namespace ct = consumption_text;

constexpr std::size_t kLeastRows = 2;
constexpr std::string_view kGroupOfUser = "0";
constexpr std::string_view kLineBreak = "\r\n";

// Places of the amounts in `var`, in the order of the fields of a food line.
constexpr std::array<std::size_t, 8> kAmountOrder = {7, 0, 1, 4, 2, 3, 5, 6};

using FoodFields = std::array<Text, FoodField::kRemark + 1>;

Text IngredientsOf(const std::vector<ConsumptionRow>& rows) {
  Text list;
  for (const ConsumptionRow& row : rows) {
    list.append(row.count).append("x ").append(row.product).append(kLineBreak);
  }
  return list;
}

FoodFields FieldsOfNewFood(const CombineForm& form, const std::vector<ConsumptionRow>& rows) {
  FoodFields fields;
  fields[FoodField::kProduct] = Trimmed(form.name);
  fields[FoodField::kUnit] = Trimmed(form.unit);
  for (std::size_t i = 0; i < kAmountOrder.size(); ++i) {
    fields[FoodField::kGram + i] = form.var[kAmountOrder[i]];
  }
  fields[FoodField::kGroup] = kGroupOfUser;
  fields[FoodField::kRemark] = IngredientsOf(rows);
  return fields;
}

bool HoldsIllegalCharacter(const FoodFields& fields) {
  return std::ranges::any_of(fields, HoldsTerminator);
}

Text PackedLine(const FoodFields& fields) {
  Text line;
  for (const Text& field : fields) line.append(field) += kFieldEnd;
  return line;
}

class Messages {
 public:
  Messages(Program& program, DayPart part) : program_(program), table_(RowOf(part).texts) {}

  [[nodiscard]] const Text& operator[](std::size_t index) const {
    return program_.texts[{table_, index}];
  }
  // Always false, for whoever refuses.
  bool Refuse(BoxIcon icon, std::initializer_list<std::size_t> lines) const {
    Text text;
    for (const std::size_t line : lines)
      text.append(text.empty() ? "" : "\n").append((*this)[line]);
    Tell(program_, icon, text);
    return false;
  }

 private:
  Program& program_;
  const TextTable table_;
};

bool MayBeCombined(const Program& program, const Messages& messages,
                   const std::vector<ConsumptionRow>& rows, const FoodFields& fields) {
  if (rows.size() < kLeastRows) {
    return messages.Refuse(BoxIcon::warning, {ct::kCombineTooFew, ct::kCombineAddMore});
  }
  if (fields[FoodField::kProduct].empty()) {
    return messages.Refuse(BoxIcon::warning, {ct::kCombineNoName, ct::kCombineEnterName});
  }
  if (HoldsIllegalCharacter(fields)) {
    return messages.Refuse(BoxIcon::error,
                           {ct::kCombineIllegal, ct::kCombineHalf, ct::kCombineRemove});
  }
  if (program.store.Custom_list.FindFirst(KeyOf(fields[FoodField::kProduct]))) {
    return messages.Refuse(BoxIcon::error, {ct::kCombineExists, ct::kCombineRename});
  }
  return true;
}

}  // namespace

std::optional<CombineBox> WrongBox(const Program& program, const CombineForm& form) {
  const Text name(Trimmed(form.name));
  if (name.empty() || HoldsTerminator(name)) return CombineBox::name;
  if (HoldsTerminator(form.unit)) return CombineBox::unit;
  if (program.store.Custom_list.FindFirst(KeyOf(name))) return CombineBox::name;
  return std::nullopt;
}

bool CombineFoods(Program& program, DayPart part, const CombineForm& form) {
  bool combined = false;
  const bool morning = part == DayPart::morning;
  program.Guard(morning ? "#F15-4" : "#F14-4", [&] {
    KV_data& store = program.store;
    const Messages messages(program, part);
    const auto rows = ConsumptionRows(program, part);
    const FoodFields fields = FieldsOfNewFood(form, rows);
    if (!MayBeCombined(program, messages, rows, fields)) return;

    const Text line = PackedLine(fields);
    store.Custom_list.Add(line);
    const bool saved = Save_Custom(program, CustomFile(program.paths, program.paths.UserName));
    if (program.windows.lists != nullptr) program.windows.lists->Populate_Food_List_Custom();
    store.ListOf(part).Clear();
    store.ListOf(part).Add(line);
    RefreshAfterChange(program, part);
    combined = true;
    if (!saved) return;
    Tell(program, BoxIcon::information,
         fields[FoodField::kProduct] + " " + messages[ct::kCombineSaved]);
  });
  return combined;
}

}  // namespace kelvora
