#include "core/frame/data_window.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>

#include "platform/qt/look.h"
#include "platform/qt/text.h"

namespace kelvora {
namespace {

constexpr QSize kSize{760, 420};
constexpr int kMemberWidth = 220;

}  // namespace

DataWindow::DataWindow(Program& program, QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::WindowStaysOnTopHint), program_(program) {
  NameWidget(this, "KV_data");
  setWindowTitle(QStringLiteral("KV_data"));
  setAttribute(Qt::WA_DeleteOnClose);
  resize(kSize);
  lst_members_ = new QListWidget(this);
  NameWidget(lst_members_, "lst_members");
  lst_members_->setAccessibleName(windowTitle());
  lst_members_->setFixedWidth(kMemberWidth);
  lst_lines_ = new QTableView(this);
  NameWidget(lst_lines_, "lst_lines");
  lst_lines_->setModel(&model_);
  lst_lines_->setSelectionBehavior(QAbstractItemView::SelectRows);
  lst_lines_->setTabKeyNavigation(false);
  lst_lines_->horizontalHeader()->setStretchLastSection(true);
  lst_lines_->verticalHeader()->setDefaultSectionSize(RowHeight(*this));
  auto* const layout = new QHBoxLayout(this);
  layout->addWidget(lst_members_);
  layout->addWidget(lst_lines_, 1);

  for (const DataMember& member : DataMembers()) lst_members_->addItem(ToQt(member.name));
  connect(lst_members_, &QListWidget::currentRowChanged, this, &DataWindow::ShowMember);
  connect(lst_lines_, &QTableView::clicked, this, [this](const QModelIndex& index) {
    TellLine(program_, DataMembers()[static_cast<std::size_t>(lst_members_->currentRow())],
             static_cast<std::size_t>(index.row()));
  });
  FillMembers();
  lst_members_->setCurrentRow(0);
}

void DataWindow::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() != QEvent::ActivationChange || !isActiveWindow()) return;
  FillMembers();
  ShowMember();
}

// Each member with the number of its lines.
void DataWindow::FillMembers() {
  for (int row = 0; row < lst_members_->count(); ++row) {
    const DataMember& member = DataMembers()[static_cast<std::size_t>(row)];
    lst_members_->item(row)->setText(
        QStringLiteral("%1 (%2)").arg(ToQt(member.name)).arg(LineCount(program_.store, member)));
  }
}

void DataWindow::ShowMember() {
  const DataMember& member = DataMembers()[static_cast<std::size_t>(lst_members_->currentRow())];
  lst_lines_->setAccessibleName(ToQt(member.name));
  model_.Show({{Text(member.name)}}, LineCount(program_.store, member),
              [this, &member](std::size_t row, std::size_t) {
                return LineAt(program_.store, member, row);
              });
}

void ShowDataWindow(Program& program, QWidget* parent) {
  auto* window = parent->findChild<DataWindow*>();
  if (window == nullptr) window = new DataWindow(program, parent);
  window->show();
  window->raise();
  window->activateWindow();
}

}  // namespace kelvora
