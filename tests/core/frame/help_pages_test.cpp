#include "core/frame/help_pages.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace kelvora {
namespace {

TEST(HelpPages, TheInnermostWindowWithAPageCounts) {
  EXPECT_EQ(HelpPageOf({"txt_zoeken", "Pic_zoek", "KV_tb_lijsten", "", "KV_Core"}), "finding-food");
  EXPECT_EQ(HelpPageOf({"chk_wiz", "", "KV_properties", "KV_Core"}), "settings");
  EXPECT_EQ(HelpPageOf({"message_box", "KV_properties", "KV_Core"}), "trouble");
}

TEST(HelpPages, WhatHasNoneOpensTheFirst) {
  EXPECT_EQ(HelpPageOf({"KV_data", "KV_Core"}), "index");
  EXPECT_EQ(HelpPageOf({"qt_something", ""}), "index");
  EXPECT_EQ(HelpPageOf({}), "index");
}

TEST(HelpPages, EveryWindowLeadsToAPageThatThereIs) {
  for (const auto& [window, page] : WindowPages()) {
    EXPECT_EQ(std::ranges::count(HelpPages(), page), 1) << window;
  }
}

TEST(HelpPages, EachStandsOnceAndTheFirstOneFirst) {
  const std::set<std::string_view> pages(HelpPages().begin(), HelpPages().end());
  EXPECT_EQ(pages.size(), HelpPages().size());
  EXPECT_EQ(HelpPages().front(), kFirstHelpPage);
}

}  // namespace
}  // namespace kelvora
