#pragma once

#include <QString>

namespace text {

/** The fixed words of a page. */
struct PageWords
{
    QString language; ///< their language: "en", "de", "fr" or "nl"
    QString pictures;
    QString picture; ///< "Picture %1 of %2"
    QString close;
    QString next;
    QString previous;
    QString download;
};

/** The words for pages in a language, such as "de" or "de-AT"; English if we have none in it. */
PageWords pageWords(const QString &language);

/** Whether a text can be a language code: "de", "pt-BR", "zh-Hant". */
bool isLanguageCode(const QString &language);

/** Whether a language is written from right to left, as Arabic is; by its code. */
bool isWrittenFromTheRight(const QString &language);

} // namespace text
