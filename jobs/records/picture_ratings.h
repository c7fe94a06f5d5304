#pragma once

#include <QHash>
#include <QString>

namespace jobs {

/**
 * How the user rated pictures, 1 to 5 stars; 0 is no rating. Marks of this process by the paths of files: no file is changed, and all who ask
 * for a rating ask here, so that what stands in files can be joined. Main thread only.
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
