#include "app/configuration.h"

#include "app/window/interface_folder.h"
#include "platform/desktop/strings_tables.h"
#include "platform/desktop/user_defaults.h"

#include <QLocale>

namespace app {
namespace {

QString configured(const char *variable, const QString &key)
{
    const QString said = qEnvironmentVariable(variable);
    return said.isEmpty() ? platform::userDefault(key).toString() : said;
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
    return QStringList{configured("QUORLIN_LANGUAGE", QStringLiteral("Language"))} + QLocale::system().uiLanguages();
}

void useTexts()
{
    platform::setStringsTables(window::interfaceFolder() + QStringLiteral("/texts"), wantedLanguages());
}

} // namespace app
