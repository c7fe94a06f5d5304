#include "app/window/save_dialog.h"

#include "app/window/dialog_panels.h"

#include "platform/desktop/save_panel.h"
#include "platform/foundation/paths.h"
#include "platform/foundation/type_identifiers.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>

namespace window {
namespace {

/** The toolkit's own field for the name. */
QLineEdit *nameField(const QFileDialog &dialog)
{
    return dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
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
    return (hasBefore ? platform::baseName(name) : name) + u'.' + extension;
}

SaveDialog::SaveDialog(const platform::PanelRequest &request, QWidget *parent)
    : QFileDialog(parent), m_allowsOthers(request.allowsOtherTypes)
{
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    setOption(DontUseNativeDialog);
    setOption(DontConfirmOverwrite); // asked about the name with its extension
    setWindowTitle(request.message.isEmpty() ? tr("Save As") : request.message);
    selectFile(request.name);
    allow(request.types.value_or(QStringList()));
    if (request.showsTagField)
        addTagField();
    if (auto *view = qobject_cast<QWidget *>(request.accessory.data()))
        addView(view);
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
    setNameFilter(panelFilter(types)); // which may take for an extension what is none
    setDefaultSuffix(types.constFirst());
    if (field)
        field->setText(renamedTo(name, types.constFirst(), before));
}

void SaveDialog::addView(QWidget *view)
{
    m_view = view;
    auto *grid = qobject_cast<QGridLayout *>(layout());
    grid->addWidget(view, grid->rowCount(), 0, 1, grid->columnCount());
    view->show();
}

void SaveDialog::addTagField()
{
    auto *grid = qobject_cast<QGridLayout *>(layout());
    auto *label = new QLabel(tr("Ta&gs:"), this);
    m_tags = new QLineEdit(this);
    m_tags->setObjectName(QStringLiteral("tagField"));
    m_tags->setPlaceholderText(tr("separated by commas"));
    m_tags->setAccessibleName(tr("Tags, separated by commas"));
    label->setBuddy(m_tags);
    const int row = grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(m_tags, row, 1);
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
                                tr("“%1” is there already. Replace it?").arg(platform::lastPathComponent(path)),
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
