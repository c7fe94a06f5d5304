#include "app/window/program_desk.h"

#include "app/network/download.h"
#include "app/network/version_file.h"
#include "app/printing/print_settings.h"
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
#include <QProcess>
#include <QVersionNumber>

namespace window {

namespace {

const QString paperKey = QStringLiteral("PrintPaper");
const QString landscapeKey = QStringLiteral("PrintLandscape");

/** The user's choice from an earlier run, restored once. */
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

/** Also for a file that ends too early, which is an error for the caller. */
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

QVariantMap ProgramDesk::choosePrinter(int pages, double width, double height)
{
    const auto key = [](const char *name) { return QString::fromLatin1(name); };
    const QSizeF paper(std::min(width, height), std::max(width, height));
    platform::PanelRequest request;
    request.kind = platform::PanelKind::Print;
    request.pageCount = pages;
    request.page = QPageLayout(QPageSize(paper, QPageSize::Point, QString(), QPageSize::FuzzyMatch),
                               width > height ? QPageLayout::Landscape : QPageLayout::Portrait, {}, QPageLayout::Point);
    const platform::PanelAnswer answer = platform::runPanel(request);
    if (!answer.accepted)
        return {{key("accepted"), false}};
    const PrinterChoice choice = chosenPrinter(answer);
    const QVariantMap order = {{key("from"), answer.pages.from},
                               {key("to"), answer.pages.to},
                               {key("copies"), answer.pages.copies},
                               {key("collated"), answer.pages.areCollated},
                               {key("backwards"), answer.pages.isBackwards}};
    return {{key("accepted"), !choice.file.isEmpty() || !choice.arguments.isEmpty()},
            {key("file"), choice.file},
            {key("printer"), choice.arguments},
            {key("order"), order}};
}

void ProgramDesk::sendToPrinter(const QString &path, const QStringList &printer, const script::Function &taken)
{
    auto *process = new QProcess(this);
    const auto answer = [process, taken](const QString &problem) {
        process->disconnect();
        process->deleteLater();
        const QJSValue result = taken.isCallable() ? taken.call({QVariant(problem)}) : QJSValue();
        if (result.isError())
            platform::logLine(result.toString());
    };
    connect(process, &QProcess::errorOccurred, this, [answer](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            answer(tr("The lp command of the print system is missing."));
    });
    connect(process, &QProcess::finished, this, [answer, process](int code, QProcess::ExitStatus status) {
        const bool isTaken = status == QProcess::NormalExit && code == 0;
        const QString said = QString::fromLocal8Bit(process->readAllStandardError()).trimmed();
        answer(isTaken ? QStringLiteral("") : tr("The print system did not accept the pages: %1").arg(said));
    });
    // Opened here: a path below a descriptor of this process is another one for the command.
    process->setStandardInputFile(path);
    process->start(QStringLiteral("lp"), printer);
}

QVariantMap ProgramDesk::paper() const
{
    QPageLayout &page = app::sharedPrintSettings().page;
    recallPage(page);
    const QSizeF size = page.pageSize().size(QPageSize::Millimeter);
    return {{QStringLiteral("width"), size.width()},
            {QStringLiteral("height"), size.height()},
            {QStringLiteral("landscape"), page.orientation() == QPageLayout::Landscape}};
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
