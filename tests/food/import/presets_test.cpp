// Hand-made tables of each kind that the program knows, and the food that their row becomes. The
// amounts are worked out by hand.
#include "food/import/presets.h"

#include <gtest/gtest.h>

#include "food/import/food_data_central.h"
#include "food/import/table_files.h"

namespace kelvora {
namespace {

using Fields = std::vector<Text>;

class KnownTables : public testing::Test, public TableFiles {};

TEST_F(KnownTables, UsdaSrGivesPortionsOfWholeGrams) {
  const SourceTable table =
      Look(Write("sr.tsv", std::string(kSrHeader) +
                               "01002\tDairy\tButter, whipped\t1 pat (1\" sq)\t3.8\t718\t3005\t0.49"
                               "\t78.3\t45.39\t19.874\t3.331\t2.87\t583\n"));
  EXPECT_EQ(table.known, KnownTable::usda_sr);
  ASSERT_TRUE(Import(table));
  // 4 grams: 3005 kJ x 0.04 = 120.2; (19.874 + 3.331) x 0.04 = 0.9282; 0.583 g x 0.04 = 0.02332.
  EXPECT_EQ(OnlyLine("USDA SR: Dairy.dat"),
            (Fields{"Butter, whipped", "1 pat (1\" sq)", "4", "120.2", "28.72", "0.02", "0.928",
                    "1.816", "0.115", "0.023", "Dairy", ""}));
  ASSERT_TRUE(Import(table, {.portion = PortionChoice::hundred_grams}));
  EXPECT_EQ(OnlyLine("USDA SR: Dairy.dat"),
            (Fields{"Butter, whipped", "100 gram", "100", "3005", "718", "0.49", "23.205", "45.39",
                    "2.87", "0.583", "Dairy", ""}));
}

constexpr std::string_view kCiqual =
    "alim_grp_nom_fr;alim_nom_fr;Energie, Règlement UE N° 1169/2011 (kJ/100 g);"
    "Energie, Règlement UE N° 1169/2011 (kcal/100 g);"
    "Energie, N x facteur Jones, avec fibres  (kJ/100 g);"
    "Energie, N x facteur Jones, avec fibres  (kcal/100 g);"
    "Protéines, N x facteur de Jones (g/100 g);Glucides (g/100 g);Lipides (g/100 g);"
    "AG saturés (g/100 g);AG monoinsaturés (g/100 g);AG polyinsaturés (g/100 g);"
    "Sel chlorure de sodium (g/100 g);Sodium (mg/100 g)\r\n"
    "fruits, légumes;\"Crème; épaisse\";-;;1250;;2,5;< 0,5;30;20,1;8;-;1,5;-\r\n"
    "sel;Bouillon;40;10;;;0;1;0;0;0;0;1,5;100\r\n"_w;
constexpr std::string_view kCream = "Crème; épaisse"_w;
constexpr std::string_view kFruit = "fruits, légumes"_w;

TEST_F(KnownTables, CiqualIsReadInItsCodePageWithItsCommasAndItsWordsForNothing) {
  const SourceTable table = Look(Write("ciqual.csv", kCiqual));
  EXPECT_EQ(table.known, KnownTable::ciqual);
  EXPECT_EQ(table.form.encoding, Encoding::windows_1252);
  const auto set = Import(table);
  ASSERT_TRUE(set);
  // 1250 / 4.2 = 297.619; fat without its parts: 30 - 20.1 = 9.9; salt 1.5 x 0.4 = 0.6.
  EXPECT_EQ(OnlyLine("Ciqual: fruits, légumes.dat"),
            (Fields{Text(kCream), "100 gram", "100", "1250", "297.619", "2.5", "9.9", "20.1", "0",
                    "0.6", Text(kFruit), ""}));
  // Sodium itself goes before salt.
  EXPECT_EQ(OnlyLine("Ciqual: sel.dat")[FoodField::kSodium], "0.1");
  EXPECT_EQ(set->licence, "Licence Ouverte / Open Licence 2.0");
  EXPECT_EQ(set->unknown, 0u);
}

constexpr std::string_view kNevo =
    "\xEF\xBB\xBF\"NEVO-versie/NEVO-version\"|\"Voedingsmiddelgroep\"|\"Food group\"|\"NEVO-code\"|"
    "\"Voedingsmiddelnaam/Dutch food name\"|\"Engelse naam/Food name\"|\"Synoniem\"|"
    "\"Hoeveelheid/Quantity\"|\"ENERCJ (kJ)\"|\"ENERCC (kcal)\"|\"PROT (g)\"|\"FAT (g)\"|"
    "\"FASAT (g)\"|\"FAMSCIS (g)\"|\"FAPU (g)\"|\"CHO (g)\"|\"NA (mg)\"\r\n"
    "\"NEVO 2023\"|\"Brood\"|\"Bread\"|\"236\"|\"Brood tarwe-\"|\"Bread wheat\"|\"bruinbrood\"|"
    "\"per 100g\"|\"1005\"|\"238\"|\"10,2\"|\"2,1\"|\"0,4\"|\"0,5\"|\"0,9\"|\"41,8\"|\"387\"\r\n"
    "\"NEVO 2023\"|\"Dranken\"|\"Drinks\"|\"9\"|\"Sap\"|\"Juice\"|\"\"|\"per 100ml\"|\"180\"|"
    "\"42\"|\"0,5\"|\"0\"|\"0\"|\"0\"|\"0\"|\"9,9\"|\"2\"\r\n";

TEST_F(KnownTables, NevoIsReadInQuotesAndBareWithBothItsLanguages) {
  std::string bare(kNevo);
  std::erase(bare, '"');
  for (const std::string_view text : {kNevo, std::string_view(bare)}) {
    const SourceTable table = Look(Write("nevo.csv", text));
    EXPECT_EQ(table.known, KnownTable::nevo);
    ASSERT_TRUE(Import(table));
    EXPECT_EQ(OnlyLine("NEVO: Brood.dat"),
              (Fields{"Brood tarwe-", "100 gram", "100", "1005", "238", "10.2", "1.4", "0.4",
                      "41.8", "0.387", "Brood", "Bread wheat, bruinbrood"}));
    EXPECT_EQ(OnlyLine("NEVO: Dranken.dat")[1], "100 ml");
  }
}

constexpr std::string_view kOffHeader =
    "code\tproduct_name\tgeneric_name\tbrands\tpnns_groups_1\tcountries_en\tserving_size\t"
    "serving_quantity\tcompleteness\tenergy-kj_100g\tenergy-kcal_100g\tenergy_100g\tfat_100g\t"
    "saturated-fat_100g\tmonounsaturated-fat_100g\tpolyunsaturated-fat_100g\tcarbohydrates_100g\t"
    "proteins_100g\tsalt_100g\tsodium_100g\n";

TEST_F(KnownTables, OpenFoodFactsPutsTheBrandBehindTheNameAndTheBarcodeIntoTheRemark) {
  const SourceTable table = Look(Write(
      "off.csv", std::string(kOffHeader) +
                     "3017620422003\tHazelnut spread\t\tFerrara, Other\tSugary snacks\tFrance\t"
                     "15 g (1 spoon)\t15\t0.9\t\t539\t2255\t30.9\t10.6\t\t\t57.5\t6.3\t0.107\t\n"));
  EXPECT_EQ(table.known, KnownTable::open_food_facts);
  EXPECT_FALSE(table.form.quoted);
  ASSERT_TRUE(Import(table));
  // 15 grams: 2255 x 0.15 = 338.25; (30.9 - 10.6) x 0.15 = 3.045; 0.107 x 0.4 x 0.15 = 0.00642.
  EXPECT_EQ(OnlyLine("Open Food Facts: Sugary snacks.dat"),
            (Fields{"Hazelnut spread, Ferrara", "15 g (1 spoon)", "15", "338.25", "80.85", "0.945",
                    "3.045", "1.59", "8.625", "0.006", "Sugary snacks", "3017620422003"}));
}

TEST_F(KnownTables, OpenFoodFactsIsTakenByCountryCompletenessAndGroup) {
  const auto row = [](const std::string& name, const std::string& group, const std::string& country,
                      const std::string& completeness) {
    return "1\t" + name + "\t\t\t" + group + "\t" + country + "\t\t\t" + completeness +
           "\t400\t\t\t\t\t\t\t\t\t\t\n";
  };
  const SourceTable table = Look(Write(
      "off.csv", std::string(kOffHeader) + row("Here", "Snacks", "France,Netherlands", "0.5") +
                     row("Away", "Snacks", "France", "0.9") +
                     row("Scarce", "Snacks", "Netherlands", "0.4") +
                     row("Other", "Drinks", "Netherlands", "0.8") +
                     row("Unrated", "Snacks", "Netherlands", "")));
  const auto set =
      Import(table, {.groups = {"snacks"}, .country = "netherlands", .completeness = 0.5});
  ASSERT_TRUE(set);
  EXPECT_EQ(set->foods, 1u);
  EXPECT_EQ(OnlyLine("Open Food Facts: Snacks.dat")[0], "Here");
  const auto counts = CountFoods(table, {.country = "netherlands"},
                                 [](std::uint64_t, std::uint64_t) { return true; });
  EXPECT_EQ(counts->foods, 4u);
  EXPECT_EQ(counts->left_out, 1u);
}

class Central : public KnownTables {
 protected:
  Central() {
    Write("fdc/food.csv",
          "\"fdc_id\",\"data_type\",\"description\",\"food_category_id\",\"publication_date\"\n"
          "\"10\",\"branded_food\",\"DATES, \"\"PITTED\"\"\",\"\",\"2020-11-13\"\n"
          "\"11\",\"sr_legacy_food\",\"Rice\",\"20\",\"2019-04-01\"\n"
          "\"12\",\"branded_food\",\"Nothing known\",\"\",\"2020-11-13\"\n");
    Write("fdc/nutrient.csv",
          "\"id\",\"name\",\"unit_name\"\n\"1093\",\"Sodium, Na\",\"MG\"\n\"1003\",\"Protein\","
          "\"G\"\n");
    Write("fdc/food_nutrient.csv",
          "\"id\",\"fdc_id\",\"nutrient_id\",\"amount\"\n"
          "\"1\",\"11\",\"2048\",\"356\"\n\"2\",\"10\",\"1093\",\"714\"\n"
          "\"3\",\"11\",\"2047\",\"360\"\n\"4\",\"10\",\"1008\",\"275\"\n"
          "\"5\",\"10\",\"1003\",\"2.5\"\n\"6\",\"12\",\"1003\",\"2.5\"\n"
          "\"7\",\"99\",\"1003\",\"2.5\"\n\"8\",\"10\",\"1258\",\"120\"\n");
  }
};

TEST_F(Central, JoinsItsFilesByNumber) {
  for (const char* path : {"fdc", "fdc/", "fdc/food.csv"}) {
    const SourceTable table = Look(folder.Path(path));
    EXPECT_EQ(table.known, KnownTable::food_data_central);
    const auto set = Import(table);
    ASSERT_TRUE(set);
    EXPECT_EQ(set->foods, 2u);
    EXPECT_EQ(set->skipped, 1u);
    // 275 kcal x 4.2 = 1155 kJ; 120 g of fat in 100 g is none.
    EXPECT_EQ(OnlyLine("FoodData Central: branded_food.dat"),
              (Fields{"DATES, \"PITTED\"", "100 gram", "100", "1155", "275", "2.5", "0", "0", "0",
                      "0.714", "branded_food", ""}));
    // By the general factors rather than the specific ones.
    EXPECT_EQ(OnlyLine("FoodData Central: 20.dat")[4], "360");
  }
}

TEST_F(Central, TakesTheNamesOfCategoriesWhereTheFolderHasThem) {
  Write("fdc/food_category.csv", "\"id\",\"code\",\"description\"\n\"20\",\"2000\",\"Cereals\"\n");
  ASSERT_TRUE(Import(Look(folder.Path("fdc"))));
  EXPECT_EQ(OnlyLine("FoodData Central: Cereals.dat")[0], "Rice");
}

struct NotedFoods : FoodSink {
  std::vector<Text> lines;
  int skipped = 0;
  void Take(const TableFood& food) override {
    AppendFoodLine(lines.emplace_back(), food.name, food);
  }
  void Skip(std::uint64_t, SkipReason, std::string_view) override { ++skipped; }
  void LeaveOut() override {}
};

TEST_F(Central, GivesTheSameHoweverManyFoodsAreJoinedAtATime) {
  const SourceTable table = Look(folder.Path("fdc"));
  const ImportProgress go_on = [](std::uint64_t done, std::uint64_t all) { return done <= all; };
  NotedFoods at_once;
  ASSERT_TRUE(ReadFoodDataCentral(table, {}, at_once, go_on, 1000));
  ASSERT_EQ(at_once.lines.size(), 2u);
  for (const std::size_t at_a_time : {1, 2, 3}) {
    NotedFoods in_parts;
    ASSERT_TRUE(ReadFoodDataCentral(table, {}, in_parts, go_on, at_a_time));
    EXPECT_EQ(in_parts.lines, at_once.lines);
    EXPECT_EQ(in_parts.skipped, at_once.skipped);
  }
}

TEST_F(Central, NeedsAllItsFiles) {
  std::filesystem::remove(folder.Path("fdc/nutrient.csv"));
  for (const char* path : {"fdc", "fdc/food.csv"}) {
    EXPECT_EQ(std::get<NoSourceTable>(LookAtTable(folder.Path(path))), NoSourceTable::folder);
  }
}

}  // namespace
}  // namespace kelvora
