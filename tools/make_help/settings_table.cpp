#include <stdexcept>

#include "days/settings_controls.h"
#include "make_help/facts.h"
#include "make_help/html.h"
#include "storage/settings_file.h"

namespace kelvora::help {
namespace {

constexpr Words kSetting = {"Setting", "Instelling"};
constexpr Words kWhatItDoes = {"What its tip says", "Wat de tip zegt"};
constexpr Words kAtFirst = {"At first", "In het begin"};
constexpr Words kTicked = {"ticked", "aangevinkt"};
constexpr Words kNotTicked = {"not ticked", "niet aangevinkt"};
constexpr Words kChosen = {"chosen", "gekozen"};
constexpr Words kNotChosen = {"not chosen", "niet gekozen"};
constexpr Words kNothing = {"nothing", "niets"};

std::string DefaultInWords(const HelpLanguage& in, const SettingControl& control) {
  const Text value = DefaultOf(control.setting);
  if (control.tick != nullptr) return std::string(in(value == "1" ? kTicked : kNotTicked));
  if (control.option) {
    return std::string(in(value == std::to_string(*control.option) ? kChosen : kNotChosen));
  }
  if (value.empty()) return std::string(in(kNothing));
  return "<code>" + HtmlOf(Utf8FromText(value)) + "</code>";
}

}  // namespace

std::string SettingsTables(const HelpLanguage& in) {
  std::string html;
  std::optional<TextId> page;
  for (const SettingsGroupRow& group : SettingsGroups()) {
    if (page != group.page) html += "<h3>" + Ui(in.Shown(group.page)) + "</h3>\n";
    page = group.page;
    std::vector<std::vector<std::string>> rows;
    for (const SettingControl& control : SettingControls()) {
      if (control.group != group.group) continue;
      rows.push_back(
          {Ui(in.Shown(control.text)), in.Shown(control.tip), DefaultInWords(in, control)});
    }
    html += "<h4>" + Ui(in.Shown(group.title)) + "</h4>\n";
    html += TableOf(
        {std::string(in(kSetting)), std::string(in(kWhatItDoes)), std::string(in(kAtFirst))}, rows);
  }
  return html;
}

}  // namespace kelvora::help
