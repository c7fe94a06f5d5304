#pragma once

#include "jobs/crew/messages.h"

#include <QPointF>
#include <QRect>
#include <QSize>
#include <QStringList>
#include <QVariantMap>

#include <optional>

/**
 * What a process with windows asks its workers about pictures that it does not open itself. A worker gets Read, with the picture and
 * whatever else is looked into as open files, and says one Answer.
 */
namespace jobs {

enum class Reading {
    /**
     * The facts in a header: {width, height, storedWidth, storedHeight, orientation, type, pointWidth, pointHeight} if
     * it can be opened, and {taken, camera, lens, statedWidth, statedHeight, statedType}, see platform::PictureFacts,
     * also if only these are known.
     */
    Facts,
    /**
     * The middle of the picture in {width, height} screen pixels. With a {side} above 0 all of it instead, with at most
     * so many pixels on a side. An attached file is a stored thumbnail: if it states the {uri} and when the picture was
     * {modified}, it is the answer, which then says that it {isKept}.
     */
    Thumbnail,
    /**
     * The picture in no more pixels than are visible: {roomWidth, roomHeight} and "covers", see renditionSize(). With a
     * {scale} above 0 the part that is visible at that scale instead: {centerX, centerY} is the point in the middle of
     * the room, from 0 to 1; see partInView(). Answer: pixels, and the {width, height} of the upright picture; with a
     * problem these tell that it could be opened, and {lacksMemory} whether there was not enough. For a part also
     * {left, top, right, bottom}, from 0 to 1 of the whole.
     */
    Rendition,
    /**
     * The same with {edits} applied to it, see preview_edits.h; a scale is that of the result. Answer: pixels, and the
     * {width, height} of the whole result; and {partX, partY, partWidth, partHeight} of the picture if they begin with
     * a crop whose position depends on its content.
     */
    Result,
    /** {properties}: see platform::ImageSource::properties(). */
    Properties,
    /** {comment, holds, pagesLost}: the user comment, whether this kind of file has one, and what writing it would cost. */
    Comment,
    /** {name, heldBy}: of the colour profile, and the type identifiers of those kinds of files that hold some profiles and this one. */
    Profile,
    /** What {recipe} makes of the picture, see RecipeService::planOutput(). The files that the recipe names are attached. */
    Plan,
    /** {bytes}: how large the file is that {recipe} makes of the picture, or else its conversion to {type} with {quality}, by making it. */
    Bytes,
    /**
     * An edited copy of the picture with {comment}, see platform::writeUserComment(). Attached files: the copy, to be
     * written, and the same to be read. Answer: whether anything {changes}; if not, nothing is written.
     */
    CommentedCopy,
    /** {fields, inPlace}: see meta::readFields(), with the {packet} of a sidecar. */
    Fields,
    /**
     * An edited copy of the picture with {work} done to its metadata, or the {packet} of its sidecar that was changed so. Files that come
     * along: as above. Answer: {changes, undo, before, after}, and the new {packet} where the picture itself is not changed.
     */
    FieldsCopy,
    /** {values} of properties with {names}: see propertyValues(), with the {packet} of a sidecar. */
    Values,
};

/** Files are attached in the order of the paths; the picture is the first. */
struct ReadMessage
{
    Reading what = Reading::Facts;
    QVariantMap values;
    QStringList paths;
};

/** Pixels are attached as an open file if their size is not empty, see platform::SharedImage. */
struct AnswerMessage
{
    QString problem; ///< a sentence on failure
    QVariantMap values;
    QSize pixels;
    bool hasAlpha = false;
};

platform::Message toMessage(const ReadMessage &read);
platform::Message toMessage(const AnswerMessage &answer);

/** As many pixels as can be seen of a picture of @p pixels: what fits into the room, or covers it; never more than it has. */
QSize renditionSize(QSize pixels, QSizeF room, bool covers);

/**
 * The part of a picture with @p pixels in all that is seen in a room, with an eighth of the room around it, so that it can be moved a
 * little. It is moved itself so that the picture fills it. A picture that is shown larger than it is has @p zoom above 1.
 *
 * @param center  the point that should be in the middle of the room, from 0 to 1
 */
QRect partInView(QSize pixels, QSizeF room, QPointF center, double zoom);

} // namespace jobs
