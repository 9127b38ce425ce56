// What confirming the day dialog changes in memory and on disk, kept so that it can be put back.
#pragma once

#include <string_view>

#include "core/program.h"

namespace kelvora {

class KeptState {
 public:
  // `user` is the one whose folder may come to be meanwhile.
  KeptState(const Program& program, const std::string& user_folder);

  // Makes user, working copy, day and food lists what they were, and removes the folders of a user
  // who had none, as long as nothing lies in them. Windows are left to the caller.
  void PutBack(Program& program) const;

 private:
  Paths paths_;
  Rec_Profile profile_;
  KeptFiles kept_;
  TextList L_gegevens_, Custom_list_, Favorites_list_;
  Text txt_trenddata_, KV_bestand_;
  std::string user_folder_;
  bool had_folder_;
};

}  // namespace kelvora
