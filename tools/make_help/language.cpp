#include "make_help/language.h"

#include "core/common.h"
#include "language/built_in_texts.h"
#include "make_help/html.h"

namespace kelvora::help {

std::string HelpLanguage::Shown(TextId id) const {
  return HtmlOf(Utf8FromText(Trimmed(texts[id])));
}

std::string HelpLanguage::Shown(OwnText id) const {
  return HtmlOf(Utf8FromText(Trimmed(OwnTextOf(texts, id))));
}

std::vector<HelpLanguage> HelpLanguages() {
  std::vector<HelpLanguage> languages(2);
  HelpLanguage& english = languages[0];
  english.code = "en";
  Make_Taal_English(english.texts);
  HelpLanguage& dutch = languages[1];
  dutch.language = Language::dutch;
  dutch.code = "nl";
  Make_Taal_Dutch(dutch.texts);
  for (HelpLanguage& each : languages) each.texts.own = OwnTextsIn(each.language);
  return languages;
}

}  // namespace kelvora::help
