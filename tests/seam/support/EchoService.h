#pragma once

#include "platform/imageio/source/picture.h"
#include "platform/plist/property_value.h"
#include "platform/values/flag.h"
#include "platform/values/sender.h"

#include <QDateTime>
#include <QJSValue>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QRectF>
#include <QSizeF>
#include <QUrl>
#include <QVariant>

/** A small service of another class, for fields and arguments of one class only. */
class EchoPartner : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int number MEMBER m_number)

public:
    Q_INVOKABLE EchoPartner *itself() { return this; }

private:
    int m_number = 0;
};

/** Has an operation with a parameter of every kind that says in words what arrived, and one that answers every kind. */
class EchoService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("ClassOperations", "shared  count")
    Q_PROPERTY(QObject *outlet READ outlet WRITE setOutlet)
    Q_PROPERTY(EchoPartner *partner READ partner WRITE setPartner)
    Q_PROPERTY(int whole MEMBER m_whole)
    Q_PROPERTY(double number MEMBER m_number)
    Q_PROPERTY(QString text MEMBER m_text)
    Q_PROPERTY(QVariantMap dictionary MEMBER m_dictionary)
    Q_PROPERTY(QVariant any MEMBER m_any)
    Q_PROPERTY(QSizeF size MEMBER m_size)
    Q_PROPERTY(QString fixed READ fixed)

public:
    EchoService() { ++livingCount; }
    ~EchoService() override { --livingCount; }

    // What arrived.
    Q_INVOKABLE QString takeText(const QString &text) const;
    Q_INVOKABLE QString takeWhole(int number) const { return QString::number(number); }
    Q_INVOKABLE QString takeUnsigned(uint number) const { return QString::number(number); }
    Q_INVOKABLE QString takeNumber(double number) const { return QString::number(number, 'g', 17); }
    Q_INVOKABLE QString takeSingle(float number) const { return QString::number(double(number), 'g', 9); }
    Q_INVOKABLE QString takeTruth(bool answer) const;
    Q_INVOKABLE QString takeFlag(platform::Flag flag) const;
    Q_INVOKABLE QString takeSender(platform::Sender) const { return QStringLiteral("taken"); }
    Q_INVOKABLE QString takeAny(const QVariant &thing) const;
    Q_INVOKABLE QString takeProperty(const platform::PropertyValue &thing) const { return takeAny(thing.value); }
    Q_INVOKABLE QString takeDictionary(const QVariantMap &dictionary) const;
    Q_INVOKABLE QString takeList(const QVariantList &list) const;
    Q_INVOKABLE QString takeTexts(const QStringList &names) const;
    Q_INVOKABLE QString takeData(const QByteArray &data) const;
    Q_INVOKABLE QString takeDate(const QDateTime &date) const;
    Q_INVOKABLE QString takeLocation(const QUrl &location) const;
    Q_INVOKABLE QString takeSize(const QSizeF &size) const;
    Q_INVOKABLE QString takePoint(const QPointF &point) const;
    Q_INVOKABLE QString takeRectangle(const QRectF &rectangle) const;
    Q_INVOKABLE QString takeControl(QObject *control) const;
    Q_INVOKABLE QString takePartner(EchoPartner *partner) const;
    Q_INVOKABLE QString takeHandle(const platform::BitmapHandle &handle) const;
    Q_INVOKABLE QString takePicture(const platform::Picture &picture) const;
    Q_INVOKABLE void emptyInPlace(QJSValue list) const;
    Q_INVOKABLE QString takeTwo(const QString &name, int count) const { return name + QString::number(count); }
    Q_INVOKABLE int takeMany(int a, int b, int c, int d, int e, int f, int g, int h, int i, int j, int k, int l) const;

    // What is answered.
    Q_INVOKABLE void giveNothing() const {}
    Q_INVOKABLE QString giveText(const QString &text) const { return text; }
    Q_INVOKABLE QVariant giveAny(const platform::PropertyValue &thing) const { return thing.value; }
    Q_INVOKABLE QVariantMap giveDictionary(const QVariantMap &dictionary) const { return dictionary; }
    Q_INVOKABLE QVariantList giveList(const QVariantList &list) const { return list; }
    Q_INVOKABLE QStringList giveTexts(const QStringList &names) const { return names; }
    Q_INVOKABLE QByteArray giveData(const QByteArray &data) const { return data; }
    Q_INVOKABLE QDateTime giveDate(const QDateTime &date) const { return date; }
    Q_INVOKABLE QUrl giveLocation(const QUrl &location) const { return location; }
    Q_INVOKABLE QUrl giveLocationOf(const QString &path) const { return QUrl::fromLocalFile(path); }
    Q_INVOKABLE QSizeF giveSize(const QSizeF &size) const { return size; }
    Q_INVOKABLE QPointF givePoint(const QPointF &point) const { return point; }
    Q_INVOKABLE QRectF giveRectangle(const QRectF &rectangle) const { return rectangle; }
    Q_INVOKABLE uint giveUnsigned(uint number) const { return number; }
    Q_INVOKABLE float giveSingle(float number) const { return number; }
    Q_INVOKABLE bool giveTruth(bool answer) const { return answer; }
    Q_INVOKABLE QObject *giveControl(QObject *control) const { return control; }
    Q_INVOKABLE platform::BitmapHandle giveHandle(bool isNull) const;
    Q_INVOKABLE EchoService *itself() { return this; }
    Q_INVOKABLE QObject *newPartner() const { return new EchoPartner; }

    // What is raised and thrown.
    Q_INVOKABLE QString raiseInconsistency(const QString &message) const;
    Q_INVOKABLE QString raiseRange(const QString &message) const;
    Q_INVOKABLE QString raiseType(const QString &message) const;
    Q_INVOKABLE QString throwStandard(const QString &message) const;
    Q_INVOKABLE QString throwNumber() const;

    // On the class.
    Q_INVOKABLE QString shared(const QString &text) const { return text; }
    Q_INVOKABLE int count() { return ++m_count; }

    QString fixed() const { return QStringLiteral("fixed"); }
    QObject *outlet() const { return m_outlet; }
    void setOutlet(QObject *outlet) { m_outlet = outlet; }
    EchoPartner *partner() const { return m_partner; }
    void setPartner(EchoPartner *partner) { m_partner = partner; }

    static int livingCount;

Q_SIGNALS:
    void notForScripts();

public Q_SLOTS:
    void notForScriptsEither() {}

private:
    QPointer<QObject> m_outlet;
    QPointer<EchoPartner> m_partner;
    int m_whole = 0;
    double m_number = 0;
    QString m_text;
    QVariantMap m_dictionary;
    QVariant m_any;
    QSizeF m_size = QSizeF(0, 0);
    int m_count = 0;
};
