#pragma once

#include "jobs/output_places.h"
#include "platform/foundation/result.h"

#include <map>

namespace jobs {

/** The hidden folders of a batch in which results wait for their places, one in each folder that gets any; gone with the batch. */
class WaitingRooms
{
public:
    WaitingRooms() = default;
    WaitingRooms(const WaitingRooms &) = delete;
    WaitingRooms &operator=(const WaitingRooms &) = delete;
    ~WaitingRooms();

    /** The one in @p folder, which is made; ends in "/". Empty where it cannot be made. What killed batches left there is removed. */
    QString in(const QString &folder);
    /** To be called between two pictures: each room holds a file open, and results may go into thousands of folders. */
    void letGoOfMany();

private:
    void removeAll();

    std::map<QString, QString> m_rooms;
};

/**
 * The results of one picture: written beside their places first, and put there when all are made, so that a picture that is
 * replaced by its own result is not missing to the others.
 */
class ResultFiles
{
public:
    ResultFiles(const Input &input, const QString &recipeName, WaitingRooms &rooms)
        : m_input(input), m_recipeName(recipeName), m_rooms(rooms)
    {
    }
    ResultFiles(const ResultFiles &) = delete;
    ResultFiles &operator=(const ResultFiles &) = delete;
    /** What was not placed is gone afterwards. */
    ~ResultFiles();

    /** Writes a result into a hidden folder beside its place; makes the folder of the place. Fails with WriteFailed. */
    platform::Result<void> keep(int index, const QByteArray &bytes, const OutputPlace &place,
                                const image::RecipeOutput &output);

    struct Placed
    {
        int index = 0;
        QString path;
        bool isSkipped = false;
        QString problem; ///< a sentence
    };

    /** Puts everything in its place, what replaces the picture itself last. A name that was taken meanwhile gets a number. */
    QList<Placed> placeAll(OutputPlaces &places);

private:
    struct Kept
    {
        int index = 0;
        QString file;
        OutputPlace place;
        image::IfTaken ifTaken = image::IfTaken::Number;
    };

    Placed placed(const Kept &kept, OutputPlaces &places) const;

    const Input &m_input;
    QString m_recipeName;
    QList<Kept> m_kept;
    WaitingRooms &m_rooms;
};

} // namespace jobs
