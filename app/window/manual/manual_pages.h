#pragma once

#include <QString>
#include <QStringList>

namespace window {

/**
 * The pages of a manual: Markdown files of one folder in English, and in sub-folders named by a language ("de") the same pages in that
 * language. Missing pages are shown in English. A page is named like its file without ".md"; its headings are in the
 * same order in each language, so that a number identifies one.
 */
class ManualPages
{
public:
    /** @param language  a code such as "de"; of one without a folder all pages are English */
    explicit ManualPages(const QString &folder = {}, const QString &language = {});

    /** "index", then the others in the order of its links, then those without a link. */
    QStringList names() const;
    /** The Markdown of a page; empty if there is none. */
    QString text(const QString &page) const;
    /** The text of a page as read. */
    QString plainText(const QString &page) const;
    /** The first heading of a page, or its name. */
    QString title(const QString &page) const;
    /** The number of the heading that a link leads to, by its own text or else by the English one; -1 for none. */
    int headingOfLink(const QString &page, const QString &anchor) const;
    /** The number of the heading with this anchor in the English page; -1 for none. */
    int headingInEnglish(const QString &page, const QString &anchor) const;
    /** Where a picture of a page is: that of its language, or else the English one, a folder above. */
    QString picture(const QString &page, const QString &name) const;

private:
    QString folderOf(const QString &page) const;

    QString m_english;
    QString m_own;
};

/** The anchor of a heading: lower-case letters and digits, hyphens for spaces, nothing else. */
QString anchorOfHeading(const QString &heading);

} // namespace window
