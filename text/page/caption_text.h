#pragma once

#include "text/token_values.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace text {

/** Tokens of captions besides those of names: {title}, {caption}, {creator} and others. */
QStringList captionTokens();

/** Those of them that say where a picture was taken: {city} and others. */
QStringList placeTokens();

/** The meaning of a token of captions, in the reader's language. */
QString captionTokenWords(const QString &name);

enum class Places { MayBeTold, AreKeptBack };

/** What is wrong with the pattern of captions, as sentences; withheld places are refused. */
QStringList captionProblems(const QString &pattern, Places places);

/** Whether the pattern uses any metadata of a picture. */
bool needsPictureTexts(const QString &pattern);

/**
 * The caption of one picture; missing values are empty, and lines in which nothing is left are dropped.
 *
 * @param texts  by the names of captionTokens()
 */
QString captionFor(const QString &pattern, const TokenFacts &facts, const QHash<QString, QString> &texts);

} // namespace text
