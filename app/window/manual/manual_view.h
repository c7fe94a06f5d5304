#pragma once

#include <QTextBrowser>
#include <QVariantList>

namespace window {

/**
 * Shows the pages of a manual: Markdown files of one folder, linked with one another, with pictures. A picture NAME-light.png is shown
 * as NAME-dark.png in the dark appearance, where there is one. A page is named as its file is without ".md".
 */
class ManualView : public QTextBrowser
{
    Q_OBJECT
    Q_PROPERTY(QString page READ page NOTIFY pageShown)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY pageShown)
    Q_PROPERTY(bool canGoForward READ canGoForward NOTIFY pageShown)

public:
    explicit ManualView(QWidget *parent = nullptr);

    Q_INVOKABLE void setFolder(const QString &folder);
    /** {name, title} of every page: "index", then the others in the order in which it links to them, then those it does not name. */
    Q_INVOKABLE QVariantList pages() const;
    /** Shows a page, and the heading @p anchor of it if that is not empty. A page that is missing is said to be. */
    Q_INVOKABLE void open(const QString &page, const QString &anchor);
    Q_INVOKABLE void goBack() { goTo(m_at - 1); }
    Q_INVOKABLE void goForward() { goTo(m_at + 1); }
    /**
     * Shows the next place of a text: behind the one that is marked, else from the beginning of the page, and at its end on the
     * next page that has it; false where no page has it.
     */
    Q_INVOKABLE bool findNext(const QString &text);
    /** Draws the page anew, as after a change of the appearance. */
    Q_INVOKABLE void drawAnew();

    QString page() const;
    bool canGoBack() const { return m_at > 0; }
    bool canGoForward() const { return m_at + 1 < m_visited.size(); }

Q_SIGNALS:
    void pageShown(const QString &page);

protected:
    QVariant loadResource(int type, const QUrl &name) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    struct Place
    {
        QString page;
        QString anchor;
    };

    void goTo(qsizetype at);
    QImage picture(const QString &name) const;
    void showLarge(const QString &name);
    void show(const Place &place);
    void scrollToHeading(const QString &anchor);
    void follow(const QUrl &link);
    QString textOf(const QString &page) const;
    QStringList names() const;
    int textWidth() const;
    bool findFromHere(const QString &text);

    QString m_folder;
    QList<Place> m_visited;
    qsizetype m_at = -1;
    QTextDocument *m_drawn = nullptr; ///< a child of this view
    int m_drawnWidth = 0;
};

/** The anchor that a heading is linked to by: small letters and digits, hyphens for blanks, nothing else. */
QString anchorOfHeading(const QString &heading);

} // namespace window
