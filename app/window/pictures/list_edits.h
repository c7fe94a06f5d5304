#pragma once

#include "app/models/picture_model.h"

#include <deque>

namespace window {

/** What was put into the list, taken out of it and put in another order, to be undone and done again in turn. The newest 100 edits are kept. */
class ListEdits
{
public:
    /** Rows with these ids were added. */
    void added(QList<int> ids);
    /** These rows were taken out. */
    void removed(std::vector<PlacedRow> rows);

    /** The rows stood in this order, and stand in another one now. */
    void ordered(QList<int> before);

    /** False where nothing is left to undo, or to do again. */
    bool undo(PictureModel &model);
    bool redo(PictureModel &model);

private:
    struct Edit
    {
        QList<int> ids;
        std::vector<PlacedRow> rows; ///< while they are not in the list
        bool areIn = false;
        bool isOrder = false; ///< ids are all rows as they stood on the other side of it
    };

    void keep(Edit edit);
    static void turn(Edit &edit, PictureModel &model);

    std::deque<Edit> m_edits;
    size_t m_standing = 0; ///< so many of them stand; those behind were undone
};

} // namespace window
