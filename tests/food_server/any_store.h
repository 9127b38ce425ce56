// A test that runs over every kind of store, each time a new and empty one.
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <random>

#include "core/text.h"
#include "food_server/postgres_process.h"
#include "food_server/ranking.h"
#include "food_server/store.h"

namespace kelvora::server {

inline constexpr auto kOn = [] { return true; };

// A food of this name and remark, in the code page.
inline std::string Line(std::string_view name, std::string_view remark = "") {
  std::string line = TextFromUtf8(name);
  for (const char* const field :
       {"100 g", "100", "420", "100", "1", "2", "3", "4", "0.5", "Test"}) {
    line.append("\xBD").append(field);
  }
  return line.append("\xBD").append(TextFromUtf8(remark)).append("\xBD");
}

inline std::vector<std::string_view> Views(const std::vector<std::string>& lines) {
  return {lines.begin(), lines.end()};
}

// What is to be found, by the rules alone.
inline std::vector<std::string> Expected(const std::string& term,
                                         const std::vector<std::string>& lines, std::size_t most) {
  const auto ranked = RankFoods(FoldTerm(term), Views(lines), most);
  return {ranked.begin(), ranked.end()};
}

// Foods whose words come in all frequencies, from one in two to one in all.
inline std::vector<std::string> ManyFoods(std::size_t count) {
  constexpr std::string_view kLetters = "abcdehiknorst";
  std::mt19937 dice(7);
  std::vector<std::string> words{"cheese", "raw", "of", "chicken", "crème"};
  while (words.size() < 400) {
    std::string word;
    for (std::size_t i = 0; i < 2 + dice() % 6; ++i) word += kLetters[dice() % kLetters.size()];
    words.push_back(word);
  }
  const auto word = [&] {
    std::size_t place = 0;
    while (place + 1 < words.size() && dice() % 100 < 97) ++place;
    return words[dice() % 2 == 0 ? dice() % 5 : place];
  };
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < count; ++i) {
    std::string name = word();
    for (std::size_t more = dice() % 5; more > 0; --more)
      name += (dice() % 2 ? " " : ", ") + word();
    lines.push_back(Line(name + " " + std::to_string(i), word() + ", " + word() + " " + word()));
  }
  return lines;
}

class AnyStore : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    std::string pattern =
        (std::filesystem::temp_directory_path() / "kelvora-store-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
    name_ = NewName(GetParam());
    store_ = Open();
  }
  void TearDown() override {
    store_.reset();
    std::filesystem::remove_all(folder_);
  }

  std::string NewName(std::string_view kind) {
    if (kind == "postgres") return test::PostgresProcess::Shared().Fresh();
    return "sqlite:" + folder_ + "/foods" + std::to_string(++stores_) + ".db";
  }
  [[nodiscard]] std::unique_ptr<Store> Open() const { return OpenStore(name_, StoreOptions()); }
  std::vector<std::string> Search(const std::string& term, std::size_t most = 200) {
    return store_->Search(FoldTerm(term), most);
  }
  void Put(const std::vector<std::string>& lines, std::string_view state = "state") {
    ASSERT_TRUE(store_->ReplaceFoods(Views(lines), state, kOn));
  }
  Submission Add(std::string_view name, std::int64_t time = 1000,
                 const std::string& address = "192.0.2.1") {
    Submission submission{.time = time,
                          .food = Line(name),
                          .sender = "me",
                          .address = address,
                          .query = "naam=" + std::string(name)};
    EXPECT_EQ(store_->AddSubmission(submission, {}), Added::yes);
    return store_->Submissions(std::nullopt, 0, 10000).back();
  }
  void Become(const Submission& before, SubmissionState state) {
    Submission changed = before;
    changed.state = state;
    ASSERT_TRUE(store_->ChangeSubmission(before, changed));
  }

  std::string folder_;
  std::string name_;
  std::unique_ptr<Store> store_;

 private:
  int stores_ = 0;
};

}  // namespace kelvora::server
