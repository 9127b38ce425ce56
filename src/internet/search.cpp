#include "internet/search.h"

#include <algorithm>
#include <utility>

#include "core/web_address.h"
#include "internet/sending.h"
#include "language/lists_texts.h"
#include "storage/settings_file.h"

namespace kelvora {
namespace {

using namespace lists_text;

constexpr std::string_view kQuery = "?item=";

void AddFood(std::string_view line, TextList& foods) {
  if (line.find(kLineEnd) == line.npos) return foods.Add(line);
  Text one_line(line);
  std::erase(one_line, kLineEnd);
  foods.Add(one_line);
}

void TellOfFailedConnection(Program& program) {
  program.platform.boxes.Show({.title = program.texts[kSearchErrorTitle],
                               .text = JoinLines(program.texts, {kSearchError, kCheckConnection}),
                               .icon = BoxIcon::error});
}

void TellThatNothingWasFound(Program& program, const Text& term) {
  const TextTables& texts = program.texts;
  Tell(program, BoxIcon::information,
       texts[kNothingFound] + " '" + term + "'\n" + texts[kSearchOther]);
}

}  // namespace

std::optional<TextList> FoodsOfReply(std::string_view reply) {
  std::size_t end = reply.find(kFoodEnd);
  if (end == reply.npos) return std::nullopt;
  TextList foods;
  for (std::size_t begin = 0; end != reply.npos && foods.Count() < kMostFoodsOfReply;
       end = reply.find(kFoodEnd, begin)) {
    AddFood(reply.substr(begin, end - begin), foods);
    begin = end + 1;
  }
  return foods;
}

std::string SearchAddress(const ServerAddresses& servers, std::string_view term) {
  return servers.search + std::string(kQuery) + std::string(SendablePart(term));
}

InternetSearch::InternetSearch(Program& program, TextList& temp_internet, InternetSearchView& view)
    : program_(program), temp_internet_(temp_internet), view_(view) {}

InternetSearch::~InternetSearch() {
  *here_ = false;
  EndTransfer();
}

template <class Part>
bool InternetSearch::RunPartOfSearch(Part part) {
  const UserAction action(program_.actions);
  return program_.Guard("#F11-51", part);
}

void InternetSearch::Zoek_Op_Internet(std::string_view term) {
  if (running_) return;
  const auto here = here_;
  const bool done = RunPartOfSearch([&] {
    running_ = true;
    term_ = term;
    found_before_ = std::exchange(temp_internet_, TextList());
    program_.store.txt_internetzoekdata.clear();
    program_.platform.pointer.Hold();
    view_.ShowSearching();
    if (program_.servers.search.empty()) return TakeState(TransferState::error);
    transfer_ = program_.platform.transfers.Get(SearchAddress(program_.servers, term_),
                                                [this](TransferState state) { TakeState(state); });
  });
  if (!done && *here && running_) GiveUp();
}

void InternetSearch::TakeState(TransferState state) {
  const auto here = here_;
  const bool done = RunPartOfSearch([&] {
    if (state == TransferState::error) {
      TellOfFailedConnection(program_);
      if (!*here) return;
    } else {
      program_.store.txt_internetzoekdata = WholeReply(*transfer_);
    }
    TakeReply();
  });
  if (!done && *here && running_) GiveUp();
}

void InternetSearch::TakeReply() {
  const auto here = here_;
  auto found = FoodsOfReply(program_.store.txt_internetzoekdata);
  EndTransfer();
  temp_internet_ = std::move(found_before_);
  Count();
  if (!*here) return;
  view_.AllowSearching();
  if (found) {
    temp_internet_ = *std::move(found);
    return view_.ShowFound();
  }
  TellThatNothingWasFound(program_, term_);
  if (*here) view_.ShowNothingFound();
}

void InternetSearch::GiveUp() {
  if (!running_) return;
  const auto here = here_;
  program_.store.txt_internetzoekdata.clear();
  EndTransfer();
  temp_internet_ = std::move(found_before_);
  Count();
  if (*here) view_.AllowSearching();
}

void InternetSearch::Count() {
  AddToCounter(program_.settings[Setting::SearchCount], 1);
  AddToCounter(program_.settings[Setting::SearchBytes], program_.store.txt_internetzoekdata.size());
  Save_Settings(program_);
}

void InternetSearch::EndTransfer() {
  if (running_) program_.platform.pointer.Release();
  running_ = false;
  transfer_.reset();
}

}  // namespace kelvora
