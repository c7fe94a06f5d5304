#pragma once

#include <QAbstractListModel>

#include <vector>

namespace window {

/** A folder into which pictures are sorted, as its slot shows it. */
struct Slot
{
    QString key;     ///< the key in the form of a QKeySequence: "1", "A", "Shift+A"
    QString label;   ///< what the user calls it
    QString note;    ///< where it is
    QString problem; ///< why nothing can be put there; empty if something can
    int count = 0;   ///< how many pictures were put there
};

/** The slots as a list whose labels can be edited. */
class SlotRows : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setSlots(const std::vector<Slot> &slots);
    const Slot &slot(int row) const { return m_slots[size_t(row)]; }
    int count() const { return int(m_slots.size()); }

    /** The key as it is written on a slot: "⇧A" for "Shift+A". */
    static QString keyCap(const QString &key);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    /** The user changed the label. */
    void labelEdited(int row, const QString &label);

private:
    QString spoken(const Slot &slot) const;

    std::vector<Slot> m_slots;
};

} // namespace window
