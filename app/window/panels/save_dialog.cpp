#include "app/window/panels/save_dialog.h"

#include "app/window/panels/dialog_panels.h"
#include "app/window/panels/panel_files.h"

#include "platform/controls/save_panel.h"
#include "platform/desktop/user_defaults.h"
#include "platform/foundation/paths.h"
#include "platform/imageio/formats/type_identifiers.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QSplitter>
#include <QTreeView>

namespace window {
namespace {

/** The toolkit's own field for the name. */
QLineEdit *nameField(const QFileDialog &dialog)
{
    return dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
}

constexpr int placesWidth = 170;
constexpr int nameRow = 2;            // of the toolkit's own layout
constexpr double mostOfScreen = 0.95; // the frame of the window is added to this

QString sizeKey(const QWidget *view)
{
    return view ? QStringLiteral("PictureSavePanelSize") : QStringLiteral("SavePanelSize");
}

} // namespace

QString withAllowedExtension(const QString &path, const QStringList &types)
{
    const QString extension = platform::pathExtension(path);
    const QString meant = platform::typeIdentifierForExtension(extension);
    for (const QString &type : types)
        if (extension.compare(type, Qt::CaseInsensitive) == 0 || meant == platform::typeIdentifierForExtension(type))
            return path;
    return types.isEmpty() ? path : path + u'.' + types.constFirst();
}

QString renamedTo(const QString &name, const QString &extension, const QString &before)
{
    if (name.isEmpty())
        return name;
    const bool hasBefore = !before.isEmpty() && withAllowedExtension(name, {before}) == name;
    return hasBefore ? platform::baseName(name) + u'.' + extension : withAllowedExtension(name, {extension});
}

SaveDialog::SaveDialog(const platform::PanelRequest &request, QWidget *parent)
    : QFileDialog(parent), m_allowsOthers(request.allowsOtherTypes)
{
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    setOption(DontUseNativeDialog);
    showFilesInOwnForm(*this);
    setOption(DontConfirmOverwrite); // the question names the file with its extension
    setWindowTitle(request.message.isEmpty() ? tr("Save As") : request.message);
    selectFile(request.name);
    allow(request.types.value_or(QStringList()));
    arrange(request);
    takeSize();
    if (request.panel)
        connect(request.panel, &platform::SavePanel::allowedTypesChanged, this, &SaveDialog::allow);
}

SaveDialog::~SaveDialog()
{
    if (m_view)
        m_view->setParent(nullptr);
}

void SaveDialog::allow(const QStringList &types)
{
    const QString before = m_types.value(0);
    m_types = types;
    if (types.isEmpty())
        return;
    QLineEdit *field = nameField(*this);
    const QString name = field ? field->text() : QString();
    QStringList shown;
    for (const QString &type : types)
        shown += platform::extensionsOfSameType(type);
    setNameFilter(panelFilter(shown)); // which may mistake part of a name for an extension
    setDefaultSuffix(types.constFirst());
    if (field)
        field->setText(renamedTo(name, types.constFirst(), before));
}

void SaveDialog::arrange(const platform::PanelRequest &request)
{
    auto *grid = qobject_cast<QGridLayout *>(layout());
    const auto part = [this](const char *name) { return findChild<QWidget *>(QString::fromLatin1(name)); };
    // Only the allowed type can be selected there.
    part("fileTypeLabel")->hide();
    part("fileTypeCombo")->hide();
    auto *buttons = findChild<QDialogButtonBox *>(QStringLiteral("buttonBox"));
    grid->removeWidget(part("fileNameEdit"));
    grid->removeWidget(buttons);
    grid->addWidget(part("fileNameEdit"), nameRow, 1, 1, -1);
    constexpr int filesRow = 1;
    constexpr int filesShare = 3;
    grid->setRowStretch(filesRow, filesShare);
    grid->setColumnStretch(1, 1); // else wide parts below make the column of labels wide too
    showNames();
    if (request.showsTagField)
        addTagField(grid);
    // The window that owns the panel cannot be inside the panel.
    auto *view = qobject_cast<QWidget *>(request.accessory.data());
    if (view && !view->isAncestorOf(this))
        addView(grid, view);
    buttons->setOrientation(Qt::Horizontal);
    grid->addWidget(buttons, grid->rowCount(), 0, 1, -1);
}

/** Enough width for names of files and places, which the toolkit truncates. */
void SaveDialog::showNames()
{
    setLabelText(LookIn, tr("Save in:"));
    // A path may be wider than any window.
    if (auto *path = findChild<QComboBox *>(QStringLiteral("lookInCombo"))) {
        path->setToolTip(path->currentText());
        connect(path, &QComboBox::currentTextChanged, path, &QComboBox::setToolTip);
    }
    if (auto *list = findChild<QTreeView *>(QStringLiteral("treeView"))) {
        constexpr int measuredRows = 50; // listing a whole folder would take long
        list->header()->setResizeContentsPrecision(measuredRows);
        list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
    if (auto *parts = findChild<QSplitter *>(QStringLiteral("splitter")))
        parts->setSizes({placesWidth, parts->width()});
}

void SaveDialog::addView(QGridLayout *grid, QWidget *view)
{
    m_view = view;
    const int row = grid->rowCount();
    constexpr int viewShare = 2;
    grid->setRowStretch(row, viewShare);
    grid->addWidget(view, row, 0, 1, -1);
    view->show();
}

void SaveDialog::addTagField(QGridLayout *grid)
{
    auto *label = new QLabel(tr("Ta&gs:"), this);
    m_tags = new QLineEdit(this);
    m_tags->setObjectName(QStringLiteral("tagField"));
    m_tags->setPlaceholderText(tr("separated by commas"));
    m_tags->setAccessibleName(tr("Tags, separated by commas"));
    label->setBuddy(m_tags);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(m_tags, row, 1, 1, -1);
    setTabOrder(nameField(*this), m_tags);
}

void SaveDialog::takeSize()
{
    const QSize usual = m_view ? QSize(1000, 680) : QSize(760, 520);
    const QVariantList kept = platform::userDefault(sizeKey(m_view)).toList();
    const QSize size = kept.size() == 2 ? QSize(kept[0].toInt(), kept[1].toInt()) : usual;
    resize(size.boundedTo(screen()->availableSize() * mostOfScreen).expandedTo(minimumSizeHint()));
}

void SaveDialog::done(int result)
{
    platform::setUserDefault(sizeKey(m_view), QVariantList{width(), height()});
    QFileDialog::done(result);
}

QString SaveDialog::chosenPath() const
{
    const QString path = selectedFiles().value(0);
    return m_allowsOthers ? path : withAllowedExtension(path, m_types);
}

QStringList SaveDialog::tags() const
{
    QStringList tags;
    const QStringList typed = m_tags ? m_tags->text().split(u',') : QStringList();
    for (const QString &tag : typed)
        if (!tag.trimmed().isEmpty())
            tags.append(tag.trimmed());
    return tags;
}

bool SaveDialog::mayReplace(const QString &path)
{
    return QMessageBox::warning(this, windowTitle(),
                                tr("“%1” already exists. Replace it?").arg(platform::lastPathComponent(path)),
                                QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

void SaveDialog::accept()
{
    const QFileInfo chosen(chosenPath());
    if (chosen.isFile() && !mayReplace(chosen.filePath()))
        return;
    QFileDialog::accept();
}

} // namespace window
