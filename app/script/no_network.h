#pragma once

#include <QQmlNetworkAccessManagerFactory>

namespace script {

/**
 * The engine brings an XMLHttpRequest that cannot be removed. Scripts need none, so each of its requests fails before anything
 * is looked up, read or sent, files of this machine included.
 */
class NoNetwork : public QQmlNetworkAccessManagerFactory
{
public:
    QNetworkAccessManager *create(QObject *parent) override;
};

} // namespace script
