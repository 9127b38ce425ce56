#include "core/frame/help_pages.h"

#include <algorithm>
#include <array>

namespace kelvora {
namespace {

constexpr std::array<std::string_view, 20> kPages = {
    kFirstHelpPage, "begin",   "day-mouse", "day-keyboard", "finding-food",
    "own-foods",    "summary", "years",     "comparing",    "diary",
    "users",        "reports", "internet",  "import-foods", "settings",
    "languages",    "trouble", "files",     "privacy",      "starter-foods"};

constexpr std::array kWindows = {
    WindowPage{"KV_Core", kFirstHelpPage},
    WindowPage{"KV_wizzard", "begin"},
    WindowPage{"KV_popup", kFirstHelpPage},
    WindowPage{"KV_bestand", "users"},
    WindowPage{"KV_browsefiles", "users"},
    WindowPage{"KV_properties", "settings"},
    WindowPage{"KV_tb_lijsten", "finding-food"},
    WindowPage{"KV_tb_vochtend", "day-mouse"},
    WindowPage{"KV_tb_vmiddag", "day-mouse"},
    WindowPage{"KV_tb_vavond", "day-mouse"},
    WindowPage{"other_amount", "day-keyboard"},
    WindowPage{"KV_take_over", "day-keyboard"},
    WindowPage{"KV_foodpopup", "own-foods"},
    WindowPage{"KV_add_voedingsmiddel", "own-foods"},
    WindowPage{"KV_tb_daguittreksel", "summary"},
    WindowPage{"KV_tb_meerdaags", "years"},
    WindowPage{"KV_tb_weegschaal", "comparing"},
    WindowPage{"KV_tb_notities", "diary"},
    WindowPage{"KV_export_html", "reports"},
    WindowPage{"KV_import_foods", "import-foods"},
    WindowPage{"KV_backup", "files"},
    WindowPage{"KV_restore", "files"},
    WindowPage{"KV_tb_internet_update", "internet"},
    WindowPage{"message_box", "trouble"},
};

}  // namespace

std::span<const std::string_view> HelpPages() {
  return kPages;
}

std::span<const WindowPage> WindowPages() {
  return kWindows;
}

std::string_view HelpPageOf(const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    const auto row = std::ranges::find(kWindows, name, &WindowPage::window);
    if (row != kWindows.end()) return row->page;
  }
  return kFirstHelpPage;
}

}  // namespace kelvora
