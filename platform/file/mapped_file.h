#pragma once

#include <QByteArray>

class QFile;

namespace platform {

/**
 * The bytes of an open file without reading those that nobody asks for. What cannot be read, since a card is damaged or somebody has cut
 * the file short meanwhile, reads as zeros where it would end the program otherwise; isSpoilt() says so from then on. One thread.
 */
class MappedFile
{
public:
    /** @param file  open for reading; outlives this */
    explicit MappedFile(QFile &file);
    MappedFile(const MappedFile &) = delete;
    MappedFile &operator=(const MappedFile &) = delete;
    ~MappedFile();

    bool isThere() const { return m_data != nullptr; }
    /** All of them; valid as long as this lives. */
    QByteArray bytes() const;
    /** Whether something that was asked for could not be read. */
    bool isSpoilt() const { return m_isSpoilt; }

private:
    friend struct MappedFaults;
    bool mend(const void *address);

    QFile &m_file;
    qint64 m_size = 0; ///< when it was mapped, and no other
    unsigned char *m_data = nullptr;
    volatile bool m_isSpoilt = false;
    MappedFile *m_next = nullptr; ///< of those that live
};

} // namespace platform
