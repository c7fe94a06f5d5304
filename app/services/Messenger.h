#pragma once

#include <QObject>

/** Texts by key, from tables by name. */
class Messenger : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE explicit Messenger(QObject *parent = nullptr) : QObject(parent) {}

    /**
     * The text of @p key in the strings table @p table, in the main one if that is null or empty.
     *
     * @return @p defaultValue, or without one the key, if there is no such table or no such key in it
     */
    Q_INVOKABLE QString getLangStr(const QString &key, const QString &defaultValue, const QString &table) const;
};
