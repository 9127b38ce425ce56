#include "food/import/columns_panel.h"

#include <algorithm>

#include <QGridLayout>
#include <QHeaderView>
#include <QScrollArea>
#include <QVBoxLayout>

#include "language/own_texts.h"
#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr double kMilligrams = 0.001;
constexpr std::size_t kMostColumns = 300;  // that can be chosen from
constexpr int kColumnWidth = 110;
constexpr int kNameLength = 13;  // of a column, in letters, that has its room
constexpr int kFieldColumns = 2;

struct OfferedField {
  TableField field;
  OwnText caption;
  const char* name;
};

constexpr std::array kOffered = {
    OfferedField{TableField::name, OwnText::field_name, "combo_name"},
    OfferedField{TableField::brand, OwnText::field_brand, "combo_brand"},
    OfferedField{TableField::group, OwnText::field_group, "combo_group"},
    OfferedField{TableField::remark, OwnText::field_remark, "combo_remark"},
    OfferedField{TableField::portion, OwnText::field_portion, "combo_portion"},
    OfferedField{TableField::portion_grams, OwnText::field_portion_grams, "combo_portion_grams"},
    OfferedField{TableField::kj, OwnText::field_kj, "combo_kj"},
    OfferedField{TableField::kcal, OwnText::field_kcal, "combo_kcal"},
    OfferedField{TableField::protein, OwnText::field_protein, "combo_protein"},
    OfferedField{TableField::carbs, OwnText::field_carbs, "combo_carbs"},
    OfferedField{TableField::fat, OwnText::field_fat, "combo_fat"},
    OfferedField{TableField::fat_s, OwnText::field_fat_s, "combo_fat_s"},
    OfferedField{TableField::fat_u, OwnText::field_fat_u, "combo_fat_u"},
    OfferedField{TableField::fat_mono, OwnText::field_fat_mono, "combo_fat_mono"},
    OfferedField{TableField::fat_poly, OwnText::field_fat_poly, "combo_fat_poly"},
    OfferedField{TableField::salt, OwnText::field_salt, "combo_salt"},
    OfferedField{TableField::sodium, OwnText::field_sodium, "combo_sodium"},
};

}  // namespace

ColumnsPanel::ColumnsPanel(Program& program, QWidget* parent) : QWidget(parent), program_(program) {
  model_ = new TextTableModel(this);
  preview_ = new QTableView(this);
  NameWidget(preview_, "table_rows");
  preview_->setModel(model_);
  MakeRowList(preview_);
  preview_->horizontalHeader()->setDefaultSectionSize(kColumnWidth);
  lbl_name_ = NewLabel(this, QStringLiteral("lbl_set_name"));
  txt_name_ = new TextBox(this, QStringLiteral("txt_set_name"), EntryContextOf(program_));
  txt_name_->setMaxLength(40);
  lbl_name_->setBuddy(txt_name_);
  const auto add_box = [this](const char* name) {
    auto* const box = new QCheckBox(this);
    NameWidget(box, name);
    return box;
  };
  chk_header_ = add_box("chk_header");
  chk_portion_ = add_box("chk_of_portion");
  chk_milligrams_ = add_box("chk_milligrams");

  auto* const fields = new QWidget;
  auto* const grid = new QGridLayout(fields);
  for (const OfferedField& offered : kOffered) {
    auto* const label = NewLabel(fields, QStringLiteral("lbl_") + QLatin1String(offered.name));
    auto* const column = new ChoiceList(fields, offered.name);
    column->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    column->setMinimumContentsLength(kNameLength);
    label->setBuddy(column);
    const int place = static_cast<int>(fields_.size());
    grid->addWidget(label, place / kFieldColumns, place % kFieldColumns * 2);
    grid->addWidget(column, place / kFieldColumns, place % kFieldColumns * 2 + 1);
    connect(column, &QComboBox::activated, this, &ColumnsPanel::Changed);
    fields_.push_back({offered.field, label, column});
  }
  const int behind = static_cast<int>(fields_.size());
  grid->addWidget(chk_milligrams_, behind / kFieldColumns, behind % kFieldColumns * 2 + 1);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  auto* const area = new QScrollArea(this);
  NameWidget(area, "area_fields");
  area->setWidget(fields);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  area->setFrameShape(QFrame::NoFrame);

  auto* const name = new QHBoxLayout;
  name->addWidget(lbl_name_);
  name->addWidget(txt_name_, 1);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(preview_, 2);
  layout->addLayout(name);
  layout->addWidget(chk_header_);
  layout->addWidget(chk_portion_);
  layout->addWidget(area, 3);

  connect(txt_name_, &QLineEdit::textChanged, this, [this] {
    if (!showing_) emit Changed();
  });
  for (QCheckBox* const box : {chk_header_, chk_portion_, chk_milligrams_}) {
    connect(box, &QCheckBox::clicked, this, [this] {
      ShowHeader();
      emit Changed();
    });
  }
  SetCaptions();
}

