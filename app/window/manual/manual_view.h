#pragma once

#include "app/window/manual/manual_pages.h"

#include <QTextBrowser>
#include <QVariantList>

namespace window {

/**
 * Shows the pages of a manual, which are linked with one another and have pictures. A picture NAME-light.png is shown as NAME-dark.png
 * in the dark appearance, if there is one.
 */
class ManualView : public QTextBrowser
{
    Q_OBJECT
    Q_PROPERTY(QString page READ page NOTIFY pageShown)
    Q_PROPERTY(bool canGoBack READ canGoBack NOTIFY pageShown)
    Q_PROPERTY(bool canGoForward READ canGoForward NOTIFY pageShown)

public:
    explicit ManualView(QWidget *parent = nullptr);

    /** Shows the manual of a folder in a language: see ManualPages. */
    Q_INVOKABLE void setFolder(const QString &folder, const QString &language);
    /** {name, title} of every page, in the order of ManualPages. */
    Q_INVOKABLE QVariantList pages() const;
    /**
     * Shows a page, and if @p anchor is not empty the heading that has this anchor in the English page, in whatever
     * language. Says so if a page is missing.
     */
    Q_INVOKABLE void open(const QString &page, const QString &anchor);
    Q_INVOKABLE void goBack() { goTo(m_at - 1); }
    Q_INVOKABLE void goForward() { goTo(m_at + 1); }
    /**
     * Finds the next occurrence of a text: after the selected one, else from the beginning of the page, and at its end
     * on the next page that has it; false if no page has it.
     */
    Q_INVOKABLE bool findNext(const QString &text);
    /** Redraws the page, as after a change of the appearance. */
    Q_INVOKABLE void redraw();

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
        int heading; ///< its number in the page, or -1
    };

    void visit(const Place &place);
    void goTo(qsizetype at);
    QImage picture(const QString &name) const;
    void showLarge(const QString &name);
    void show(const Place &place);
    void scrollToHeading(int number);
    void follow(const QUrl &link);
    int textWidth() const;
    bool findFromHere(const QString &text);

    ManualPages m_pages;
    QList<Place> m_visited;
    qsizetype m_at = -1;
    QTextDocument *m_drawn = nullptr; ///< a child of this view
    int m_drawnWidth = 0;
};

} // namespace window
