#include "food/import/presets.h"

#include <algorithm>

namespace kelvora {
namespace {

using enum TableField;

constexpr double kMilligrams = 0.001;

struct PresetColumn {
  KnownTable table;
  TableField field;
  std::string_view header;
  double scale = 1;
  bool tells = false;  // a table without this column is none of its kind
};

constexpr std::array kColumns = {
    PresetColumn{KnownTable::food_data_central, name, "fdc_id", 1, true},
    PresetColumn{KnownTable::food_data_central, name, "data_type", 1, true},
    PresetColumn{KnownTable::food_data_central, name, "description", 1, true},

    PresetColumn{KnownTable::usda_sr, name, "name", 1, true},
    PresetColumn{KnownTable::usda_sr, group, "group", 1, true},
    PresetColumn{KnownTable::usda_sr, portion, "portion_description", 1, true},
    PresetColumn{KnownTable::usda_sr, portion_grams, "portion_grams", 1, true},
    PresetColumn{KnownTable::usda_sr, kcal, "kcal_100g", 1, true},
    PresetColumn{KnownTable::usda_sr, kj, "kj_100g"},
    PresetColumn{KnownTable::usda_sr, protein, "protein_100g"},
    PresetColumn{KnownTable::usda_sr, fat, "fat_total_100g"},
    PresetColumn{KnownTable::usda_sr, fat_s, "fat_saturated_100g"},
    PresetColumn{KnownTable::usda_sr, fat_mono, "fat_mono_100g"},
    PresetColumn{KnownTable::usda_sr, fat_poly, "fat_poly_100g"},
    PresetColumn{KnownTable::usda_sr, carbs, "carbs_100g"},
    PresetColumn{KnownTable::usda_sr, sodium, "sodium_mg_100g", kMilligrams},

    PresetColumn{KnownTable::ciqual, name, "alim_nom_fr", 1, true},
    PresetColumn{KnownTable::ciqual, group, "alim_grp_nom_fr", 1, true},
    PresetColumn{KnownTable::ciqual, kj, "Energie, Règlement UE N° 1169/2011 (kJ/100 g)"_w, 1,
                 true},
    PresetColumn{KnownTable::ciqual, kj, "Energie, N x facteur Jones, avec fibres (kJ/100 g)"_w},
    PresetColumn{KnownTable::ciqual, kcal, "Energie, Règlement UE N° 1169/2011 (kcal/100 g)"_w},
    PresetColumn{KnownTable::ciqual, kcal,
                 "Energie, N x facteur Jones, avec fibres (kcal/100 g)"_w},
    PresetColumn{KnownTable::ciqual, protein, "Protéines, N x facteur de Jones (g/100 g)"_w},
    PresetColumn{KnownTable::ciqual, fat, "Lipides (g/100 g)"},
    PresetColumn{KnownTable::ciqual, fat_s, "AG saturés (g/100 g)"_w},
    PresetColumn{KnownTable::ciqual, fat_mono, "AG monoinsaturés (g/100 g)"_w},
    PresetColumn{KnownTable::ciqual, fat_poly, "AG polyinsaturés (g/100 g)"_w},
    PresetColumn{KnownTable::ciqual, carbs, "Glucides (g/100 g)"},
    PresetColumn{KnownTable::ciqual, sodium, "Sodium (mg/100 g)", kMilligrams},
    PresetColumn{KnownTable::ciqual, salt, "Sel chlorure de sodium (g/100 g)"},

    PresetColumn{KnownTable::nevo, name, "Voedingsmiddelnaam/Dutch food name", 1, true},
    PresetColumn{KnownTable::nevo, group, "Voedingsmiddelgroep", 1, true},
    PresetColumn{KnownTable::nevo, remark, "Engelse naam/Food name"},
    PresetColumn{KnownTable::nevo, remark, "Synoniem"},
    PresetColumn{KnownTable::nevo, quantity, "Hoeveelheid/Quantity"},
    PresetColumn{KnownTable::nevo, kj, "ENERCJ (kJ)"},
    PresetColumn{KnownTable::nevo, kcal, "ENERCC (kcal)", 1, true},
    PresetColumn{KnownTable::nevo, protein, "PROT (g)"},
    PresetColumn{KnownTable::nevo, fat, "FAT (g)"},
    PresetColumn{KnownTable::nevo, fat_s, "FASAT (g)"},
    PresetColumn{KnownTable::nevo, fat_mono, "FAMSCIS (g)"},
    PresetColumn{KnownTable::nevo, fat_poly, "FAPU (g)"},
    PresetColumn{KnownTable::nevo, carbs, "CHO (g)"},
    PresetColumn{KnownTable::nevo, sodium, "NA (mg)", kMilligrams},

    PresetColumn{KnownTable::open_food_facts, remark, "code", 1, true},
    PresetColumn{KnownTable::open_food_facts, name, "product_name", 1, true},
    PresetColumn{KnownTable::open_food_facts, name, "generic_name"},
    PresetColumn{KnownTable::open_food_facts, brand, "brands"},
    PresetColumn{KnownTable::open_food_facts, group, "pnns_groups_1"},
    PresetColumn{KnownTable::open_food_facts, country, "countries_en"},
    PresetColumn{KnownTable::open_food_facts, completeness, "completeness"},
    PresetColumn{KnownTable::open_food_facts, portion, "serving_size"},
    PresetColumn{KnownTable::open_food_facts, portion_grams, "serving_quantity"},
    PresetColumn{KnownTable::open_food_facts, kj, "energy-kj_100g"},
    PresetColumn{KnownTable::open_food_facts, kj, "energy_100g"},
    PresetColumn{KnownTable::open_food_facts, kcal, "energy-kcal_100g", 1, true},
    PresetColumn{KnownTable::open_food_facts, protein, "proteins_100g"},
    PresetColumn{KnownTable::open_food_facts, fat, "fat_100g"},
    PresetColumn{KnownTable::open_food_facts, fat_s, "saturated-fat_100g"},
    PresetColumn{KnownTable::open_food_facts, fat_mono, "monounsaturated-fat_100g"},
    PresetColumn{KnownTable::open_food_facts, fat_poly, "polyunsaturated-fat_100g"},
    PresetColumn{KnownTable::open_food_facts, carbs, "carbohydrates_100g"},
    PresetColumn{KnownTable::open_food_facts, sodium, "sodium_100g"},
    PresetColumn{KnownTable::open_food_facts, salt, "salt_100g"},
};

constexpr std::array kFacts = {
    KnownTableFacts{KnownTable::food_data_central, "FoodData Central",
                    "U.S. Department of Agriculture, Agricultural Research Service. "
                    "FoodData Central.",
                    "public domain (CC0 1.0)"},
    KnownTableFacts{KnownTable::usda_sr, "USDA SR",
                    "U.S. Department of Agriculture, Agricultural Research Service, Nutrient Data "
                    "Laboratory. USDA National Nutrient Database for Standard Reference.",
                    "public domain"},
    KnownTableFacts{KnownTable::ciqual, "Ciqual", "Anses. Ciqual French food composition table.",
                    "Licence Ouverte / Open Licence 2.0"},
    KnownTableFacts{KnownTable::nevo, "NEVO", "RIVM. NEVO-online.",
                    "for your own use only; may not be passed on"},
    KnownTableFacts{KnownTable::open_food_facts, "Open Food Facts", "Open Food Facts contributors.",
                    "Open Database License (ODbL) 1.0"},
};
static_assert(kFacts.size() == kKnownTableCount);
static_assert(std::ranges::is_sorted(kFacts, {}, &KnownTableFacts::table));

}  // namespace

const KnownTableFacts& FactsOf(KnownTable table) {
  return kFacts[static_cast<std::size_t>(table)];
}

std::optional<KnownTable> Recognise(std::span<const std::string_view> header, Encoding encoding) {
  std::vector<Text> keys;
  for (const std::string_view cell : header) {
    keys.push_back(HeaderKey(ReadCellText(cell, encoding).text));
  }
  for (const KnownTableFacts& facts : kFacts) {
    const bool is_it = std::ranges::all_of(kColumns, [&](const PresetColumn& column) {
      return column.table != facts.table || !column.tells ||
             std::ranges::find(keys, HeaderKey(column.header)) != keys.end();
    });
    if (is_it) return facts.table;
  }
  return std::nullopt;
}

TableMapping MappingOf(KnownTable table) {
  TableMapping mapping;
  mapping.name = FactsOf(table).name;
  if (table == KnownTable::food_data_central) return mapping;
  for (const PresetColumn& column : kColumns) {
    if (column.table == table) {
      mapping.columns.push_back({column.field, Text(column.header), column.scale});
    }
  }
  return mapping;
}

}  // namespace kelvora
