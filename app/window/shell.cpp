#include "app/window/shell.h"

#include "app/jobs/job_driver.h"
#include "app/window/file_manager.h"
#include "app/window/forms/sheet_host.h"
#include "app/window/forms/ui_form.h"
#include "app/window/pictures/drop_target.h"
#include "app/window/preview/compare_preview.h"

#include "platform/controls/panels.h"
#include "platform/desktop/user_defaults.h"
#include "platform/foundation/raised.h"
#include "platform/values/fields.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileInfo>
#include <QFontMetrics>
#include <QGridLayout>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTimer>
#include <QUrl>

#include <algorithm>

namespace window {

namespace {

const QVariant nothing = QVariant::fromValue(nullptr);

// The toolkit makes a box as wide as its text, and a wider title is cut off by the frame.
void makeRoomForTitle(QMessageBox &box)
{
    constexpr int besidePx = 120; // the buttons of the frame
    auto *grid = qobject_cast<QGridLayout *>(box.layout());
    QFont bold = box.font();
    bold.setBold(true);
    const int needed = QFontMetrics(bold).horizontalAdvance(box.windowTitle()) + besidePx;
    if (grid)
        grid->addItem(new QSpacerItem(needed, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

QVariant firstPath(const platform::PanelRequest &request)
{
    const platform::PanelAnswer answer = platform::runPanel(request);
    return answer.accepted && !answer.paths.isEmpty() ? QVariant(answer.paths.constFirst()) : nothing;
}

struct Question
{
    QString title;
    QString text;
    QString detail;
    QStringList buttons;
    int initial = 0;
    int escape = 0;
    QString check;
};

Question questionFrom(const QVariantMap &dictionary)
{
    static const QStringList keys = {QStringLiteral("title"),   QStringLiteral("text"),    QStringLiteral("detail"),
                                     QStringLiteral("buttons"), QStringLiteral("initial"), QStringLiteral("escape"),
                                     QStringLiteral("check")};
    const platform::Fields fields(dictionary, QStringLiteral("question"), keys);
    Question question = {
        fields.text("title"), fields.text("text"), fields.text("detail"), fields.texts("buttons"), 0, 0,
        fields.text("check")};
    const auto count = int(question.buttons.size());
    if (count == 0)
        fields.reject("a list with at least one text", "buttons");
    const auto index = [&](const char *key, int otherwise) {
        const int value = fields.whole(key, otherwise);
        if (value < 0 || value >= count)
            fields.reject("the index of a button", key);
        return value;
    };
    question.initial = index("initial", 0);
    question.escape = index("escape", count - 1);
    return question;
}

} // namespace

Shell::Shell(const QString &interfaceFolder, Theme &theme, QObject *parent)
    : QObject(parent), m_folder(interfaceFolder), m_theme(theme)
{
    // Some settings are saved while windows close: scripts are told after that.
    platform::tellOfUnkeptUserDefaults([this] { QTimer::singleShot(0, this, &Shell::settingsNotKept); });
}

Shell::~Shell()
{
    platform::tellOfUnkeptUserDefaults({});
}

bool Shell::keepsSettings() const
{
    return platform::areUserDefaultsKept();
}

Form *Shell::loadForm(const QString &file)
{
    const auto form = Form::load(m_folder + QLatin1Char('/') + file, nullptr, this);
    if (!form)
        throw platform::Raised::error(form.error().message);
    m_windows.append((*form)->root());
    return *form;
}

void Shell::alignFields(const QObjectList &forms)
{
    QList<Form *> all;
    for (QObject *form : forms)
        if (auto *found = qobject_cast<Form *>(form))
            all.append(found);
        else
            throw platform::Raised::typeError(
                QStringLiteral("Expected a Form for forms[%1] but received something else").arg(all.size()));
    Form::alignFields(all);
}

DropTarget *Shell::dropTarget(Form *form)
{
    return form && form->root() ? new DropTarget(form->root()) : nullptr;
}

ComparePreview *Shell::largePreview(Form *form)
{
    if (!form || !form->root())
        return nullptr;
    auto *preview = new ComparePreview(form->root());
    preview->setObjectName(QStringLiteral("largePreview"));
    preview->setShowsResult(false);
    preview->setSingle(true);
    preview->coverParent();
    preview->hide();
    return preview;
}

void Shell::cover(QWidget *widget)
{
    if (!widget || !widget->parentWidget())
        return;
    widget->setGeometry(widget->parentWidget()->rect());
    widget->raise();
    widget->show();
    widget->setFocus(Qt::OtherFocusReason);
}

SheetHost *Shell::sheetHost(Form *form)
{
    return form && form->root() ? new SheetHost(*form->root()) : nullptr;
}

ScriptTimer *Shell::timer(const script::Function &handler)
{
    return new ScriptTimer(handler, this);
}

JobDriver *Shell::job()
{
    return new JobDriver(this);
}

SaveChoice *Shell::saveChoice()
{
    return new SaveChoice(this);
}

SizeEstimate *Shell::sizeEstimate()
{
    return new SizeEstimate(this);
}

QVariantMap Shell::ask(const QVariantMap &question)
{
    const Question asked = questionFrom(question);
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(asked.title);
    box.setText(asked.text);
    box.setInformativeText(asked.detail);
    QList<QAbstractButton *> buttons;
    for (const QString &text : asked.buttons)
        buttons.append(box.addButton(text, QMessageBox::AcceptRole));
    box.setDefaultButton(qobject_cast<QPushButton *>(buttons.at(asked.initial)));
    box.setEscapeButton(buttons.at(asked.escape));
    auto *checkBox = asked.check.isEmpty() ? nullptr : new QCheckBox(asked.check, &box);
    if (checkBox)
        box.setCheckBox(checkBox);
    makeRoomForTitle(box);
    box.exec();
    const int clicked = int(buttons.indexOf(box.clickedButton()));
    return {{QStringLiteral("button"), clicked < 0 ? asked.escape : clicked},
            {QStringLiteral("checked"), checkBox && checkBox->isChecked()}};
}

QVariant Shell::chooseFolder(const QString &title, const QString &start)
{
    return chooseFolderWith(title, start, nullptr);
}

QVariant Shell::chooseFolderWith(const QString &title, const QString &start, Form *form)
{
    platform::PanelRequest request;
    request.choosesFiles = false;
    request.choosesFolders = true;
    request.createsFolders = true;
    request.message = title;
    request.folder = start;
    request.accessory = form ? form->root() : nullptr;
    return firstPath(request);
}

QVariant Shell::chooseFile(const QString &title, const QString &folder, const QStringList &extensions)
{
    platform::PanelRequest request;
    request.types = extensions;
    request.message = title;
    request.folder = folder;
    return firstPath(request);
}

QStringList Shell::chooseFiles(const QString &title, const QString &folder, const QStringList &extensions)
{
    platform::PanelRequest request;
    request.choosesSeveral = true;
    if (!extensions.isEmpty())
        request.types = extensions;
    request.message = title;
    request.folder = folder;
    const platform::PanelAnswer answer = platform::runPanel(request);
    return answer.accepted ? answer.paths : QStringList();
}

QVariant Shell::chooseNewFile(const QString &title, const QString &folder, const QString &name,
                              const QString &extension)
{
    platform::PanelRequest request;
    request.kind = platform::PanelKind::Save;
    request.createsFolders = true;
    request.types = QStringList{extension};
    request.message = title;
    request.folder = folder;
    request.name = name;
    return firstPath(request);
}

bool Shell::openFolder(const QString &folder)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}

bool Shell::openFile(const QString &path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

QString Shell::temporaryFolder()
{
    if (!m_temporary)
        m_temporary = std::make_unique<QTemporaryDir>();
    return m_temporary->isValid() ? m_temporary->path() : QStringLiteral("");
}

void Shell::showInFolder(const QString &path)
{
    window::showInFolder(path);
}

void Shell::copyText(const QString &text)
{
    QApplication::clipboard()->setText(text);
}

QStringList Shell::clipboardPaths() const
{
    const QMimeData *data = QApplication::clipboard()->mimeData();
    QStringList paths;
    if (!data)
        return paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl &url : urls)
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    if (!paths.isEmpty())
        return paths;
    const QStringList lines = data->text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines)
        if (QFileInfo(line.trimmed()).isAbsolute() && QFileInfo::exists(line.trimmed()))
            paths.append(line.trimmed());
    return paths;
}

void Shell::quit()
{
    QApplication::closeAllWindows();
    QApplication::quit();
}

void Shell::setMainForm(Form *form)
{
    m_mainForm = form;
    auto *window = m_mainForm ? qobject_cast<QMainWindow *>(m_mainForm->root()) : nullptr;
    m_fullScreen.attach(nullptr);
    m_mainFrame.reset();
    if (!window)
        return;
    m_desktop.setWindow(window);
    m_mainFrame = std::make_unique<MainFrame>(*window);
    m_fullScreen.attach(m_mainFrame.get());
    m_fullScreen.initWithContentRect(window->geometry(), 0, 0, platform::Flag());
    window->setAttribute(Qt::WA_ShowWithoutActivating, !m_fullScreen.canBecomeKeyWindow());
    connect(m_mainForm, &Form::closing, this, [this] { m_fullScreen.windowWillClose({}); });
}

void Shell::toggleFullScreen()
{
    m_fullScreen.toggleFullscreen();
}

void Shell::closeAll()
{
    m_fullScreen.attach(nullptr);
    m_mainFrame.reset();
    // A pane that was put into a window is deleted with it.
    QList<QWidget *> windows;
    std::copy_if(m_windows.cbegin(), m_windows.cend(), std::back_inserter(windows),
                 [](const QWidget *widget) { return widget && widget->parentWidget() == nullptr; });
    m_windows.clear();
    qDeleteAll(windows);
}

} // namespace window
