#include "core/frame/data_members.h"

#include <array>

namespace kelvora {
namespace {

constexpr DataMember List(std::string_view name, TextList KV_data::*list) {
  return {.name = name, .list = list};
}
constexpr DataMember Foods(std::string_view name, TextList KV_data::*list) {
  return {.name = name, .list = list, .tells_lines = true};
}
constexpr DataMember Cell(std::string_view name, Text KV_data::*cell) {
  return {.name = name, .cell = cell};
}

constexpr std::array kMembers = {
    List("L_gegevens", &KV_data::L_gegevens),
    Foods("L_ochtend", &KV_data::L_ochtend),
    Foods("L_middag", &KV_data::L_middag),
    Foods("L_avond", &KV_data::L_avond),
    Cell("txt_notities", &KV_data::txt_notities),
    Cell("txt_trenddata", &KV_data::txt_trenddata),
    Cell("KV_bestand", &KV_data::KV_bestand),
    Foods("Default_list", &KV_data::Default_list),
    Foods("Custom_list", &KV_data::Custom_list),
    Foods("Favorites_list", &KV_data::Favorites_list),
    List("lst_categorien", &KV_data::lst_categorien),
    List("database_lst", &KV_data::database_lst),
    List("lst_data_dir", &KV_data::lst_data_dir),
    List("lst_files", &KV_data::lst_files),
    List("tmp_filter", &KV_data::tmp_filter),
    List("temp_filter", &KV_data::temp_filter),
    List("var_filter", &KV_data::var_filter),
    List("Dupe_list", &KV_data::Dupe_list),
    List("Dupe_list_teller", &KV_data::Dupe_list_teller),
    Cell("txt_testdata", &KV_data::txt_testdata),
    Cell("txt_internetzoekdata", &KV_data::txt_internetzoekdata),
};

}  // namespace

std::span<const DataMember> DataMembers() {
  return kMembers;
}

std::size_t LineCount(const KV_data& store, const DataMember& member) {
  if (member.list != nullptr) return (store.*member.list).Count();
  return (store.*member.cell).empty() ? 0 : 1;
}

Text LineAt(const KV_data& store, const DataMember& member, std::size_t index) {
  if (member.list != nullptr) return Text((store.*member.list)[index]);
  return index == 0 ? store.*member.cell : Text();
}

void TellLine(Program& program, const DataMember& member, std::size_t index) {
  if (!member.tells_lines || index >= LineCount(program.store, member)) return;
  Tell(program, BoxIcon::information, LineAt(program.store, member, index));
}

}  // namespace kelvora
