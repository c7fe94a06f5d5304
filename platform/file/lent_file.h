#pragma once

#include "platform/descriptors/descriptor.h"
#include "platform/foundation/result.h"

#include <QIODevice>
#include <QString>

#include <memory>

namespace platform {

/**
 * A regular file that was opened for reading, perhaps by another process for this one, which cannot open it itself. It
 * is read by offset, so that any number of readers share the descriptor without moving each other's position.
 */
class LentFile
{
public:
    /** @param name  for messages */
    LentFile(Descriptor descriptor, const QString &name) : m_descriptor(std::move(descriptor)), m_name(name) {}

    /** Opens one as openToRead() does, with its messages. */
    static Result<LentFile> open(const QString &path);

    /** To be passed on; afterwards this object has no file. */
    Descriptor takeDescriptor() { return std::move(m_descriptor); }
    int descriptor() const { return m_descriptor.number(); }
    const QString &name() const { return m_name; }
    /** In bytes; 0 if unknown. */
    qint64 size() const;

private:
    Descriptor m_descriptor;
    QString m_name;
};

/** Reads a lent file from its beginning; open for reading. Remembers read errors, see readProblemOf(). */
class LentReader : public QIODevice
{
public:
    explicit LentReader(std::shared_ptr<const LentFile> file);

    bool seek(qint64 position) override;
    qint64 size() const override { return m_file->size(); }
    const QString &readProblem() const { return m_readProblem; }

protected:
    qint64 readData(char *data, qint64 count) override;
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    std::shared_ptr<const LentFile> m_file;
    qint64 m_place = 0;
    QString m_readProblem;
};

} // namespace platform
