#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

namespace app {

/**
 * The texts of windows, scripts and classes in one language, and the toolkit's own, for as long as this object lives.
 * Missing texts are shown in English. English has a table too, for texts with numbers: only tables know which plural
 * form belongs to a number. Numbers of "%n" have the separators of QLocale().
 *
 * Main thread only; one object at a time.
 */
class Translations
{
public:
    /** @param language  a code such as "de"; for one without a table the texts stay English */
    explicit Translations(const QString &language);
    ~Translations();

    /** The files of the program's own texts; later ones take precedence. */
    const QStringList &files() const { return m_files; }

private:
    void install(const QString &path);

    std::vector<std::unique_ptr<QTranslator>> m_tables;
    QStringList m_files;
};

} // namespace app
