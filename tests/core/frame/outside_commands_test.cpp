#include "core/frame/outside_commands.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "language/built_in_texts.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

class OutsideCommands : public testing::Test {
 protected:
  OutsideCommands() { std::filesystem::create_directories(Folder()); }

  [[nodiscard]] const std::string& Folder() const { return test.program.paths.ProgramPath; }
  void Put(const std::string& name, std::string_view content) {
    const std::filesystem::path path = Folder() + name;
    std::filesystem::create_directories(path.parent_path());
    WriteFileAnew(path.string(), content);
  }
  // The text of the one box that was shown.
  Text OnlyBox() {
    EXPECT_EQ(test.boxes.shown.size(), 1u);
    return test.boxes.shown.empty() ? Text() : test.boxes.shown.back().text;
  }

  TestProgram test;
};

TEST_F(OutsideCommands, HomePagesOpenInTheBrowser) {
  Put("servers.conf",
      "dutch = http://nl.example\nenglish = https://en.example\nwebsite = http://www.example\n");
  OpenWebsite(test.program);
  OpenFoodServerHomePage(test.program);
  test.program.settings[Setting::opt_server] = "1";
  OpenFoodServerHomePage(test.program);
  EXPECT_EQ(test.opener.opened, (std::vector<std::string>{"http://www.example", "http://nl.example",
                                                          "https://en.example"}));
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(OutsideCommands, AnUnknownHomePageIsTold) {
  Put("servers.conf", "dutch = http://nl.example\n");
  OpenWebsite(test.program);
  EXPECT_TRUE(test.opener.opened.empty());
  EXPECT_EQ(OnlyBox(),
            "Kelvora FOOD does not know the address of this website.\n"
            "Fill in the address in the file 'servers.conf' and start Kelvora FOOD again.");
  EXPECT_EQ(test.boxes.shown[0].icon, BoxIcon::warning);
}

TEST_F(OutsideCommands, WithoutServersConfEveryHomePageIsUnknown) {
  OpenFoodServerHomePage(test.program);
  OpenWebsite(test.program);
  EXPECT_TRUE(test.opener.opened.empty());
  EXPECT_EQ(test.boxes.shown.size(), 2u);
}

TEST_F(OutsideCommands, TheDiagnoseProgramRunsInTheFolderOfTheProgram) {
  Put("Diagnoza.exe", "");
  RunDiagnose(test.program);
  ASSERT_EQ(test.opener.started.size(), 1u);
  EXPECT_EQ(test.opener.started[0].program, Folder() + "Diagnoza.exe");
  EXPECT_TRUE(test.opener.started[0].arguments.empty());
  EXPECT_EQ(test.opener.start_folders[0] + "/", Folder());
  EXPECT_TRUE(test.boxes.shown.empty());
}

TEST_F(OutsideCommands, AMissingDiagnoseProgramIsToldWithTheFolder) {
  RunDiagnose(test.program);
  EXPECT_TRUE(test.opener.started.empty());
  EXPECT_EQ(OnlyBox(),
            "The program 'Diagnoza.exe' could not be found.\n"
            "It should be in this folder:\n" +
                Folder() + "\n\nPut the program in this folder and try again.");
}

TEST_F(OutsideCommands, ADiagnoseProgramThatDoesNotStartIsAFailure) {
  Put("Diagnoza.exe", "");
  test.opener.starts = false;
  RunDiagnose(test.program);
  EXPECT_TRUE(OnlyBox().ends_with("Brelux CODE:#FF8-2"));
}

TEST_F(OutsideCommands, TheHelpOpensInTheLanguageOfTheTexts) {
  Put("help/en/index.html", "");
  Put("help/nl/index.html", "");
  OpenHelp(test.program);
  Make_Taal_Dutch(test.program.texts);
  OpenHelp(test.program);
  EXPECT_EQ(test.opener.opened, (std::vector<std::string>{Folder() + "help/en/index.html",
                                                          Folder() + "help/nl/index.html"}));
}

TEST_F(OutsideCommands, APageOfTheHelpOpensByItsName) {
  Put("help/en/years.html", "");
  OpenHelp(test.program, "years");
  EXPECT_EQ(test.opener.opened, (std::vector<std::string>{Folder() + "help/en/years.html"}));
}

TEST_F(OutsideCommands, AMissingPageIsToldThoughOthersAreThere) {
  Put("help/en/index.html", "");
  OpenHelp(test.program, "years");
  EXPECT_TRUE(test.opener.opened.empty());
  EXPECT_TRUE(OnlyBox().ends_with("\n" + Folder() + "help/en/"));
}

TEST_F(OutsideCommands, MissingHelpPagesAreToldWithTheirFolder) {
  Put("help/nl/index.html", "");
  OpenHelp(test.program);
  EXPECT_TRUE(test.opener.opened.empty());
  EXPECT_EQ(OnlyBox(),
            "The help pages of Kelvora FOOD could not be found.\n"
            "They should be in this folder:\n" +
                Folder() + "help/en/");
}

}  // namespace
}  // namespace kelvora
