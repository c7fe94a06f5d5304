#pragma once

#include "platform/foundation/result.h"

#include <QList>
#include <QSize>
#include <QString>

namespace text {

/** One file of a picture on a page. */
struct PageFile
{
    QString path; ///< relative to the folder of the page: "pictures/a b.jpg"
    QSize pixels;
};

struct PagePicture
{
    QString caption;       ///< plain; line feeds stay; may be empty
    QList<PageFile> files; ///< the same picture, smallest first; at least one
};

enum class PageStyle {
    Grid,  ///< squares of one size; the large view shows the whole picture
    Rows,  ///< pictures of one height, each row as wide as the page
    Story, ///< one below the other, with captions
};

struct Page
{
    QString title;
    QString text; ///< plain; empty lines separate paragraphs
    PageStyle style = PageStyle::Grid;
    QString language = QStringLiteral("en");
    bool isFromTheRight = false;
    QString lightPaper = QStringLiteral("#ffffff");
    QString darkPaper = QStringLiteral("#16181b");
    QString accent = QStringLiteral("#1f5fbf");
    bool offersDownload = false;
    QList<PagePicture> pictures;
};

/** The template that comes with the program. */
QString standardPageTemplate();

/**
 * The HTML of a page. Every text from a person or a picture is escaped, and every address is relative.
 *
 * @param pageTemplate  see PageTemplate
 * Fails with InvalidValue, in a sentence, for an invalid template and for a picture without files.
 */
platform::Result<QString> writePage(const QString &pageTemplate, const Page &page);

/** A relative path of the page's folder as an address: characters with a special meaning are encoded. */
QString pageAddress(const QString &path);

} // namespace text
