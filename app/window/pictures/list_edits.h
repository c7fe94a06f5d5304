#pragma once

#include "app/models/picture_model.h"

#include <deque>

namespace window {

/** What was added to the list, removed from it or reordered, for undo and redo. The newest 100 edits are kept. */
class ListEdits
{
public:
    /** Rows with these ids were added. */
    void added(QList<int> ids);
    /** These rows were taken out. */
    void removed(std::vector<PlacedRow> rows);

    /** The rows had this order, and have another one now. */
    void ordered(QList<int> before);

    /** False if nothing is left to undo, or to redo. */
    bool undo(PictureModel &model);
    bool redo(PictureModel &model);

private:
    struct Edit
    {
        QList<int> ids;
        std::vector<PlacedRow> rows; ///< while they are not in the list
        bool areIn = false;
        bool isOrder = false; ///< ids are all rows in the order of the other state
    };

    void keep(Edit edit);
    static void turn(Edit &edit, PictureModel &model);

    std::deque<Edit> m_edits;
    size_t m_standing = 0; ///< so many are in effect; those after them were undone
};

} // namespace window
