#include "app/setup/translations.h"

#include "app/setup/interface_folder.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace app {

namespace {

/** A table whose counts have the reader's own separators. */
class CountsTable : public QTranslator
{
public:
    QString translate(const char *context, const char *text, const char *disambiguation, int count) const override
    {
        QString found = QTranslator::translate(context, text, disambiguation, count);
        return count < 0 ? found : found.replace(QLatin1String("%n"), QLatin1String("%Ln"));
    }
};

} // namespace

// The toolkit asks the most recently installed table first.
Translations::Translations(const QString &language)
{
    const QString toolkit = QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_%1.qm");
    const QString english = QStringLiteral("en");
    for (const QString &each : language == english ? QStringList{english} : QStringList{english, language}) {
        install(toolkit.arg(each));
        m_files.append(window::translationFile(each));
        install(m_files.constLast());
    }
}

Translations::~Translations() = default;

void Translations::install(const QString &path)
{
    auto table = std::make_unique<CountsTable>();
    if (table->load(path) && QCoreApplication::installTranslator(table.get()))
        m_tables.push_back(std::move(table));
}

} // namespace app
