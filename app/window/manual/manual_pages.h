#pragma once

#include <QString>
#include <QStringList>

namespace window {

/**
 * The pages of a manual: Markdown files of one folder in English, and in sub-folders named by a language ("de") the same pages in that
 * language. What a language lacks is English. A page is named as its file is without ".md"; its headings have the same order in each
 * language, so a number tells which one is meant.
 */
class ManualPages
{
public:
    /** @param language  a code such as "de"; of one without a folder all pages are English */
    explicit ManualPages(const QString &folder = {}, const QString &language = {});

    /** "index", then the others in the order in which it links to them, then those that it does not name. */
    QStringList names() const;
    /** The Markdown of a page; empty where there is none. */
    QString text(const QString &page) const;
    /** What is read on a page. */
    QString plainText(const QString &page) const;
    /** The first heading of a page, or its name. */
    QString title(const QString &page) const;
    /** The number of the heading that a link of a page leads to, by its own words or else by the English ones; -1 for none. */
    int headingOfLink(const QString &page, const QString &anchor) const;
    /** The number of the heading with this anchor in the English page; -1 for none. */
    int headingInEnglish(const QString &page, const QString &anchor) const;
    /** Where a picture is that a page shows: that of its language, or else the English one, a folder above. */
    QString picture(const QString &page, const QString &name) const;

private:
    QString folderOf(const QString &page) const;

    QString m_english;
    QString m_own;
};

/** The anchor that a heading is linked to by: small letters and digits, hyphens for blanks, nothing else. */
QString anchorOfHeading(const QString &heading);

} // namespace window
