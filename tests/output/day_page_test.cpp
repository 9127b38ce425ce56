// Whole days on paper. With W the width of the sheet, columns are fractions of W - 700 and the
// right edge is W - 300; places, sums and conversions were worked out by hand.
#include "output/day_page_fixture.h"

namespace kelvora {
namespace {

// A4 is 11906 twips wide. Bread comes twice in the morning and once in the evening: one row.
TEST_F(DayPageTest, OfKilogramsAndGramsInEnglish) {
  SetProfile({{ProfileField::name, "Anna"},
              {ProfileField::address_1, "Mill Lane 5"},
              {ProfileField::city, "Leeds"},
              {ProfileField::state, "York"},
              {ProfileField::postcode, "LS1 4AB"},
              {ProfileField::country, "England"},
              {ProfileField::reference, "A-17"},
              {ProfileField::height, "1.80"},
              {ProfileField::weight, "80.5"},
              {ProfileField::goal_weight, "75"}});
  OpenDay();
  const std::string bread = "Bread|1 slice|35|343.5|82|3|0.4|0.2|16|0.172|0||";
  Eat(DayPart::morning, bread);
  Eat(DayPart::morning, bread);
  Eat(DayPart::afternoon, "Milk|1 glass|200|376|90|6.6|1|2|9.4|0.09|0||");
  Eat(DayPart::evening, bread);
  EXPECT_EQ(Page(11906), R"(200 600 10b [Kelvora FOOD Summary of this day]
10706 600 10b [05-03-04]
200 850 line to 11606 850
200 900 10bi [Personal details:]
4482.4 900 10 [Anna]
4482.4 1100 10 [Mill Lane 5]
4482.4 1300 10 []
4482.4 1500 10 [Leeds]
4482.4 1700 10 [York]
4482.4 1900 10 [LS1 4AB]
4482.4 2100 10 [England]
8000 900 10 [Reference ID: A-17]
8000 1100 10 [Date: 05-03-04]
8000 1300 10 [Height: 1.80 Meter]
8000 1500 10 [Weight: 80.50 Kg]
8000 1700 10 [Goal weight: 75.00 Kg]
200 2400 line to 11606 2400
200 2500 10bi [Food items:]
400 2900 8u [Food item:]
4482.4 2900 8u [Unit:]
6163.3 2900 8u [X]
6499.48 2900 8u [Gram]
7283.9 2900 8u [Kj]
7844.2 2900 8u [Kcal]
8404.5 2900 8u [Fat(u)]
8964.8 2900 8u [Fat(s)]
9637.16 2900 8u [Prot.]
10197.46 2900 8u [Sodium]
11093.94 2900 8u [Carb.]
400 3200 8 [Bread]
4482.4 3200 8 [1 slice]
6163.3 3200 8 [3]
6499.48 3200 8 [105]
7283.9 3200 8 [1031]
7844.2 3200 8 [246]
8404.5 3200 8 [1]
8964.8 3200 8 [1]
9637.16 3200 8 [9]
10197.46 3200 8 [0.516]
11093.94 3200 8 [48]
400 3500 8 [Milk]
4482.4 3500 8 [1 glass]
6163.3 3500 8 [1]
6499.48 3500 8 [200]
7283.9 3500 8 [376]
7844.2 3500 8 [90]
8404.5 3500 8 [1]
8964.8 3500 8 [2]
9637.16 3500 8 [7]
10197.46 3500 8 [0.090]
11093.94 3500 8 [9]
200 3900 line to 11606 3900
200 4100 10bi [Total nutritional values:]
4482.4 4100 8 [Weight of the food:]
6499.48 4100 8 [305 gram]
4482.4 4400 8 [Kilojoules:]
6499.48 4400 8 [1407 Kj]
4482.4 4700 8 [Kilocalories:]
6499.48 4700 8 [336 Kcal]
4482.4 5000 8 [Unsaturated fat:]
6499.48 5000 8 [2 gram]
4482.4 5300 8 [Saturated fat:]
6499.48 5300 8 [3 gram]
4482.4 5600 8 [Protein:]
6499.48 5600 8 [16 gram]
4482.4 5900 8 [Sodium:]
6499.48 5900 8 [0.606 gram]
4482.4 6200 8 [Carbohydrates:]
6499.48 6200 8 [57 gram]
200 6500 line to 11606 6500
200 6550 6bi [Printed with Kelvora FOOD on 3/5/04]
11106 6550 6bi [2:07 PM]
)");
}

// Letter is 12240 twips wide. 80.5 and 75 kg are 177.472 and 165.347 pounds; 1.80 m are 5.9055
// feet, and 0.9055 feet 10.87 inches.
TEST_F(DayPageTest, OfPoundsInEnglishWithNothingEaten) {
  test.program.settings[Setting::opt_system] = "1";
  SetProfile({{ProfileField::name, "Anna"},
              {ProfileField::height, "1.80"},
              {ProfileField::weight, "80.5"},
              {ProfileField::goal_weight, "75"}});
  OpenDay();
  EXPECT_EQ(Page(12240), R"(200 600 10b [Kelvora FOOD Summary of this day]
11040 600 10b [03-05-04]
200 850 line to 11940 850
200 900 10bi [Personal details:]
4616 900 10 [Anna]
4616 1100 10 []
4616 1300 10 []
4616 1500 10 []
4616 1700 10 []
4616 1900 10 []
4616 2100 10 []
8000 900 10 [Reference ID: ]
8000 1100 10 [Date: 03-05-04]
8000 1300 10 [Height: 5'11'' Feet, inch]
8000 1500 10 [Weight: 177.47 Lbs]
8000 1700 10 [Goal weight: 165.35 Lbs]
200 2400 line to 11940 2400
200 2500 10bi [Food items:]
400 2900 8u [Food item:]
4616 2900 8u [Unit:]
6347 2900 8u [X]
6693.2 2900 8u [Gram]
7501 2900 8u [Kj]
8078 2900 8u [Kcal]
8655 2900 8u [Fat(u)]
9232 2900 8u [Fat(s)]
9924.4 2900 8u [Prot.]
10501.4 2900 8u [Sodium]
11424.6 2900 8u [Carb.]
200 3300 line to 11940 3300
200 3500 10bi [Total nutritional values:]
4616 3500 8 [Weight of the food:]
6693.2 3500 8 [0 gram]
4616 3800 8 [Kilojoules:]
6693.2 3800 8 [0 Kj]
4616 4100 8 [Kilocalories:]
6693.2 4100 8 [0 Kcal]
4616 4400 8 [Unsaturated fat:]
6693.2 4400 8 [0 gram]
4616 4700 8 [Saturated fat:]
6693.2 4700 8 [0 gram]
4616 5000 8 [Protein:]
6693.2 5000 8 [0 gram]
4616 5300 8 [Sodium:]
6693.2 5300 8 [0.000 gram]
4616 5600 8 [Carbohydrates:]
6693.2 5600 8 [0 gram]
200 5900 line to 11940 5900
200 5950 6bi [Printed with Kelvora FOOD on 3/5/04]
11440 5950 6bi [2:07 PM]
)");
}

// A3 is 16838 twips wide. 70 and 63.5 kg are 11.023 and 9.9995 stones, printed with one decimal and
// then with two; 1.75 m are 5.7415 feet, and 0.7415 feet 8.898 inches. 200, 283.5 and 483.5 grams
// are 7.055, 10.0002 and 17.055 ounces. 10.5 and 60.5 round up. Names keep their commas.
TEST_F(DayPageTest, OfStonesAndOuncesInDutchWithCommas) {
  Make_Taal_Dutch(test.program.texts);
  test.locale.separator = ",";
  test.locale.has_short_form = false;
  test.program.settings[Setting::opt_system] = "2";
  test.program.settings[Setting::opt_gramoz] = "1";
  SetProfile({{ProfileField::name, "Zoë"},
              {ProfileField::address_1, "Dorpsstraat 1"},
              {ProfileField::address_2, "bis"},
              {ProfileField::city, "Nijmegen"},
              {ProfileField::state, "Gelderland"},
              {ProfileField::postcode, "6511 AB"},
              {ProfileField::country, "Nederland"},
              {ProfileField::reference, "42"},
              {ProfileField::height, "1,75"},
              {ProfileField::weight, "70"},
              {ProfileField::goal_weight, "63,5"}});
  OpenDay("29-02-04");
  const std::string cheese = "Kaas, oud|1 plak|100|1600,5|382|25|10|20|0,5|0,8|0||";
  Eat(DayPart::morning, cheese);
  Eat(DayPart::afternoon, "Crème brûlée|1 schaal|283,5|2000|478|10,5|5|15|60|0,1234|0||");
  Eat(DayPart::evening, cheese);
  EXPECT_EQ(Page(16838), R"(200 600 10b [Kelvora FOOD Daguittreksel]
15638 600 10b [29-02-04]
200 850 line to 16538 850
200 900 10bi [Persoonlijke gegevens:]
6455.2 900 10 [Zoë]
6455.2 1100 10 [Dorpsstraat 1]
6455.2 1300 10 [bis]
6455.2 1500 10 [Nijmegen]
6455.2 1700 10 [Gelderland]
6455.2 1900 10 [6511 AB]
6455.2 2100 10 [Nederland]
8000 900 10 [Referentie-ID: 42]
8000 1100 10 [Datum: 29-02-04]
8000 1300 10 [Lengte: 5'9'' Feet, inch]
8000 1500 10 [Gewicht: 11,00 Stones]
8000 1700 10 [Streefgewicht: 10,00 Stones]
200 2400 line to 16538 2400
200 2500 10bi [Voedingsmiddelen:]
400 2900 8u [Voedingsmiddel:]
6455.2 2900 8u [Eenheid:]
8875.9 2900 8u [X]
9360.04 2900 8u [oz]
10489.7 2900 8u [Kj]
11296.6 2900 8u [Kcal]
12103.5 2900 8u [Vet(o)]
12910.4 2900 8u [Vet(v)]
13878.68 2900 8u [Eiwit]
14685.58 2900 8u [Natrium]
15976.62 2900 8u [Koolh.]
400 3200 8 [Kaas, oud]
6455.2 3200 8 [1 plak]
8875.9 3200 8 [2]
9360.04 3200 8 [7,1]
10489.7 3200 8 [3201]
11296.6 3200 8 [764]
12103.5 3200 8 [20]
12910.4 3200 8 [40]
13878.68 3200 8 [50]
14685.58 3200 8 [1,600]
15976.62 3200 8 [1]
400 3500 8 [Crème brûlée]
6455.2 3500 8 [1 schaal]
8875.9 3500 8 [1]
9360.04 3500 8 [10]
10489.7 3500 8 [2000]
11296.6 3500 8 [478]
12103.5 3500 8 [5]
12910.4 3500 8 [15]
13878.68 3500 8 [11]
14685.58 3500 8 [0,123]
15976.62 3500 8 [60]
200 3900 line to 16538 3900
200 4100 10bi [Totale voedingswaarden:]
6455.2 4100 8 [Gewicht van het eten:]
9360.04 4100 8 [17,1 oz]
6455.2 4400 8 [Kilojoules:]
9360.04 4400 8 [5201 Kj]
6455.2 4700 8 [Kilocalorieën:]
9360.04 4700 8 [1242 Kcal]
6455.2 5000 8 [Onverzadigd vet:]
9360.04 5000 8 [25 gram]
6455.2 5300 8 [Verzadigd vet:]
9360.04 5300 8 [55 gram]
6455.2 5600 8 [Eiwit:]
9360.04 5600 8 [61 gram]
6455.2 5900 8 [Natrium:]
9360.04 5900 8 [1,723 gram]
6455.2 6200 8 [Koolhydraten:]
9360.04 6200 8 [61 gram]
200 6500 line to 16538 6500
200 6550 6bi [Afgedrukt met Kelvora FOOD op 05-03-2004]
16038 6550 6bi [14:07]
)");
}

// 150 and 300 grams are 5.291 and 10.582 ounces. The same food from the own list and from a
// category is two lines. A weight that is empty has no number.
TEST_F(DayPageTest, OfKilogramsAndOuncesInDutch) {
  Make_Taal_Dutch(test.program.texts);
  test.program.settings[Setting::opt_gramoz] = "1";
  SetProfile({{ProfileField::name, "Zoë"},
              {ProfileField::height, "1,8"},
              {ProfileField::goal_weight, "0"}});
  OpenDay();
  const std::string apple = "Appel à € 1|1 stuk|150|330|79|0.4|0.3|0.1|18|0.002|Fruit||";
  Eat(DayPart::evening, apple + "Fruit.dat|");
  Eat(DayPart::evening, apple);
  EXPECT_EQ(Page(10700), R"(200 600 10b [Kelvora FOOD Daguittreksel]
9500 600 10b [05-03-04]
200 850 line to 10400 850
200 900 10bi [Persoonlijke gegevens:]
4000 900 10 [Zoë]
4000 1100 10 []
4000 1300 10 []
4000 1500 10 []
4000 1700 10 []
4000 1900 10 []
4000 2100 10 []
8000 900 10 [Referentie-ID: ]
8000 1100 10 [Datum: 05-03-04]
8000 1300 10 [Lengte: 1,8 Meter]
8000 1500 10 [Gewicht:  Kg]
8000 1700 10 [Streefgewicht: 0.00 Kg]
200 2400 line to 10400 2400
200 2500 10bi [Voedingsmiddelen:]
400 2900 8u [Voedingsmiddel:]
4000 2900 8u [Eenheid:]
5500 2900 8u [X]
5800 2900 8u [oz]
6500 2900 8u [Kj]
7000 2900 8u [Kcal]
7500 2900 8u [Vet(o)]
8000 2900 8u [Vet(v)]
8600 2900 8u [Eiwit]
9100 2900 8u [Natrium]
9900 2900 8u [Koolh.]
400 3200 8 [Appel à € 1]
4000 3200 8 [1 stuk]
5500 3200 8 [1]
5800 3200 8 [5.3]
6500 3200 8 [330]
7000 3200 8 [79]
7500 3200 8 [0]
8000 3200 8 [0]
8600 3200 8 [0]
9100 3200 8 [0.002]
9900 3200 8 [18]
400 3500 8 [Appel à € 1]
4000 3500 8 [1 stuk]
5500 3500 8 [1]
5800 3500 8 [5.3]
6500 3500 8 [330]
7000 3500 8 [79]
7500 3500 8 [0]
8000 3500 8 [0]
8600 3500 8 [0]
9100 3500 8 [0.002]
9900 3500 8 [18]
200 3900 line to 10400 3900
200 4100 10bi [Totale voedingswaarden:]
4000 4100 8 [Gewicht van het eten:]
5800 4100 8 [10.6 oz]
4000 4400 8 [Kilojoules:]
5800 4400 8 [660 Kj]
4000 4700 8 [Kilocalorieën:]
5800 4700 8 [158 Kcal]
4000 5000 8 [Onverzadigd vet:]
5800 5000 8 [1 gram]
4000 5300 8 [Verzadigd vet:]
5800 5300 8 [0 gram]
4000 5600 8 [Eiwit:]
5800 5600 8 [1 gram]
4000 5900 8 [Natrium:]
5800 5900 8 [0.004 gram]
4000 6200 8 [Koolhydraten:]
5800 6200 8 [36 gram]
200 6500 line to 10400 6500
200 6550 6bi [Afgedrukt met Kelvora FOOD op 3/5/04]
9900 6550 6bi [2:07 PM]
)");
}

}  // namespace
}  // namespace kelvora
