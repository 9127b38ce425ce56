// The form that the tests of the day dialog begin with.
#pragma once

#include "days/day_settings.h"

namespace kelvora {

// A form that passes every test.
inline DayForm GoodForm() {
  DayForm form;
  form.pg_0 = "Anna";
  form.pg_1 = "Street 1";
  form.pg_2 = "Second floor";
  form.pg_3 = "Utrecht";
  form.pg_4 = "3511 AB";
  form.pg_5 = "1.80";
  form.pg_6 = "80.5";
  form.pg_7 = "Female";
  form.pg_8 = "42";
  form.pg_9_a = "05";
  form.pg_9_b = "03";
  form.pg_9_c = "04";
  form.pg_10 = "75";
  form.pg_11 = "Friday";
  form.pg_12 = "Netherlands";
  form.pg_13 = "REF-7";
  form.pg_14 = "Runs";
  form.pg_15 = "UT";
  form.type_prioriteit = "5";
  form.txt_kj = "8000";
  form.txt_kcal = "1905";
  form.txt_ovet = "70";
  form.txt_vvet = "20";
  form.txt_nat = "2";
  form.txt_ew = "55";
  form.txt_kdr = "250";
  return form;
}

}  // namespace kelvora
