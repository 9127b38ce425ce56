// A day that is printed, and its page as lines.
#pragma once

#include <gtest/gtest.h>

#include "nutrition/dates.h"
#include "output/page_lines.h"
#include "output/print_pages.h"
#include "output/report_fixture.h"

namespace kelvora {

struct DayPageTest : testing::Test {
  ReportProgram test;

  void SetProfile(std::initializer_list<std::pair<ProfileField, std::string>> fields) {
    for (const auto& [field, value] : fields) test.program.profile[field] = TextFromUtf8(value);
  }
  void OpenDay(std::string_view stored_date = "05-03-04") {
    test.OpenDay("Anna");
    test.program.store.L_gegevens.Replace(HeaderRow::kDate, stored_date);
  }
  // `line` with "|" at the end of each field.
  void Eat(DayPart part, const std::string& line) {
    test.program.store.ListOf(part).Add(Written(line));
  }
  std::string Page(double width) {
    const LocalTime now = test.clock.now;
    return LinesOf(DayPage(test.Context(), test.program.store, width,
                           {ShortDateOf(now, test.locale), ShortTimeOf(now, test.locale)}));
  }
  // What the page has of the only food.
  std::string Row(const std::string& line) {
    Eat(DayPart::morning, line);
    const std::string page = Page(10700);
    const std::size_t row = page.find("400 3200 ");
    return page.substr(row, page.find("200 3600 line") - row);
  }
};

}  // namespace kelvora
