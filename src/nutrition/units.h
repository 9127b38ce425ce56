// Metric and imperial units, and the body-mass index. The store is always metric; imperial values
// exist only while they are shown or entered. All constants and named steps are single precision.
//
// Each routine takes and gives text, answers an empty argument with an empty text, and reports a
// failure by its own code.
#pragma once

#include <bit>
#include <cstdint>
#include <optional>

#include "core/failure.h"
#include "platform/locale.h"

namespace kelvora {

inline constexpr float Factor_Lbs = std::bit_cast<float>(std::uint32_t{0x400D1889});    // lb per kg
inline constexpr float Factor_Stone = std::bit_cast<float>(std::uint32_t{0x3D924925});  // st per lb
inline constexpr float Factor_Feet = std::bit_cast<float>(std::uint32_t{0x4051F948});   // ft per m
inline constexpr float Factor_Inch = std::bit_cast<float>(std::uint32_t{0x41400000});   // in per ft
inline constexpr float Factor_Oz = std::bit_cast<float>(std::uint32_t{0x3D107B6E});     // oz per g

// What a conversion needs of the outside: how numbers are written and where a failure shows.
struct UnitContext {
  const Locale& locale;
  FailureBox failures;
};

// Grams to ounces with one decimal at most, "3.5" or "10". Throws std::system_error.
[[nodiscard]] Text OuncesOfGrams(double grams, std::string_view separator);

// Ounces to whole grams, "##0". Throws std::system_error.
[[nodiscard]] Text GramsOfOunces(double ounces, std::string_view separator);

// The first for a text, under its failure code. Makes each comma of `grams` a point.
[[nodiscard]] Text Gram_To_Oz(Text& grams, const UnitContext& context);

// The second likewise. Makes each comma of `ounces` a point.
[[nodiscard]] Text Oz_To_Gram(Text& ounces, const UnitContext& context);

// Pounds to kilograms, unrounded: all fifteen significant digits. Makes each comma of `pounds` a
// point.
[[nodiscard]] Text Lbs_To_Kg(Text& pounds, const UnitContext& context);

// Kilograms to pounds, "##0.00". Makes each comma of `kilograms` a point.
[[nodiscard]] Text Kg_To_Lbs(Text& kilograms, const UnitContext& context);

// Kilograms to stones, "##0.0". Makes each comma of `kilograms` a point.
[[nodiscard]] Text Kg_To_Stones(Text& kilograms, const UnitContext& context);

enum class HeightPart { feet, inches };

// Metres to feet, or to the inches that are left, "##". Inches round without a carry into the
// feet: 5 and 12 is possible, and an exact foot has an empty text for inches. Makes each comma of
// `metres` a point. A height without a decimal part in feet, which is one of 0, is a failure.
[[nodiscard]] Text Meter_To_Feet_Inch(Text& metres, HeightPart part, const UnitContext& context);

// Feet and inches to metres, "0.#0". A comma is no decimal mark here: the arguments come from boxes
// that take points only.
[[nodiscard]] Text Feet_Inch_To_Meter(std::string_view feet, std::string_view inches,
                                      const UnitContext& context);

// Weight over height squared, "##.00". `height` in metres, `weight` in kilograms; each comma of
// both is made a point. A height of 0 is a failure.
[[nodiscard]] Text Bereken_BMI(Text& height, Text& weight, const UnitContext& context);

// The stored date as users of the unit system write it.
[[nodiscard]] Text Format_Datum(std::string_view date, std::string_view opt_system,
                                const UnitContext& context);

// The whole days from the first date to the second, negative if the second lies earlier. Dates are
// six digits, year, month, day, of the years 2000 to 2099; nothing for a text that has not six
// characters. A date that does not exist is a failure, and so are more than 32,767 days.
[[nodiscard]] std::optional<std::int16_t> Dagen_Tussen(std::string_view first,
                                                       std::string_view second,
                                                       const UnitContext& context);

}  // namespace kelvora
