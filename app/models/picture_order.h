#pragma once

#include "app/models/picture_model.h"

#include <QCollator>
#include <QSet>
#include <QSortFilterProxyModel>

#include <optional>

namespace window {

/**
 * Sorts by the meaning of cells (numbers, natural order of names) and can restrict the list to problems or to some
 * pictures.
 */
class PictureOrder : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit PictureOrder(PictureModel &model, QObject *parent);
    void setProblemsOnly(bool on);
    bool problemsOnly() const { return m_problemsOnly; }
    /** Shows the pictures with these ids only; all for none. */
    void setOnly(const std::optional<QSet<int>> &ids);
    /** Rows that an action does not work on are hidden. What setLeastRating() set stays in force. */
    void setInput(const InputRule &rule);
    /** Pictures with fewer stars are hidden, and no action works on them; 0: all are shown. */
    void setLeastRating(int stars);
    /** Pictures that it does not accept are hidden, and no action works on them. */
    void setFilter(const PropertyFilter &filter);
    const InputRule &input() const { return m_input; }

protected:
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    bool isStatedBefore(const PictureRow &a, const PictureRow &b, const QString &property) const;

    PictureModel &m_model;
    QCollator m_order;
    InputRule m_input;
    std::optional<QSet<int>> m_only;
    bool m_problemsOnly = false;
};

} // namespace window
