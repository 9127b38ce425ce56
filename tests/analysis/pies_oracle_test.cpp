// Order, shares, wedges and angles of the pie against tests/oracles/make_pies.py.
#include <gtest/gtest.h>
#include <sstream>

#include "analysis/day_charts.h"
#include "analysis/top5_rows.h"
#include "oracles/table.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

// The pieces between the marks; a mark at the end begins an empty one.
std::vector<Text> Parted(const std::string& text, char mark) {
  std::vector<Text> pieces(1);
  for (const char c : text) {
    if (c == mark) {
      pieces.emplace_back();
    } else {
      pieces.back() += c;
    }
  }
  return pieces;
}

void ExpectWedge(const Wedge& wedge, const std::string& expected) {
  SCOPED_TRACE(expected);
  const std::vector<Text> numbers = Parted(expected, ' ');
  ASSERT_EQ(numbers.size(), 5u);
  EXPECT_EQ(wedge.index, static_cast<std::size_t>(NumberOf(numbers[0])));
  EXPECT_EQ(wedge.start, NumberOf(numbers[1]));
  EXPECT_EQ(wedge.end, NumberOf(numbers[2]));
  const Sector sector = SectorOf(wedge, {4000, 3000});
  EXPECT_EQ(sector.start_angle, NumberOf(numbers[3]));
  EXPECT_EQ(sector.end_angle, NumberOf(numbers[4]));
}

TEST(PiesOracle, AgreesOnOrderSharesAndWedges) {
  TestProgram test;
  for (const TableRow& row : ReadTable("pies.tsv", "cells order shares wedges")) {
    SCOPED_TRACE(row[0]);
    Top5 top5;
    Bouw_Top5(test.program, AnalysisWindow::day_summary,
              RowsWith(SummaryColumn::sodium, Parted(row[0], ';')), 5, top5);
    std::vector<Text> names;
    for (const Text& place : Parted(row[1], ';')) names.push_back("Food " + place);
    EXPECT_EQ(top5.lst_naam, names);
    if (row[2] == "stop") {
      EXPECT_TRUE(top5.Graph_pie.empty());
      EXPECT_EQ(top5.lbl_piename[0], "");
      continue;
    }
    const std::vector<Text> shares = Parted(row[2], ';');
    ASSERT_EQ(shares.size(), kTop5Entries);
    for (std::size_t i = 0; i < shares.size(); ++i) {
      EXPECT_NE(top5.lbl_piename[i].find("\n[" + shares[i] + "%"), Text::npos) << i;
    }
    const std::vector<Text> wedges = Parted(row[3], ';');
    ASSERT_EQ(top5.Graph_pie.size(), wedges.size());
    for (std::size_t i = 0; i < wedges.size(); ++i) ExpectWedge(top5.Graph_pie[i], wedges[i]);
  }
  EXPECT_TRUE(test.boxes.shown.empty());
}

}  // namespace
}  // namespace kelvora
