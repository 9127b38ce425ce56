#include "days/kept_state.h"

#include <filesystem>

namespace kelvora {
namespace {

namespace fs = std::filesystem;

bool IsThere(const std::string& folder) {
  std::error_code ignored;
  return fs::exists(folder, ignored);
}

}  // namespace

KeptState::KeptState(const Program& program, const std::string& user_folder)
    : paths_(program.paths),
      profile_(program.profile),
      kept_(program.kept),
      L_gegevens_(program.store.L_gegevens),
      Custom_list_(program.store.Custom_list),
      Favorites_list_(program.store.Favorites_list),
      txt_trenddata_(program.store.txt_trenddata),
      KV_bestand_(program.store.KV_bestand),
      user_folder_(user_folder),
      had_folder_(IsThere(user_folder)) {}

void KeptState::PutBack(Program& program) const {
  program.paths = paths_;
  program.profile = profile_;
  // A profile that was deleted and not written is unwritten work of its user.
  if (program.kept.profile.path != kept_.profile.path) program.kept = kept_;
  KV_data& store = program.store;
  store.L_gegevens = L_gegevens_;
  store.Custom_list = Custom_list_;
  store.Favorites_list = Favorites_list_;
  store.txt_trenddata = txt_trenddata_;
  store.KV_bestand = KV_bestand_;
  if (had_folder_) return;
  std::error_code ignored;
  for (const char* folder : {"Profile", "Files", "Databases", ""}) {
    fs::remove(user_folder_ + folder, ignored);
  }
}

}  // namespace kelvora
