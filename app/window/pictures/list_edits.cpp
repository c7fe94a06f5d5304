#include "app/window/pictures/list_edits.h"

#include <utility>

namespace window {

namespace {
constexpr size_t mostEdits = 100;
} // namespace

void ListEdits::added(QList<int> ids)
{
    Edit edit;
    edit.ids = std::move(ids);
    edit.areIn = true;
    keep(std::move(edit));
}

void ListEdits::removed(std::vector<PlacedRow> rows)
{
    Edit edit;
    for (const PlacedRow &each : rows)
        edit.ids.append(each.row.id);
    edit.rows = std::move(rows);
    keep(std::move(edit));
}

void ListEdits::ordered(QList<int> before)
{
    Edit edit;
    edit.ids = std::move(before);
    edit.isOrder = true;
    keep(std::move(edit));
}

void ListEdits::keep(Edit edit)
{
    m_edits.resize(m_standing);
    m_edits.push_back(std::move(edit));
    if (m_edits.size() > mostEdits)
        m_edits.pop_front();
    m_standing = m_edits.size();
}

bool ListEdits::undo(PictureModel &model)
{
    if (m_standing == 0)
        return false;
    turn(m_edits[--m_standing], model);
    return true;
}

bool ListEdits::redo(PictureModel &model)
{
    if (m_standing == m_edits.size())
        return false;
    turn(m_edits[m_standing++], model);
    return true;
}

// Undoing or redoing an edit swaps its rows with what it stored.
void ListEdits::turn(Edit &edit, PictureModel &model)
{
    if (edit.isOrder) {
        QList<int> now = model.order();
        model.setOrder(edit.ids);
        edit.ids = std::move(now);
        return;
    }
    if (edit.areIn) {
        edit.rows = model.takeIds(edit.ids);
    } else {
        model.putBack(edit.rows);
        edit.rows.clear();
    }
    edit.areIn = !edit.areIn;
}

} // namespace window
