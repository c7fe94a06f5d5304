#pragma once

#include <QObject>
#include <QStringList>
#include <QVariantList>

namespace text {

/** What scripts ask about texts with tokens in them. */
class TokenService : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /** All tokens, in their order, each as {name, words, example, forms}; see OfferedToken. */
    Q_INVOKABLE QVariantList offered() const;

    /** A text parsed: {text} or {token, form} each. See tokenParts(). */
    Q_INVOKABLE QVariantList parts(const QString &pattern) const;

    /** The meaning of a token in the reader's language; its name if there is no such token. */
    Q_INVOKABLE QString words(const QString &token) const;

    /** The pattern of each level of a folder pattern. See tokenLevels(). */
    Q_INVOKABLE QStringList levels(const QString &pattern) const;

    /** See tokenProblems(). */
    Q_INVOKABLE QStringList problems(const QString &pattern) const;

    /** See asFolderName(). */
    Q_INVOKABLE QString folderName(const QString &value) const;
};

} // namespace text
