// What was submitted, in the embedded store.
#include "food_server/sqlite_connections.h"

namespace kelvora::server {
namespace {

std::uint64_t CountOf(Statement::Rows rows) {
  return rows.Next() ? static_cast<std::uint64_t>(rows.Number(0)) : 0;
}

}  // namespace

Added SqliteStore::AddSubmission(const Submission& submission, const SubmissionLimits& limits) {
  return WithWriter([&](Writer& writer) {
    if (limits.of_address > 0 && CountOf(writer.count_address.Query(
                                     submission.address, limits.since)) >= limits.of_address) {
      return Added::too_many_of_address;
    }
    constexpr auto kUnchecked = static_cast<std::int64_t>(SubmissionState::unchecked);
    if (limits.unchecked > 0 && CountOf(writer.count_state.Query(kUnchecked)) >= limits.unchecked) {
      return Added::too_many_unchecked;
    }
    writer.add.Run(kUnchecked, submission.time, Blob{submission.food}, Blob{submission.sender},
                   submission.address, Blob{submission.query});
    return Added::yes;
  });
}

std::vector<Submission> SqliteStore::Submissions(std::optional<SubmissionState> state,
                                                 std::int64_t after, std::size_t most) {
  return WithReader([&](Reader& reader) {
    const auto limit = static_cast<std::int64_t>(most);
    std::vector<Submission> submissions;
    const auto take_all = [&submissions](Statement::Rows rows) {
      while (rows.Next()) submissions.push_back(ReadSubmission(rows));
    };
    if (state) {
      take_all(reader.submissions.Query(after, static_cast<std::int64_t>(*state), limit));
    } else {
      take_all(reader.submissions.Query(after, nullptr, limit));
    }
    return submissions;
  });
}

std::optional<Submission> SqliteStore::FindSubmission(std::int64_t number) {
  return WithReader([number](Reader& reader) {
    auto rows = reader.one_submission.Query(number);
    return rows.Next() ? std::optional(ReadSubmission(rows)) : std::nullopt;
  });
}

bool SqliteStore::ChangeSubmission(const Submission& before, const Submission& changed) {
  return WithWriter([&](Writer& writer) {
    std::optional<std::int64_t> place;
    {
      auto rows = writer.one_submission.Query(before.number);
      if (!rows.Next()) return false;
      const Submission now = ReadSubmission(rows);
      if (now.state != before.state || now.food != before.food) return false;
      if (!rows.IsNull(7)) place = rows.Number(7);
    }
    if (place) writer.CurrentSlot().Remove(*place);
    const auto state = static_cast<std::int64_t>(changed.state);
    if (changed.state == SubmissionState::accepted) {
      const std::int64_t new_place = writer.AddFood(changed.food);
      writer.change.Run(before.number, state, Blob{changed.food}, new_place);
    } else {
      writer.change.Run(before.number, state, Blob{changed.food}, nullptr);
    }
    return true;
  });
}

void SqliteStore::CopySubmissions(std::span<const Submission> submissions) {
  (void)WithWriter([&](Writer& writer) {
    for (const Submission& one : submissions) {
      const auto copy = [&](auto place) {
        writer.copy.Run(one.number, static_cast<std::int64_t>(one.state), one.time, Blob{one.food},
                        Blob{one.sender}, one.address, Blob{one.query}, place);
      };
      if (one.state == SubmissionState::accepted) {
        copy(writer.AddFood(one.food));
      } else {
        copy(nullptr);
      }
    }
    return true;
  });
}

}  // namespace kelvora::server
