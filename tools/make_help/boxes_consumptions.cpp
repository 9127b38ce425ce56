#include "language/consumption_texts.h"
#include "make_help/boxes.h"

namespace kelvora::help {
namespace {

namespace ct = consumption_text;

// The three lists say the same in their own tables; those of the morning stand for all.
constexpr TextId Morning(std::size_t index) {
  return {TextTable::taal_morning, index};
}
constexpr TextId Afternoon(std::size_t index) {
  return {TextTable::taal_afternoon, index};
}
constexpr TextId Evening(std::size_t index) {
  return {TextTable::taal_evening, index};
}

const std::vector<BoxHelp> kBoxes = {
    {{Morning(ct::kLimitAdd), Morning(ct::kLimitDrop), Afternoon(ct::kLimitAdd),
      Afternoon(ct::kLimitDrop), Evening(ct::kLimitAdd), Evening(ct::kLimitDrop),
      Morning(ct::kLimitReached), Afternoon(ct::kLimitReached), Evening(ct::kLimitReached),
      Morning(ct::kLimitRemove), Afternoon(ct::kLimitRemove), Evening(ct::kLimitRemove)},
     {"The list of this part of the day is full: every portion counts as one.",
      "De lijst van dit deel van de dag is vol: elke portie telt als één."},
     {"Take portions out, put some into another part of the day, or combine foods that you often "
      "eat together into one.",
      "Haal porties weg, zet er een paar in een ander deel van de dag, of voeg voedingsmiddelen "
      "die je vaak samen eet samen tot één."}},
    {{Morning(ct::kCombineTooFew), Afternoon(ct::kCombineTooFew), Evening(ct::kCombineTooFew),
      Morning(ct::kCombineAddMore), Afternoon(ct::kCombineAddMore), Evening(ct::kCombineAddMore)},
     {"There is nothing to combine: the list has too few foods.",
      "Er valt niets samen te voegen: de lijst heeft te weinig voedingsmiddelen."},
     {"Add more foods to this part of the day first.",
      "Voeg eerst meer voedingsmiddelen toe aan dit deel van de dag."}},
    {{Morning(ct::kCombineNoName), Afternoon(ct::kCombineNoName), Evening(ct::kCombineNoName),
      Morning(ct::kCombineEnterName), Afternoon(ct::kCombineEnterName),
      Evening(ct::kCombineEnterName)},
     {"The combined food has no name yet.",
      "Het samengevoegde voedingsmiddel heeft nog geen naam."},
     {"Enter one, such as the name of the dish.",
      "Vul er een in, bijvoorbeeld de naam van het gerecht."}},
    {{Morning(ct::kCombineIllegal), Afternoon(ct::kCombineIllegal), Evening(ct::kCombineIllegal),
      Morning(ct::kCombineHalf), Afternoon(ct::kCombineHalf), Evening(ct::kCombineHalf),
      Morning(ct::kCombineRemove), Afternoon(ct::kCombineRemove), Evening(ct::kCombineRemove)},
     {"The name or the unit holds ½ or ¾.", "In de naam of de eenheid staat ½ of ¾."},
     {"Write 1/2 or 3/4 instead.", "Schrijf in plaats daarvan 1/2 of 3/4."}},
    {{Morning(ct::kCombineExists), Afternoon(ct::kCombineExists), Evening(ct::kCombineExists),
      Morning(ct::kCombineRename), Afternoon(ct::kCombineRename), Evening(ct::kCombineRename)},
     {"Your own list has a food of this name.",
      "In je eigen lijst staat al een voedingsmiddel met deze naam."},
     {"Choose another name.", "Kies een andere naam."}},
    {{Morning(ct::kCombineSaved), Afternoon(ct::kCombineSaved), Evening(ct::kCombineSaved)},
     {"The foods of this part of the day have become one, which is in your own list too. Its name "
      "stands in front of the words.",
      "De voedingsmiddelen van dit deel van de dag zijn er één geworden, dat ook in je eigen lijst "
      "staat. De naam ervan staat voor de woorden."},
     {"Nothing. Ctrl+Z brings the single foods back into the day.",
      "Niets. Met Ctrl+Z komen de losse voedingsmiddelen terug in de dag."}},
};

}  // namespace

BoxGroup BoxesOfConsumptions() {
  return {{"Morning, afternoon and evening", "Ochtend, middag en avond"}, kBoxes};
}

}  // namespace kelvora::help
