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

TEST(OwnTexts, NameTheCodeOfTheirLanguage) {
  TextTables texts;
  EXPECT_EQ(LanguageCodeOf(texts), "en");
  Make_Taal_Dutch(texts);
  EXPECT_EQ(LanguageCodeOf(texts), "nl");
  // Dutch texts of a user's own without a companion, or with one from before there was a code.
  texts.own.clear();
  EXPECT_EQ(LanguageCodeOf(texts), "nl");
  texts.own.resize(kOwnTextCount);
  EXPECT_EQ(LanguageCodeOf(texts), "nl");
  texts.own[static_cast<std::size_t>(OwnText::language_code)] = "de";
  EXPECT_EQ(LanguageCodeOf(texts), "de");
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
