#pragma once

#include <QByteArray>

class QFile;

namespace platform {

/**
 * The bytes of an open file, without reading those that nobody asks for. What cannot be read, because a card is damaged
 * or somebody has truncated the file meanwhile, reads as zeros instead of ending the program; isSpoilt() says so from
 * then on. One thread.
 */
class MappedFile
{
public:
    /** @param file  open for reading; must outlive this */
    explicit MappedFile(QFile &file);
    MappedFile(const MappedFile &) = delete;
    MappedFile &operator=(const MappedFile &) = delete;
    ~MappedFile();

    bool isThere() const { return m_data != nullptr; }
    /** All of them; valid as long as this lives. */
    QByteArray bytes() const;
    /** Whether something that was requested could not be read. */
    bool isSpoilt() const { return m_isSpoilt; }

private:
    friend struct MappedFaults;
    bool mend(const void *address);

    QFile &m_file;
    qint64 m_size = 0; ///< its size when it was mapped
    unsigned char *m_data = nullptr;
    volatile bool m_isSpoilt = false;
    MappedFile *m_next = nullptr; ///< list of the living ones
};

} // namespace platform
