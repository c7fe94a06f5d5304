#include "app/setup/configuration.h"

#include "app/setup/interface_folder.h"
#include "platform/desktop/strings_tables.h"
#include "platform/desktop/user_defaults.h"

namespace app {
namespace {

QString configured(const char *variable, const QString &key)
{
    const QString said = qEnvironmentVariable(variable);
    return said.isEmpty() ? platform::userDefault(key).toString() : said;
}

QString askedLanguage()
{
    return configured("QUORLIN_LANGUAGE", QStringLiteral("Language"));
}

} // namespace

QString updateHost()
{
    return configured("QUORLIN_UPDATE_HOST", QStringLiteral("UpdateHost"));
}

QUrl productPage()
{
    return QUrl(configured("QUORLIN_PRODUCT_PAGE", QStringLiteral("ProductPage")), QUrl::TolerantMode);
}

QStringList wantedLanguages()
{
    return QStringList{askedLanguage()} + QLocale::system().uiLanguages();
}

QLocale wantedLocale()
{
    const QLocale system = QLocale::system();
    const QLocale asked(platform::languageOfTexts());
    const bool isAsked = askedLanguage().section(u'-', 0, 0) == platform::languageOfTexts();
    // If the system has no language of its own, numbers are written as in English.
    const bool isOwn = asked.language() == system.language() ||
                       (asked.language() == QLocale::English && system.language() == QLocale::C);
    return isAsked && !isOwn ? QLocale(asked.language(), system.territory()) : system;
}

void useTexts()
{
    platform::setStringsTables(window::interfaceFolder() + QStringLiteral("/texts"), wantedLanguages());
}

} // namespace app
