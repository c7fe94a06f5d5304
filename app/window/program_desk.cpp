#include "app/window/program_desk.h"

#include "app/network/download.h"
#include "app/network/version_file.h"
#include "app/printing/print_job.h"
#include "app/printing/print_settings.h"
#include "app/reading/known_pictures.h"
#include "app/setup/configuration.h"
#include "app/setup/crash_file.h"
#include "app/setup/interface_folder.h"
#include "app/setup/samples.h"
#include "app/window/panels/print_dialog.h"
#include "platform/desktop/strings_tables.h"
#include "platform/desktop/user_defaults.h"
#include "platform/foundation/crash_report.h"
#include "platform/foundation/log.h"
#include "platform/foundation/raised.h"
#include "platform/imageio/load/library_versions.h"
#include "presets/database_version.h"

#include <QDir>
#include <QFileInfo>
#include <QVersionNumber>

namespace window {

namespace {

const QString paperKey = QStringLiteral("PrintPaper");
const QString landscapeKey = QStringLiteral("PrintLandscape");

/** What the user chose in an earlier run, taken up once. */
void recallPage(QPageLayout &page)
{
    const QVariant paper = platform::userDefault(paperKey);
    static bool isRecalled = false;
    if (isRecalled || !paper.isValid())
        return;
    isRecalled = true;
    const int id = paper.toInt();
    if (id >= 0 && id < QPageSize::LastPageSize && id != QPageSize::Custom)
        page.setPageSize(QPageSize(QPageSize::PageSizeId(id)));
    page.setOrientation(platform::userDefault(landscapeKey).toBool() ? QPageLayout::Landscape : QPageLayout::Portrait);
}

/** A picture as large as a page is a while in the making. */
app::PrintSource readByWorkers()
{
    constexpr int seconds = 60;
    app::PrintSource source;
    source.size = [](const QString &path) { return KnownPictures::ofProcess().now(path).points; };
    source.pixels = [](const QString &path, double most) {
        jobs::ReadRequest request = {jobs::Reading::Rendition,
                                     path,
                                     {{QStringLiteral("roomWidth"), most}, {QStringLiteral("roomHeight"), most}}};
        request.seconds = seconds;
        return jobs::readNow(request).image;
    };
    return source;
}

/** For a file that ends too early too, which is an error for whoever waits for it. */
app::VersionAnswer answerTo(const platform::Result<QString> &text, int build)
{
    try {
        return app::versionAnswer(text, build);
    } catch (const platform::Raised &raised) {
        return {std::nullopt, raised.message()};
    }
}

QVariantMap described(const platform::Library &library)
{
    return {{QStringLiteral("name"), library.name},
            {QStringLiteral("version"), library.version},
            {QStringLiteral("licence"), library.licence}};
}

} // namespace

int ProgramDesk::build() const
{
    const QVersionNumber number = QVersionNumber::fromString(version());
    return number.majorVersion() * 10000 + number.minorVersion() * 100 + number.microVersion();
}

QString ProgramDesk::productPage() const
{
    return app::productPage().toString();
}

bool ProgramDesk::hasUpdateHost() const
{
    return !app::updateHost().isEmpty();
}

QVariantList ProgramDesk::libraries() const
{
    QVariantList all;
    for (const platform::Library &library : platform::librariesInUse())
        all.append(described(library));
    all.append(described({QStringLiteral("SQLite"), presets::databaseVersion(), QStringLiteral("public domain")}));
    return all;
}

QString ProgramDesk::language() const
{
    return platform::languageOfTexts();
}

QString ProgramDesk::manual() const
{
    const QDir folder(interfaceFolder());
    const QString path = QDir::cleanPath(folder.filePath(QStringLiteral("../docs/manual")));
    return QFileInfo::exists(path + QStringLiteral("/index.md")) ? path : QString();
}

bool ProgramDesk::hasSamples() const
{
    return QFileInfo(app::samplesFolder()).isDir();
}

QString ProgramDesk::copySamples() const
{
    return app::copySamples().value_or(QString());
}

QString ProgramDesk::crashReport() const
{
    return platform::crashReport(app::crashFile());
}

void ProgramDesk::forgetCrash()
{
    QFile::remove(app::crashFile());
}

void ProgramDesk::noteWork(const QString &action, const QString &picture)
{
    platform::noteForCrashReport(QStringLiteral("Action: %1\nPicture: %2\n").arg(action, picture));
}

void ProgramDesk::lookForUpdate(const script::Function &taken)
{
    app::downloadText(app::versionFileAddress(), this, [this, taken](const platform::Result<QString> &text) {
        if (!taken.isCallable())
            return;
        const app::VersionAnswer answer = answerTo(text, build());
        const QJSValue result =
            taken.call({answer.fields ? QVariant(*answer.fields) : QVariant(), QVariant(answer.problem)});
        if (result.isError())
            platform::logLine(result.toString());
    });
}

void ProgramDesk::print(const QStringList &paths)
{
    app::PrintSettings &settings = app::sharedPrintSettings();
    recallPage(settings.page);
    app::fitOnPage(settings);
    app::printPictures(paths, settings, readByWorkers());
}

void ProgramDesk::setUpPage()
{
    QPageLayout &page = app::sharedPrintSettings().page;
    recallPage(page);
    runPageSetup(page);
    platform::setUserDefault(paperKey, int(page.pageSize().id()));
    platform::setUserDefault(landscapeKey, page.orientation() == QPageLayout::Landscape);
}

} // namespace window
