#include "core/open_with.h"

#include <gtest/gtest.h>

#include "support/test_program.h"

namespace kelvora {
namespace {

using Parts = std::vector<std::string>;

struct ClosingWindow : WindowView {
  int closed = 0;
  void CloseWindow() override { ++closed; }
  void Set_Taal() override {}
};

TEST(OpenFile, HandsThePathOverAndLeavesTheExportDialog) {
  TestProgram test;
  ClosingWindow dialog;
  test.program.windows.export_html = &dialog;
  OpenFile(test.program, "/reports/week 1.html", ExportDialog::stays);
  EXPECT_EQ(test.opener.opened, Parts{"/reports/week 1.html"});
  EXPECT_TRUE(test.opener.chosen_for.empty());
  EXPECT_EQ(dialog.closed, 0);
}

TEST(OpenFile, ClosesTheExportDialogFirstIfToldTo) {
  TestProgram test;
  ClosingWindow dialog;
  test.program.windows.export_html = &dialog;
  OpenFile(test.program, "https://example.org/", ExportDialog::closes_first);
  EXPECT_EQ(dialog.closed, 1);
  EXPECT_EQ(test.opener.opened, Parts{"https://example.org/"});
}

TEST(OpenFile, WithoutALinkedProgramTheUserChoosesOne) {
  TestProgram test;
  test.opener.knows_a_program = false;
  OpenFile(test.program, "/reports/week.dta", ExportDialog::closes_first);
  EXPECT_EQ(test.opener.chosen_for, Parts{"/reports/week.dta"});
}

TEST(RunProgram, StartsAProgramInItsOwnFolder) {
  TestProgram test;
  RunProgram(test.program, "\"/opt/My Tools/diagnose\" --full \"one file\"");
  ASSERT_EQ(test.opener.started.size(), 1u);
  EXPECT_EQ(test.opener.started[0].program, "/opt/My Tools/diagnose");
  EXPECT_EQ(test.opener.started[0].arguments, (Parts{"--full", "one file"}));
  EXPECT_EQ(test.opener.start_folders, Parts{"/opt/My Tools"});
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST(RunProgram, AProgramThatDoesNotStartShowsItsCode) {
  TestProgram test;
  test.opener.starts = false;
  RunProgram(test.program, "/missing");
  ASSERT_EQ(test.boxes.shown.size(), 1u);
  EXPECT_EQ(test.boxes.shown[0].text,
            "An error occured.\n\nNo such file or directory\nBrelux CODE:#FF8-2");
}

TEST(SplitCommandLine, TakesQuotedAndUnquotedPartsApart) {
  struct Case {
    const char* line;
    const char* program;
    Parts arguments;
  };
  for (const auto& [line, program, arguments] : {
           Case{"", "", {}},
           Case{"   ", "", {}},
           Case{"/bin/tool", "/bin/tool", {}},
           Case{"  /bin/tool   a  b ", "/bin/tool", {"a", "b"}},
           Case{"\"/a b/tool\"", "/a b/tool", {}},
           Case{"\"/a b/tool\"x", "/a b/tool", {"x"}},
           Case{"tool \"\" c", "tool", {"", "c"}},
           Case{"tool \"open end", "tool", {"open end"}},
           Case{"\"", "", {}},
       }) {
    const CommandLine command = SplitCommandLine(line);
    EXPECT_EQ(command.program, program) << line;
    EXPECT_EQ(command.arguments, arguments) << line;
  }
}

}  // namespace
}  // namespace kelvora
