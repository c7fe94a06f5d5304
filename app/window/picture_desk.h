#pragma once

#include <QObject>
#include <QString>

namespace window {

/** What the scripts of a job do with pictures beside the services' own operations. Nothing here needs a window. */
class PictureDesk : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /**
     * Writes the upright picture at @p path, laid on copies of the picture at @p pattern, as @p target, whose extension
     * names the type; pixels, depth, profile and resolution stay, and no other metadata goes along. Atomic.
     *
     * @return a sentence that says what failed; empty where nothing did
     */
    Q_INVOKABLE QString layOnPattern(const QString &path, const QString &pattern, const QString &target) const;

    /** See platform::takeMemoryRefusal(): the operations of the services answer "Failed" and no more. */
    Q_INVOKABLE QString takeMemoryRefusal() const;
};

} // namespace window
