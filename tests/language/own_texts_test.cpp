#include "language/own_texts.h"

#include <gtest/gtest.h>

#include "language/built_in_texts.h"
#include "language/main_texts.h"

namespace kelvora {
namespace {

TEST(OwnTexts, FollowTheLanguageOfTheTables) {
  TextTables texts;
  EXPECT_EQ(LanguageOf(texts), Language::english);
  Make_Taal_English(texts);
  EXPECT_EQ(LanguageOf(texts), Language::english);
  EXPECT_EQ(OwnTextOf(texts, OwnText::move_to_morning), "Move to the morning");
  Make_Taal_Dutch(texts);
  EXPECT_EQ(LanguageOf(texts), Language::dutch);
  EXPECT_EQ(OwnTextOf(texts, OwnText::move_to_morning), "Verplaats naar de ochtend");
}

TEST(OwnTexts, ATranslationOfAUsersOwnCountsAsEnglish) {
  TextTables texts;
  Make_Taal_English(texts);
  texts[main_text::kFile] = "Fichier";
  EXPECT_EQ(LanguageOf(texts), Language::english);
}

TEST(OwnTexts, AreThereInBothLanguages) {
  for (int id = 0; id < kOwnTextCount; ++id) {
    const auto text = static_cast<OwnText>(id);
    EXPECT_FALSE(OwnTextIn(Language::english, text).empty()) << id;
    EXPECT_FALSE(OwnTextIn(Language::dutch, text).empty()) << id;
    EXPECT_NE(OwnTextIn(Language::english, text), OwnTextIn(Language::dutch, text)) << id;
  }
}

}  // namespace
}  // namespace kelvora
