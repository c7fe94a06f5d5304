#pragma once

#include "app/window/picture_model.h"

#include <QSortFilterProxyModel>

namespace window {

/** Sorts by what the cells mean (numbers, natural order of names) and can show the problems only. */
class PictureOrder : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit PictureOrder(PictureModel &model, QObject *parent);
    void setProblemsOnly(bool on);
    bool problemsOnly() const { return m_problemsOnly; }
    /** Rows that an action does not work on are not shown. */
    void setInput(const InputRule &rule);
    const InputRule &input() const { return m_input; }

protected:
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    PictureModel &m_model;
    InputRule m_input;
    bool m_problemsOnly = false;
};

} // namespace window
