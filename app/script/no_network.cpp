#include "app/script/no_network.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QUrl>

namespace script {
namespace {

class Refusing : public QNetworkAccessManager
{
public:
    using QNetworkAccessManager::QNetworkAccessManager;

protected:
    QNetworkReply *createRequest(Operation operation, const QNetworkRequest &, QIODevice *) override
    {
        // A scheme that nobody serves: the reply is an error at once.
        return QNetworkAccessManager::createRequest(operation, QNetworkRequest(QUrl(QStringLiteral("nothing:"))),
                                                    nullptr);
    }
};

} // namespace

QNetworkAccessManager *NoNetwork::create(QObject *parent)
{
    return new Refusing(parent);
}

} // namespace script
