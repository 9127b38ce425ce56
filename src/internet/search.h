// A search on the food server: what is asked for, what the reply holds, and what is counted.
//
// A search goes on while the window it was begun in stays usable, and it may be given up. It is
// told in steps to the view that shows it. The foods found before stay aside meanwhile; a reply
// that holds none brings them back.
#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "core/program.h"

namespace kelvora {

// "¼" closes a food in a reply and stands nowhere else.
inline constexpr char kFoodEnd = '\xBC';

// More foods than this are not taken from one reply: a list of a million opens at once, and a reply
// that is nothing but ends of foods would ask for gigabytes.
inline constexpr std::size_t kMostFoodsOfReply = 1'000'000;

// The foods of a reply, each without its closing "¼"; nothing if it holds no "¼". What stands
// behind the last one doesn't count. A "¾" is left out: it would make two lines of one food
// wherever that food goes.
[[nodiscard]] std::optional<TextList> FoodsOfReply(std::string_view reply);

// The address of a search. The term is part of it as it stands, up to a line break or a NUL.
[[nodiscard]] std::string SearchAddress(const ServerAddresses& servers, std::string_view term);

// The internet view of the food lists.
class InternetSearchView {
 public:
  // The list is empty now, and nothing can be entered.
  virtual void ShowSearching() = 0;
  // A term can be entered again, and the list is that of before.
  virtual void AllowSearching() = 0;
  // The list is that of the reply, and the term has had its turn.
  virtual void ShowFound() = 0;
  // Nothing was found, and the term has had its turn.
  virtual void ShowNothingFound() = 0;

 protected:
  ~InternetSearchView() = default;
};

class InternetSearch {
 public:
  // `temp_internet` are the foods that the view shows; all three outlive the search.
  InternetSearch(Program& program, TextList& temp_internet, InternetSearchView& view);
  // Lets a search that runs go, without a word.
  ~InternetSearch();
  InternetSearch(const InternetSearch&) = delete;
  InternetSearch& operator=(const InternetSearch&) = delete;

  // Begins a search; nothing while one runs. Its end comes in from the event loop; without a server
  // it ends at once. A failure shows "#F11-51".
  void Zoek_Op_Internet(std::string_view term);
  [[nodiscard]] bool IsRunning() const { return running_; }
  // Ends the search that runs: it counts, shows no box and keeps its term.
  void GiveUp();

 private:
  template <class Part>
  bool RunPartOfSearch(Part part);
  void TakeState(TransferState state);
  void TakeReply();
  void Count();
  void EndTransfer();

  Program& program_;
  TextList& temp_internet_;
  InternetSearchView& view_;
  bool running_ = false;
  Text term_;
  TextList found_before_;
  std::unique_ptr<Transfer> transfer_;
  // Tells a part whether this object is still there behind a box.
  std::shared_ptr<bool> here_ = std::make_shared<bool>(true);
};

}  // namespace kelvora
