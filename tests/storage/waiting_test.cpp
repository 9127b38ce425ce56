// Reading and writing files shows that one waits, and no longer than that.
#include "support/waiting.h"

#include <functional>
#include <gtest/gtest.h>

#include "storage/day_file.h"
#include "storage/folders.h"
#include "storage/food_files.h"

namespace kelvora {
namespace {

class WaitingForFiles : public testing::Test {
 protected:
  WaitingForFiles() {
    test.test.OpenDay("Anna");
    program.store.L_gegevens = test.test.program.store.L_gegevens;
    program.store.KV_bestand = "05032004140709.kvf";
    SetCurrentUser(program, "Anna");
    program.store.Custom_list.Add(LineOf({.product = "Bread"}));
    program.store.Favorites_list.Add(LineOf({.product = "Apple"}));
    EXPECT_TRUE(Save_Custom(program, own_file));
    EXPECT_TRUE(Save_Favorites(program, favourites_file));
    EXPECT_TRUE(SaveDay(program));
    SetFileChanged(program, false);
    test.pointer = {};
  }

  // How often the pointer showed that one waits while this was done; it no longer does.
  int WaitsDuring(const std::function<void()>& action) {
    test.pointer.waits = 0;
    action();
    EXPECT_FALSE(test.pointer.waiting);
    return test.pointer.waits;
  }

  WaitingProgram test;
  Program& program = test.program;
  const std::string own_file = CustomFile(program.paths, "Anna");
  const std::string favourites_file = FavoritesFile(program.paths, "Anna");
  const std::string files = UserFolder(program.paths, "Anna") + "Files/";
};

TEST_F(WaitingForFiles, IsShownOncePerFile) {
  EXPECT_EQ(WaitsDuring([this] { Load_Custom(program, own_file); }), 1);
  EXPECT_EQ(WaitsDuring([this] { Load_Favorites(program, favourites_file); }), 1);
  EXPECT_EQ(WaitsDuring([this] { (void)Save_Custom(program, own_file); }), 1);
  EXPECT_EQ(WaitsDuring([this] { (void)Save_Favorites(program, favourites_file); }), 1);
  EXPECT_EQ(WaitsDuring([this] { Load_Databases(program); }), 1);
  EXPECT_EQ(WaitsDuring([this] { (void)SaveDay(program); }), 1);
  EXPECT_EQ(WaitsDuring([this] { LoadDay(program, files, "05032004140709.kvf"); }), 1);
  EXPECT_TRUE(test.test.boxes.shown.empty());
}

TEST_F(WaitingForFiles, EndsWhenTheOpenDayIsKept) {
  SetFileChanged(program, true);
  test.test.boxes.answers = {BoxAnswer::cancel};
  EXPECT_EQ(WaitsDuring([this] { LoadDay(program, files, "05032004140709.kvf"); }), 1);
  EXPECT_EQ(test.test.boxes.shown.size(), 1u);
  EXPECT_TRUE(program.day.FileChanged);
}

TEST_F(WaitingForFiles, IsNotShownForAFileThatIsNotThere) {
  EXPECT_EQ(WaitsDuring([this] { Load_Custom(program, own_file + "x"); }), 0);
  EXPECT_EQ(WaitsDuring([this] { LoadDay(program, files, "another.kvf"); }), 0);
}

}  // namespace
}  // namespace kelvora
