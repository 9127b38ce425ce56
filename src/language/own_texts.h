// The program's own texts, which have no place in the numbered tables. They are a table of their
// own, filled from the companion of the language file (own_text_file.h); a text that it lacks is
// English.
#pragma once

#include "language/tables.h"

namespace kelvora {

enum class Language { english, dutch };

// The language of the loaded texts, told by the caption of the first menu. A translation that users
// made themselves counts as English.
[[nodiscard]] Language LanguageOf(const TextTables& texts);

enum class OwnText {
  // The menu of the foods of one part of the day.
  move_to_morning,
  move_to_afternoon,
  move_to_evening,
  cut_foods,
  paste_foods,
  take_portion_out,
  add_to_favourites,
  // What the rows of a food list can be added to.
  add_to_morning,
  add_to_afternoon,
  add_to_evening,
  // What an empty food list says.
  empty_own_list,
  empty_favourites,
  empty_results,
  // Another users folder while the data of a user is open.
  folder_holds_other_data,
  folder_replace_question,
  folder_press_no,
  folder_from_now_on,  // the folder follows
  // Before a food is replaced that is not the one that was opened; "%1" is the name of both.
  replace_other_food,
  // Which box of a new food is wrong; "%1" is its caption.
  look_at_box,
  no_food_server,  // why a food can't be added to the internet database
  // Before a category of other foods is replaced by the own list; "%1" is its name.
  replace_category,
  // Before a file of the user is written over that this program has not seen, or no more.
  own_list_differs,
  favourites_differ,
  profile_differs,
  replaces_file,
  replace_file_sure,
  // Before work is left behind that could not be saved.
  own_list_unsaved,
  favourites_unsaved,
  profile_unsaved,
  go_on_without_saving,
  // What a text box says of what it didn't take; the characters follow.
  character_left_out,
  characters_left_out,
  whole_numbers_only,
  // The weekdays, where the system's own words can't be used.
  sunday,
  monday,
  tuesday,
  wednesday,
  thursday,
  friday,
  saturday,
  // What the day dialog says to a name that no folder can have.
  name_not_possible,
  name_advice,
  // Before a diary is left that was changed and not saved, and when not all of a paste has room.
  diary_unsaved,
  diary_save_first,
  diary_cut,
  diary_cut_tip,
  // What the rows of a food list can be compared as.
  compare_as_food_1,
  compare_as_food_2,
  // Before a page is printed that is longer or wider than the sheet.
  sheet_too_small,
  no_printer_chosen,  // what the list of printers says until one is
  // What the list of foods from the internet says while it is empty, and while a search runs.
  empty_internet_list,
  search_runs,
  sent_under_name,   // who a food is sent to the server by; "%1" is the name
  no_update_server,  // why no newer version can be looked for
  copy_foods,
  undo_foods,
  redo_foods,
  take_over_from,  // the entry that opens the dialog; then its title, captions and buttons
  take_over_title,
  take_over_day,
  take_over_foods,
  take_over,
  take_over_whole_day,
  often,  // the button of what was eaten often, its tip, and what the list says without a food
  often_tip,
  empty_often,
  // Before a day is saved over a file that something else has written to.
  day_differs,
  // What a start offers of a day that was not saved when the program ended.
  recovery_found,
  recovery_user,
  recovery_day,
  recovery_made,
  recovery_differs,
  recovery_no_file,
  recovery_saved_since,
  recovery_no_user,
  recovery_open,
  recovery_drop,
  recovery_keep,
  // What a copy has beyond a saved day, or lacks of it; "%1" is a count.
  food_more,
  foods_more,
  food_less,
  foods_less,
  foods_moved,
  diary_longer,
  diary_shorter,
  diary_changed,
  day_settings_changed,
  // The code of the language, "en", by which the toolkit's own translations are found.
  language_code,
  // What assistive tools call the two toolbars of a consumption window, and the button behind which
  // those of a toolbar wait that find no room.
  toolbar_of_panels,
  toolbar_of_row,
  more_buttons,
  // Making a backup; "%1" is a count or a path.
  menu_backup,
  menu_restore,
  backup_title,
  backup_info,
  backup_whom,
  backup_all_users,
  backup_unsaved,
  backup_remind,
  backup_no_users,
  backup_start,
  backup_prompt,
  backup_progress,
  backup_done,
  backup_incomplete,
  days_without_backup,
  days_without_backup_tip,
  // Bringing a backup back.
  restore_title,
  restore_prompt,
  restore_reading,
  restore_no_backup,
  restore_encrypted,
  restore_damaged,
  restore_foreign,
  restore_users,
  restore_days,
  restore_files,
  restore_what,
  restore_here,
  restore_profile,
  restore_own_list,
  restore_favourites,
  restore_absent,
  restore_same,
  restore_differs,
  restore_when_different,
  restore_keep_both,
  restore_take_backup,
  restore_keep_mine,
  restore_start,
  restore_done,
  restore_unchanged,
  restore_stopped,
  carrying_close,
  carrying_cancel,
  // What the list says while no name begins with what is typed.
  no_name_begins,
  // The part of the day that Enter in the food lists adds to.
  enter_adds_to_morning,
  enter_adds_to_afternoon,
  enter_adds_to_evening,
  // How much of a food: the caption of its box, its tip, the entry of menus, and what is said to an
  // amount that can't be added.
  amount,
  amount_tip,
  other_amount,
  amount_not_read,
  amount_too_much,
  amount_no_weight,
  // Bringing in tables of foods.
  menu_import,
  import_title,
  import_choose_file,
  import_choose_folder,
  import_nothing_chosen,
  import_taken_for,
  import_unknown_table,
  import_table,
  import_page_foods,
  import_page_columns,
  import_page_sets,
  import_groups,
  import_portions,
  import_portion_serving,
  import_portion_hundred,
  import_country,
  import_completeness,
  import_count,
  import_import,
  import_stop,
  import_close,
  import_remove,
  import_sets,
  import_no_group,
  import_progress,
  import_preview,
  import_set_name,
  import_first_row,
  import_of_portion,
  import_no_column,
  import_milligrams,
  import_foods_found,
  import_left_out,
  import_skipped,
  import_unknown_amounts,
  import_no_name,
  import_unreadable,
  import_no_energy,
  import_header,
  import_quote,
  import_too_long,
  import_cut,
  import_foods_added,
  import_no_foods,
  import_remove_question,
  import_licence_question,
  import_empty,
  import_compressed,
  import_utf16,
  import_binary,
  import_column,
  import_folder_incomplete,
  licence_fdc,
  licence_sr,
  licence_ciqual,
  licence_nevo,
  licence_off,
  field_name,
  field_brand,
  field_group,
  field_remark,
  field_portion,
  field_portion_grams,
  field_kj,
  field_kcal,
  field_protein,
  field_fat,
  field_fat_u,
  field_fat_s,
  field_fat_mono,
  field_fat_poly,
  field_carbs,
  field_sodium,
  field_salt,
  favourite_unknown,
  category_remove,  // with the name of the imported set
};

[[nodiscard]] Text OwnTextOf(const TextTables& texts, OwnText id);

// The code of the loaded language, as its own texts give it; one that has none is English or Dutch
// like its texts.
[[nodiscard]] Text LanguageCodeOf(const TextTables& texts);

// All of them in one language, as they are part of the program.
[[nodiscard]] std::vector<Text> OwnTextsIn(Language language);

// The text with `name` in the place of its "%1".
[[nodiscard]] Text OwnTextWith(const TextTables& texts, OwnText id, std::string_view name);

// The text in one language, whatever is loaded.
[[nodiscard]] Text OwnTextIn(Language language, OwnText id);

inline constexpr int kOwnTextCount = 221;

}  // namespace kelvora