void ColumnsPanel::SetCaptions() {
  const TextTables& texts = program_.texts;
  const auto set = [&](QAbstractButton* button, OwnText text) {
    button->setText(CaptionFrom(OwnTextOf(texts, text)));
    button->setAccessibleName(ToQt(OwnTextOf(texts, text)));
  };
  lbl_name_->setText(ToQt(OwnTextOf(texts, OwnText::import_set_name)));
  txt_name_->setAccessibleName(lbl_name_->text());
  preview_->setAccessibleName(ToQt(OwnTextOf(texts, OwnText::import_preview)));
  set(chk_header_, OwnText::import_first_row);
  set(chk_portion_, OwnText::import_of_portion);
  set(chk_milligrams_, OwnText::import_milligrams);
  for (std::size_t i = 0; i < fields_.size(); ++i) {
    const QString caption = ToQt(OwnTextOf(texts, kOffered[i].caption));
    fields_[i].label->setText(caption + QStringLiteral(":"));
    fields_[i].column->setAccessibleName(caption);
    if (fields_[i].column->count() > 0) {
      fields_[i].column->setItemText(0, ToQt(OwnTextOf(texts, OwnText::import_no_column)));
    }
  }
}

void ColumnsPanel::Show(const SourceTable& table) {
  showing_ = true;
  table_ = table;
  txt_name_->ShowText(table.mapping.name);
  chk_header_->setChecked(table.mapping.has_header);
  chk_portion_->setChecked(table.mapping.of_portion);
  const auto sodium =
      std::ranges::find(table.mapping.columns, TableField::sodium, &TableColumn::field);
  chk_milligrams_->setChecked(sodium != table.mapping.columns.end() && sodium->scale != 1);
  ShowHeader();
  for (const FieldRow& row : fields_) {
    const auto column = std::ranges::find(table.mapping.columns, row.field, &TableColumn::field);
    int place = 0;
    if (column != table.mapping.columns.end()) {
      const auto header = std::ranges::find(table.header, HeaderKey(column->header), HeaderKey);
      if (header != table.header.end()) place = static_cast<int>(header - table.header.begin()) + 1;
    }
    row.column->setCurrentIndex(place < row.column->count() ? place : 0);
  }
  const bool is_own = !table.known;
  txt_name_->setEnabled(is_own);
  for (QCheckBox* const box : {chk_header_, chk_portion_, chk_milligrams_}) box->setEnabled(is_own);
  for (const FieldRow& row : fields_) row.column->setEnabled(is_own);
  showing_ = false;
}

// Headings and names of columns: those of the first row, or numbers.
void ColumnsPanel::ShowHeader() {
  const bool named = chk_header_->isChecked();
  const std::size_t count = std::min(table_.header.size(), kMostColumns);
  std::vector<TextTableModel::Column> columns;
  for (std::size_t i = 0; i < count; ++i) {
    const bool has_name = named && !table_.header[i].empty();
    columns.push_back({has_name ? table_.header[i] : std::to_string(i + 1)});
  }
  const QString none = ToQt(OwnTextOf(program_.texts, OwnText::import_no_column));
  for (const FieldRow& row : fields_) {
    const int chosen = std::max(0, row.column->currentIndex());
    row.column->clear();
    row.column->addItem(none);
    for (const auto& column : columns) row.column->addItem(ToQt(column.heading));
    row.column->setCurrentIndex(chosen < row.column->count() ? chosen : 0);
  }
  auto rows = table_.first_rows;
  if (!named) rows.insert(rows.begin(), table_.header);
  const std::size_t shown = rows.size();
  model_->Show(std::move(columns), shown,
               [rows = std::move(rows)](std::size_t row, std::size_t column) {
                 return column < rows[row].size() ? rows[row][column] : Text();
               });
}

TableMapping ColumnsPanel::Chosen() const {
  TableMapping mapping;
  mapping.name = Text(Trimmed(txt_name_->Entered()));
  mapping.has_header = chk_header_->isChecked();
  mapping.of_portion = chk_portion_->isChecked();
  for (const FieldRow& row : fields_) {
    if (row.column->currentIndex() <= 0) continue;
    const auto place = static_cast<std::size_t>(row.column->currentIndex() - 1);
    TableColumn column{row.field, mapping.has_header ? table_.header[place] : Text(), 1, place};
    if (row.field == TableField::sodium && chk_milligrams_->isChecked()) column.scale = kMilligrams;
    mapping.columns.push_back(std::move(column));
  }
  return mapping;
}

}  // namespace kelvora
