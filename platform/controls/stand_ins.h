#pragma once

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariant>

/**
 * Stand-ins for the controls of a window: the properties that services read and write, without anything visible.
 *
 * Null and empty text differ here: setters assign whatever they get. Services never name these types; they access every
 * control, stand-in or real, through controls.h.
 */
namespace platform {

class TextField : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString stringValue READ stringValue WRITE setStringValue)
    Q_PROPERTY(bool enabled MEMBER m_enabled)

public:
    QString stringValue() const { return m_stringValue; }
    void setStringValue(const QString &value) { m_stringValue = value; }

private:
    QString m_stringValue = QStringLiteral("");
    bool m_enabled = true;
};

class CheckBox : public QObject
{
    Q_OBJECT
    /** 1 checked, 0 not, -1 partly. */
    Q_PROPERTY(int state MEMBER m_state)
    Q_PROPERTY(bool enabled MEMBER m_enabled)

    int m_state = 0;
    bool m_enabled = true;
};

class ColorWell : public QObject
{
    Q_OBJECT
    /** "#rrggbb". Raises a TypeError for any other text. */
    Q_PROPERTY(QString color READ color WRITE setColor)
    Q_PROPERTY(bool enabled MEMBER m_enabled)

public:
    QString color() const { return m_color; }
    void setColor(const QString &color);

private:
    QString m_color = QStringLiteral("#000000");
    bool m_enabled = true;
};

class SegmentedControl : public QObject
{
    Q_OBJECT
    /** From 0; -1 if none is selected. */
    Q_PROPERTY(int selectedSegment MEMBER m_selectedSegment)

    int m_selectedSegment = 0;
};

class TabView : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString selectedLabel READ selectedLabel WRITE setSelectedLabel)

public:
    QString selectedLabel() const { return m_selectedLabel; }
    void setSelectedLabel(const QString &label) { m_selectedLabel = label; }

private:
    QString m_selectedLabel = QStringLiteral("");
};

class PopUpButton : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QStringList titles MEMBER m_titles)
    Q_PROPERTY(QString selectedTitle READ selectedTitle WRITE setSelectedTitle)
    Q_PROPERTY(bool enabled MEMBER m_enabled)

public:
    QString selectedTitle() const { return m_selectedTitle; }
    void setSelectedTitle(const QString &title) { m_selectedTitle = title; }

private:
    QStringList m_titles;
    QString m_selectedTitle = QStringLiteral("");
    bool m_enabled = true;
};

class TextView : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    QString text() const { return m_text; }
    void setText(const QString &text) { m_text = text; }

private:
    QString m_text = QStringLiteral("");
};

class ProgressIndicator : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double value READ value WRITE setValue)
    Q_PROPERTY(double maximum MEMBER m_maximum)
    Q_PROPERTY(bool visible MEMBER m_visible)
    Q_PROPERTY(bool indeterminate MEMBER m_indeterminate)
    /** Every value that was set, oldest first. */
    Q_PROPERTY(QVariantList history READ history)

public:
    double value() const { return m_value; }
    void setValue(double value);
    QVariantList history() const { return m_history; }

private:
    double m_value = 0;
    double m_maximum = 100;
    bool m_visible = true;
    bool m_indeterminate = false;
    QVariantList m_history;
};

class ArrayController : public QObject
{
    Q_OBJECT
    /** Dictionaries, in the order in which they were added. */
    Q_PROPERTY(QVariantList rows MEMBER m_rows)

    QVariantList m_rows;
};

class TableView : public QObject
{
    Q_OBJECT
    /** How often the table was told to reload. */
    Q_PROPERTY(int reloads MEMBER m_reloads)

    int m_reloads = 0;
};

class TreeController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList content MEMBER m_content)

    QVariantList m_content;
};

class Window : public QObject
{
    Q_OBJECT
    /** The sheet that is open on the window, or null. */
    Q_PROPERTY(QObject *sheet READ sheet WRITE setSheet)

public:
    QObject *sheet() const { return m_sheet; }
    void setSheet(QObject *sheet) { m_sheet = sheet; }

private:
    QPointer<QObject> m_sheet; ///< the sheet belongs to its maker and may be destroyed first
};

} // namespace platform
