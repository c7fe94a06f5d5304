#include "app/models/slot_rows.h"

#include <QKeySequence>

namespace window {

void SlotRows::setSlots(const std::vector<Slot> &slots)
{
    const bool isSameCount = slots.size() == m_slots.size();
    if (!isSameCount)
        beginResetModel();
    m_slots = slots;
    if (!isSameCount)
        endResetModel();
    else if (!slots.empty())
        Q_EMIT dataChanged(index(0), index(count() - 1));
}

QString SlotRows::keyCap(const QString &key)
{
    const QString shift = QStringLiteral("Shift+");
    return key.startsWith(shift) ? QStringLiteral("⇧") + key.mid(shift.size()) : key;
}

int SlotRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QString SlotRows::spoken(const Slot &slot) const
{
    const QString key = QKeySequence(slot.key).toString(QKeySequence::NativeText);
    QStringList parts = {tr("%1: %2").arg(key, slot.label)};
    if (slot.count > 0)
        parts.append(tr("%n pictures", nullptr, slot.count));
    if (!slot.problem.isEmpty())
        parts.append(slot.problem);
    return parts.join(QStringLiteral(", "));
}

QVariant SlotRows::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Slot &shown = slot(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return shown.label;
    case Qt::ToolTipRole:
        return shown.problem.isEmpty() ? shown.note : shown.problem + QLatin1Char('\n') + shown.note;
    case Qt::AccessibleTextRole:
        return spoken(shown);
    default:
        return {};
    }
}

bool SlotRows::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || role != Qt::EditRole)
        return false;
    Q_EMIT labelEdited(index.row(), value.toString());
    return true;
}

Qt::ItemFlags SlotRows::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsDragEnabled
                           : Qt::ItemIsDropEnabled;
}

} // namespace window
