// What a start finds of work that an earlier process did not come to save, and what becomes of it.
#pragma once

#include "storage/recovery_copy.h"

namespace kelvora {

// Offers the recovery copies of processes that no longer live, one by one: to open the day with it,
// to keep it for later or to drop it. A copy that says nothing beyond its day file goes without a
// word; one that can't be read stays where it is.
void OfferRecoveryCopies(Program& program);

// What a day has beyond what its file holds, or lacks of it, in counts: "3 foods more, diary
// longer". Empty if a person would find nothing different. `diary` is as the diary's box has it.
[[nodiscard]] Text DifferencesInWords(const TextTables& texts, const Rec_DayFile& day,
                                      std::string_view diary, const Rec_DayFile& stored);

}  // namespace kelvora
