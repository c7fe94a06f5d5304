#pragma once

#include <QHash>
#include <QString>

namespace jobs {

/**
 * The user's ratings of pictures, 1 to 5 stars; 0 is no rating. Marks of this process by file path: no file is changed,
 * and every request for a rating comes here, so that ratings stored in files can be merged. Main thread only.
 */
class PictureRatings
{
public:
    static constexpr int most = 5;

    static PictureRatings &ofProcess()
    {
        static PictureRatings ratings;
        return ratings;
    }

    int of(const QString &path) const { return m_stars.value(path); }
    /** @param stars  0 to most */
    void set(const QString &path, int stars)
    {
        if (stars == 0)
            m_stars.remove(path);
        else
            m_stars.insert(path, stars);
    }

private:
    QHash<QString, int> m_stars;
};

} // namespace jobs
