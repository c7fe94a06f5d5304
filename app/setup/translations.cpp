#include "app/setup/translations.h"

#include "app/setup/interface_folder.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace app {

// The toolkit asks the table that was installed last first.
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
    auto table = std::make_unique<QTranslator>();
    if (table->load(path) && QCoreApplication::installTranslator(table.get()))
        m_tables.push_back(std::move(table));
}

} // namespace app
