#pragma once

#include "app/models/property_words.h"

#include <QTreeWidget>
#include <QVariant>

#include <optional>

namespace window {

/**
 * The properties of one picture as a tree of names and values, with units in words; searchable, and copied by value or
 * branch.
 *
 * Opened and closed branches stay so from picture to picture.
 */
class PropertyTree : public QTreeWidget
{
    Q_OBJECT
    /** How many values are shown. */
    Q_PROPERTY(int shownCount READ shownCount)
    /** Whether the picture says where it was taken. */
    Q_PROPERTY(bool hasPlace READ hasPlace)

public:
    explicit PropertyTree(QWidget *parent = nullptr);

    int shownCount() const;
    bool hasPlace() const { return m_place.has_value(); }

    /** Shows the properties of the file at @p path; false, with nothing shown, if it is no picture. */
    Q_INVOKABLE bool showFile(const QString &path);
    /**
     * Compares the properties of several files, a column each; a property in which they differ has a mark before its
     * name. False, with nothing shown, if one of them is no picture.
     */
    Q_INVOKABLE bool showFiles(const QStringList &paths);
    /** How many properties have the mark. */
    Q_INVOKABLE int differenceCount() const;
    /** Shows the values in whose name or words every word of @p text occurs, in any case of letters. */
    Q_INVOKABLE void look(const QString &text);
    /** Copies the chosen value, or the whole chosen branch, to the clipboard; returns how many lines. */
    Q_INVOKABLE int copyChosen() const;
    /** Copies the location to the clipboard, in "degrees" or in "minutes", and returns it; see placeWords(). */
    Q_INVOKABLE QString copyPlace(const QString &form) const;
    /**
     * The value in words of a property, by the names shown: ["Exif", "F-number"]; "" if it does not exist. For tests
     * and scripts.
     */
    Q_INVOKABLE QString words(const QStringList &names) const;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void add(const QList<QVariantMap> &pictures, QTreeWidgetItem *above);
    void addValues(QTreeWidgetItem &item, const QString &name, const QList<QVariantMap> &pictures);
    void useColumns(const QStringList &paths);
    bool filter(QTreeWidgetItem *item, bool isShown);

    static bool hasWord(const QTreeWidgetItem &item, const QString &word);
    void addMenu();

    std::optional<Place> m_place;
    QStringList m_words; ///< looked for
    QStringList m_closed;
};

} // namespace window
