#include "days/kept_state.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "storage/folders.h"
#include "storage/record_file.h"
#include "support/test_program.h"

namespace kelvora {
namespace {

namespace fs = std::filesystem;

struct KeptStateOfANewUser : testing::Test {
  TestProgram test;
  Program& program = test.program;
  const std::string folder = UserFolder(program.paths, "Anna");
  const KeptState kept{program, folder};
};

TEST_F(KeptStateOfANewUser, EmptyFoldersGoAgain) {
  MakeUserFolders(program.paths, "Anna");
  ASSERT_TRUE(fs::is_directory(folder + "Files"));
  kept.PutBack(program);
  EXPECT_FALSE(fs::exists(folder));
  EXPECT_TRUE(fs::exists(program.paths.UsersPath));
}

TEST_F(KeptStateOfANewUser, WhatHasComeToLieInThemStays) {
  MakeUserFolders(program.paths, "Anna");
  WriteRecord(folder + "Files/a.kvf", Rec_DayFile());
  fs::create_directories(folder + "Databases/Recipes");
  kept.PutBack(program);
  EXPECT_TRUE(fs::is_regular_file(folder + "Files/a.kvf"));
  EXPECT_TRUE(fs::is_directory(folder + "Databases/Recipes"));
  EXPECT_FALSE(fs::exists(folder + "Profile"));
}

TEST_F(KeptStateOfANewUser, FoldersThatWereThereBeforeStay) {
  MakeUserFolders(program.paths, "Bert");
  const KeptState of_bert(program, UserFolder(program.paths, "Bert"));
  of_bert.PutBack(program);
  EXPECT_TRUE(fs::is_directory(UserFolder(program.paths, "Bert") + "Files"));
}

}  // namespace
}  // namespace kelvora
