#pragma once

#include "jobs/pages/page_content.h"
#include "jobs/reading/read_errand.h"

#include <QHash>
#include <QImage>
#include <QSet>
#include <QStringList>
#include <QVariantMap>
#include <QWidget>

namespace window {

/**
 * Pages with pictures, as they will be printed: as many side by side as fit. Pictures come from workers as their pages
 * come into view.
 */
class PagesView : public QWidget
{
    Q_OBJECT
    /** How many pages there are. */
    Q_PROPERTY(int pages READ pages)
    /** The first visible one, from 0; a number out of range means the nearest. */
    Q_PROPERTY(int first READ first WRITE setFirst)
    /** How many are visible side by side. */
    Q_PROPERTY(int side READ side)

public:
    explicit PagesView(QWidget *parent = nullptr);

    int pages() const;
    int first() const { return m_first; }
    void setFirst(int page);
    int side() const;

    /** @param settings  see jobs::pageSettingsFrom(); invalid ones leave everything as it is */
    Q_INVOKABLE void showPages(const QVariantMap &settings, const QStringList &paths);

    /** Whether all pictures of the visible pages have arrived. */
    bool isComplete() const { return m_asked.isEmpty() && !m_isStale; }

    QSize sizeHint() const override { return {480, 360}; }
    QSize minimumSizeHint() const override { return {120, 120}; }

Q_SIGNALS:
    /** Other pages became visible, or their number changed. */
    void turned();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Shown
    {
        QImage image;
        QSizeF room; ///< the requested size, in screen pixels
    };

    double scale() const;
    jobs::PageJob job() const;
    jobs::PagePicture pictureAt(int number) const;
    void look();
    void askFor(int number, QSizeF room);
    void drawPicture(QPainter &painter, const jobs::PicturePlace &place) const;
    void turnBy(int pages);

    jobs::PageSettings m_settings;
    QStringList m_paths;
    int m_first = 0;
    int m_angle = 0; ///< of the wheel, not enough yet to turn a page
    bool m_isStale = true;
    QHash<QString, jobs::PagePicture> m_known;
    QHash<QString, Shown> m_shown;
    QSet<QString> m_asked; ///< for facts or pixels
    jobs::Reader m_reader;
};

} // namespace window
