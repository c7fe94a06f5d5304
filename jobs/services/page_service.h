#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantList>
#include <QVariantMap>

namespace jobs {

/** Web pages for scripts: their HTML, captions, and which files of a folder are those of a page. Nothing here needs a window. */
class PageService : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /** The template that comes with the program. */
    Q_INVOKABLE QString standardTemplate() const;
    /** Why a text is not a valid template, in a sentence that names line and field; empty if it is one. */
    Q_INVOKABLE QString templateProblem(const QString &text) const;
    /** The fields of templates: those of the page, then those of its pictures. */
    Q_INVOKABLE QStringList fields() const;

    /**
     * The HTML of a page: {html, problem}.
     *
     * @param page  {title, text, style: "grid", "rows" or "story", language, fromRight, lightPaper, darkPaper, accent, download, pictures};
     *              what is missing is as text::Page has it. A picture is {caption, files}, a file {path, width, height}, the path being
     *              below the folder of the page. A value of another type or another key is a TypeError
     */
    Q_INVOKABLE QVariantMap write(const QString &pageTemplate, const QVariantMap &page) const;

    /** What captions can say of a picture beside the tokens of names: {name, words, isPlace}. */
    Q_INVOKABLE QVariantList captionTokens() const;
    /**
     * What is wrong with a pattern of captions, as sentences; tokens that reveal a location are rejected unless
     * allowed.
     */
    Q_INVOKABLE QStringList captionProblems(const QString &pattern, bool placesMayBeTold) const;
    /** Whether a pattern uses the metadata of pictures. */
    Q_INVOKABLE bool needsTexts(const QString &pattern) const;
    /** The metadata of a picture, by the names of tokens; empty if it cannot be read. */
    Q_INVOKABLE virtual QVariantMap textsOf(const QString &path) const;
    /**
     * The caption of a picture; lines in which nothing is left are left out.
     *
     * @param facts  what FileService::facts() says; may be null, as may
     * @param texts  what textsOf() says
     * @param index  how many pictures came before this one, for {counter}
     */
    Q_INVOKABLE QString caption(const QString &pattern, const QString &path, const QVariantMap &facts,
                                const QVariantMap &texts, int index) const;

    /** Whether a text can be the code of a language, such as "pt-BR". */
    Q_INVOKABLE bool isLanguage(const QString &code) const;
    /** Whether a language is written from right to left. */
    Q_INVOKABLE bool isFromRight(const QString &code) const;

    /** Identifies the content of a file: 64 hex digits; empty if it cannot be read. A link is not followed. */
    Q_INVOKABLE QString fingerprint(const QString &path) const;
    /** Removes a file whose content has one of these fingerprints, and says whether it is gone; any other file stays. */
    Q_INVOKABLE bool removeKnown(const QString &path, const QStringList &fingerprints) const;
};

/** What PageService::textsOf() answers of the properties of a picture. */
QVariantMap pageTextValues(const QVariantMap &properties, const QVariantMap &fields);

} // namespace jobs
