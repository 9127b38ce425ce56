#include "days/user_list.h"

#include "storage/folders.h"
#include "storage/record_file.h"

namespace kelvora {

void ReadUserNames(Program& program, TextList& names) {
  program.store.lst_data_dir = SubFoldersOf(program.paths.UsersPath);
  for (const std::string_view folder : program.store.lst_data_dir) {
    const Rec_Profile& profile =
        DecodeOrKeepRecord(ReadFile(ProfileFile(program.paths, folder)), program.last_read.profile);
    names.Add(profile[ProfileField::name]);
  }
}

}  // namespace kelvora
