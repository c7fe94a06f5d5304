#pragma once

#include "app/models/picture_model.h"

#include <deque>

namespace window {

/** What was put into the list and taken out of it, to be undone and done again in turn. The newest 100 edits are kept. */
class ListEdits
{
public:
    /** Rows with these ids were added. */
    void added(QList<int> ids);
    /** These rows were taken out. */
    void removed(std::vector<PlacedRow> rows);

    /** False where nothing is left to undo, or to do again. */
    bool undo(PictureModel &model);
    bool redo(PictureModel &model);

private:
    struct Edit
    {
        QList<int> ids;
        std::vector<PlacedRow> rows; ///< while they are not in the list
        bool areIn = false;
    };

    void keep(Edit edit);
    static void turn(Edit &edit, PictureModel &model);

    std::deque<Edit> m_edits;
    size_t m_standing = 0; ///< so many of them stand; those behind were undone
};

} // namespace window
