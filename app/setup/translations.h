#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

namespace app {

/**
 * The texts of windows, scripts and classes in one language, and the toolkit's own, for as long as this object lives. What a
 * language lacks is English. English has a table too, of the texts with numbers in them: which of their forms belongs to a
 * number is known to tables alone. Numbers of "%n" have the separators of QLocale().
 *
 * Main thread only; one object at a time.
 */
class Translations
{
public:
    /** @param language  a code such as "de"; of one without a table the texts stay English */
    explicit Translations(const QString &language);
    ~Translations();

    /** The files that the texts of this program's own come from, the later before the earlier. */
    const QStringList &files() const { return m_files; }

private:
    void install(const QString &path);

    std::vector<std::unique_ptr<QTranslator>> m_tables;
    QStringList m_files;
};

} // namespace app
