#include "days/day_field_panel.h"

#include "platform/qt/text.h"

namespace kelvora {
namespace {

// Boxes for more characters than this grow with the dialog.
constexpr std::size_t kShortLimit = 10;

}  // namespace

DayFieldBox::DayFieldBox(Program& program, DayForm& form, DayFieldId id, QWidget* parent)
    : TextBox(parent, ToQt(FieldOfId(id).name), EntryContextOf(program), EntryRuleOf(id)),
      program_(program),
      form_(form),
      id_(id) {
  const DayField& field = FieldOfId(id);
  if (field.filter != KeyFilter::none) setAlignment(Qt::AlignRight);
  if (field.limit <= kShortLimit) {
    // Room for the widest letters, the frame and the cursor.
    const int letters = static_cast<int>(field.limit) + 2;
    setFixedWidth(letters * fontMetrics().horizontalAdvance(QLatin1Char('0')) + 12);
  }
  // The date beside the boxes follows every key.
  if (IsPartOfDate(id)) connect(this, &QLineEdit::textEdited, this, &DayFieldBox::TakeForm);
  connect(this, &QLineEdit::editingFinished, this, &DayFieldBox::TakeForm);
}

// A box that loses the focus in its own destruction still tells of it, and by then the form may be
// gone. What the toolkit has connected stays: it is how others, assistive tools among them, learn
// that the box is gone.
DayFieldBox::~DayFieldBox() {
  disconnect(this, nullptr, this, nullptr);
}

void DayFieldBox::Set_Taal() {
  setAccessibleName(ToQt(program_.texts[FieldOfId(id_).caption]));
}

void DayFieldBox::ShowForm() {
  const DayField& field = FieldOfId(id_);
  ShowText((form_.*field.part).substr(0, field.limit));
}

void DayFieldBox::TakeForm() {
  const DayForm before = form_;
  const Text entered = Entered();
  TakeField(program_, form_, id_, entered);
  // Inches can be cleared.
  if (!(form_.*FieldOfId(id_).part).starts_with(entered)) ShowForm();
  if (form_ != before) emit Taken();
}

}  // namespace kelvora
