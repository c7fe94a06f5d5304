#pragma once

#include "app/seam/function.h"
#include "platform/foundation/result.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariant>
#include <QWidget>

namespace window {

/** A window or pane loaded from a .ui file, as scripts use it. */
class Form : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool shown READ isShown WRITE setShown)
    /** The window title and the name in the desktop's list of windows. */
    Q_PROPERTY(QString title READ title WRITE setTitle)

public:
    Form(QWidget *root, const QString &file, QObject *parent);

    /** Loads @p file. Fails with Unreadable. The form owns nothing: the widget has a parent or is a window. */
    static platform::Result<Form *> load(const QString &file, QWidget *parentWidget, QObject *owner);

    QWidget *root() const { return m_root; }
    bool isShown() const;
    void setShown(bool shown);
    QString title() const;
    void setTitle(const QString &title);

    /** The control, action or menu of that name; throws a ReferenceError if there is none. */
    Q_INVOKABLE QObject *control(const QString &name);
    Q_INVOKABLE QStringList names() const;

    /** Puts another form into the layout of the container @p name. */
    Q_INVOKABLE void place(const QString &name, window::Form *other);
    /** Makes the Tab key follow the layout: row by row, container by container. */
    Q_INVOKABLE void arrangeTabs();
    /** The entries of a combo box: texts and the values behind them; "-" is a separator. */
    Q_INVOKABLE void setItems(const QString &name, const QStringList &texts, const QVariantList &values);
    Q_INVOKABLE QVariant value(const QString &name);
    /** Chooses the entry with that value; false if there is none. */
    Q_INVOKABLE bool chooseValue(const QString &name, const QVariant &value);
    Q_INVOKABLE void setIcon(const QString &name, const QString &icon);
    /** Sets a property that the style sheet uses and redraws the control. */
    Q_INVOKABLE void setLook(const QString &name, const QString &property, const QString &value);
    /** The entries of a menu, or of the menu of a button: each calls @p chosen with its value. "-" is a separator, and an
     * entry whose value is null cannot be chosen. */
    Q_INVOKABLE void setMenu(const QString &name, const QStringList &texts, const QVariantList &values,
                             const script::Function &chosen);
    /**
     * Sizes of the parts of a splitter, in pixels; a size that the user set and that was remembered takes precedence.
     */
    Q_INVOKABLE void setSplit(const QString &name, const QVariantList &sizes);
    /** Makes several tool actions or menu entries mutually exclusive. */
    Q_INVOKABLE void group(const QStringList &names);

    Q_INVOKABLE void show();
    /** Brings the window to the front. */
    Q_INVOKABLE void raise();
    Q_INVOKABLE void close();
    /**
     * Remembers size, position and splitters of this window under @p key, and restores them; at first it fits the
     * screen.
     */
    Q_INVOKABLE void remember(const QString &key);
    /** Called when the user closes the window; if it returns false, the window stays open. */
    Q_INVOKABLE void onClose(const script::Function &handler) { m_onClose = handler; }

    /** Gives all labels with the role "field" of the forms the width of the widest, so that the fields line up. */
    static void alignFields(const QList<Form *> &forms);

Q_SIGNALS:
    /** The user closed the window, and nothing kept it open. */
    void closing();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QObject *find(const QString &name, const char *kind);
    void keepLayout() const;

    QPointer<QWidget> m_root;
    QString m_file;
    QString m_key;
    script::Function m_onClose;
};

} // namespace window
