#pragma once

#include "jobs/output_places.h"
#include "platform/descriptors/descriptor.h"
#include "platform/foundation/result.h"

#include <map>

namespace jobs {

/**
 * The hidden folders of a batch in which results wait to be placed, one in each destination folder; removed with the
 * batch.
 */
class WaitingRooms
{
public:
    WaitingRooms() = default;
    WaitingRooms(const WaitingRooms &) = delete;
    WaitingRooms &operator=(const WaitingRooms &) = delete;
    ~WaitingRooms();

    /**
     * The one in @p folder, which is created; ends in "/". Empty if it cannot be created. Remains of killed batches
     * there are removed.
     */
    QString in(const QString &folder);
    /** Somebody keeps files in the room of @p folder until leave() was called as often. */
    void enter(const QString &folder);
    /** Each room holds a file open, and results may go into thousands of folders: those that nobody is in any more are given up. */
    void leave(const QString &folder);

private:
    struct Room
    {
        QString path;
        int users = 0;
    };
    void letGoOfMany();

    std::map<QString, Room> m_rooms;
};

/** Gives a file the time at which @p source was changed last. */
void takeDateOf(const QString &source, const QString &path);

/**
 * The results of one picture: written beside their places first, and put there when all are made, so that a picture that is
 * replaced by its own result is not missing to the others.
 */
class ResultFiles
{
public:
    /** What results are made with, by which they are known later. */
    struct Settings
    {
        QString name;         ///< see settingsOf()
        QList<MadeWith> made; ///< of each output; may be empty
    };

    /** @param number  identifies the picture: how many come before it */
    ResultFiles(const Input &input, int number, const Settings &settings, WaitingRooms &rooms)
        : m_input(input), m_number(number), m_settings(settings), m_source(sourceState(input.path)), m_rooms(rooms)
    {
    }
    ResultFiles(const ResultFiles &) = delete;
    ResultFiles &operator=(const ResultFiles &) = delete;
    /** What was not placed is gone afterwards. */
    ~ResultFiles();

    /**
     * Makes the file that a result is written to, in a hidden folder beside its place; makes the folder of the place. Fails with
     * WriteFailed.
     */
    platform::Result<platform::Descriptor> begin(int index, const OutputPlace &place);
    /** The file is complete: it is placed with the others. Fails with WriteFailed if it does not have as many bytes. */
    platform::Result<void> keep(int index, qint64 bytes, const OutputPlace &place, const image::RecipeOutput &output);
    /** It is given up after all. */
    void drop(int index);
    struct Waiting
    {
        int index = 0;
        QString file; ///< whole
        QString path; ///< its destination
    };
    /** What is kept and has no place yet. */
    QList<Waiting> waiting() const;
    /** It is to go there instead, which is in the same folder. */
    void moveTo(int index, const OutputPlace &place);
    /** Leaves a complete file where it is, for somebody else to place: its path; empty if there is none. */
    QString leave(int index);
    /** It is not, for a reason that is an errno. */
    platform::Error failureOf(int code, const OutputPlace &place) const;

    struct Placed
    {
        int index = 0;
        QString path;
        bool isSkipped = false;
        QString problem; ///< a sentence
    };

    /** Puts everything in its place, what replaces the picture itself last. A name that was taken meanwhile gets a number. */
    QList<Placed> placeAll(OutputPlaces &places);
    /** An output is in place at @p path: it can be recognised as up to date later. placeAll() calls this for its outputs. */
    void note(int index, const QString &path) const;

private:
    struct Kept
    {
        int index = 0;
        QString file;
        OutputPlace place;
        image::IfTaken ifTaken = image::IfTaken::Number;
    };

    Placed placed(const Kept &kept, OutputPlaces &places) const;

    Input m_input;
    int m_number;
    Settings m_settings;
    QString m_source;            ///< what the picture was like before anything was made of it
    QHash<int, QString> m_begun; ///< the files by the indices of their outputs
    QStringList m_folders;       ///< whose rooms they are in
    QList<Kept> m_kept;
    WaitingRooms &m_rooms;
};

} // namespace jobs
