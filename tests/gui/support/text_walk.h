#pragma once

#include <QStringList>
#include <QWidget>

/** Every text that @p window shows or reads aloud, also in its menus, tooltips and cells: each once, with the name of the control before it. */
QStringList shownTexts(const QWidget &window);

/**
 * The words of the texts outside brackets, when the window speaks the language of tests/support/pseudo_texts.h.
 *
 * @param known  words that are the same in every language, such as names and units
 */
QStringList untranslatedWords(const QStringList &texts, const QStringList &known);
