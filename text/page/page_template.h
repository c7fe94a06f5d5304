#pragma once

#include "platform/foundation/result.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

namespace text {

/** The values of a template's fields: of the page, or of one of its pictures. */
struct PageValues
{
    /** Plain texts, which are escaped when inserted; a missing one is empty. */
    QHash<QString, QString> texts;
    /** Those that are inserted unchanged: their contents are escaped already. */
    QHash<QString, QString> markup;
    QList<PageValues> pictures;
};

/**
 * The file that a web page is made from: HTML with fields. {{name}} is replaced by its value; {{#name}} ... {{/name}}
 * is kept if that has a value, {{^name}} ... {{/name}} if it has none, and {{#pictures}} ... {{/pictures}} is repeated
 * for each picture. A field that begins with "picture" must be inside the last one.
 */
class PageTemplate
{
public:
    /** Fails with InvalidValue; the sentence names line and field: "line 3: there is no field {{titel}}". */
    static platform::Result<PageTemplate> read(const QString &text);

    QString fill(const PageValues &page) const;

    /** All fields: those of the page, then those of its pictures. */
    static QStringList fields();

private:
    enum class Kind { Text, Field, Where, Unless, Pictures };
    struct Part
    {
        Kind kind = Kind::Text;
        QString text; ///< the literal text, or the name of the field
        int line = 0;
        std::vector<Part> inner;
    };
    class Reader;
    static void fillInto(QString &html, const std::vector<Part> &parts, const PageValues &page,
                         const PageValues *picture);

    std::vector<Part> m_parts;
};

/** A text for use between tags and in quoted attributes; characters that a page must not contain are dropped. */
QString escapedForPage(const QString &text);

} // namespace text
