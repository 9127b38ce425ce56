#include "platform/qt/entering.h"

#include <algorithm>
#include <utility>

#include "platform/qt/text.h"

namespace kelvora {

EntryContext EntryContextOf(const Program& program) {
  return {program.texts, program.platform.locale};
}

HeldChange HoldChange(const EntryRule& rule, const EntryContext& context, const QString& held,
                      const QString& changed, qsizetype cursor) {
  const QString front = changed.left(cursor);
  HeldChange change;
  change.behind = changed.mid(cursor);
  const QString held_front = held.left(held.size() - change.behind.size());
  const auto begin = std::ranges::mismatch(front, held_front).in1 - front.cbegin();
  change.before = front.left(begin);
  const QString entered = front.mid(begin);
  // A mark that is typed behind a letter joins it, if text can hold what the two make.
  const QString last = change.before.right(1);
  QString composed = (last + entered).normalized(QString::NormalizationForm_C);
  if (composed.startsWith(last)) {
    composed.remove(0, last.size());
  } else if (ByteOf(composed.front().unicode())) {
    change.before.chop(last.size());
  }
  const std::size_t size = LengthUnder(rule, change.before) + LengthUnder(rule, change.behind);
  Entry entry =
      TakeEntered(rule, composed.toStdU32String(), rule.limit - std::min(rule.limit, size),
                  context.locale.DecimalSeparator());
  change.left_out = {std::move(entry.left_out), entry.mark_dropped};
  change.cut = entry.cut;
  change.taken = ToQtWhole(entry.taken);
  change.refused = change.taken.isEmpty() && !entered.isEmpty();
  if (change.refused) change.taken = held_front.mid(change.before.size());
  return change;
}

}  // namespace kelvora
