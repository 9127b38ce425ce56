// The names of the commands of the main window. What each of them is, when it can be given and what
// it does stands in core/frame; whoever is below gives one through CoreView.
#pragma once

namespace kelvora {

// Named after the menu items; the two that drop down a menu have a toolbar button only.
enum class Command {
  none,
  mnu_startupwizzard,
  mnu_new,
  mnu_browse,
  mnu_bestand_opslaan,
  mnu_exporteer_html,
  mnu_exporteer_xml,
  mnu_exporteer_dta,
  mnu_properties,
  mnu_file_properties,
  mnu_print_dag,
  mnu_print_reis,
  mnu_bestand_sluiten,
  mnu_in_ochtend,
  mnu_in_middag,
  mnu_in_avond,
  mnu_in_notities,
  mnu_item_info,
  mnu_item_voegtoe,
  mnu_item_del,
  mnu_item_favo,
  mnu_uit_daguittreksel,
  mnu_uit_meerdaagsuittreksel,
  mnu_voedingswaarde_tabel,
  mnu_weegschaal,
  mnu_website_Etenlijn,
  mnu_reset_taal,
  mnu_diagnose,
  mnu_backup,
  mnu_restore,
  mnu_import_foods,
  mnu_help_index,
  mnu_about,
  mnu_website,
  mnu_check_updates,
  mnu_lijst_standaard,
  mnu_lijst_eigen,
  mnu_lijst_favo,
  mnu_lijst_internet,
  print_drop_down,
  consumptions_drop_down,
  quick_default,
  quick_all,
  quick_reset,
};

}  // namespace kelvora
