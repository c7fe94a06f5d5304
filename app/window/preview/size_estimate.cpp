#include "app/window/preview/size_estimate.h"

#include "jobs/names.h"
#include "jobs/services/recipe_service.h"

namespace window {

jobs::ReadRequest bytesRequest(const QString &path, const QVariantMap &result)
{
    const text::TokenFacts facts = jobs::factsOfFile(path, 0, true);
    QVariantMap values = {{QStringLiteral("created"), facts.created},
                          {QStringLiteral("changed"), facts.changed},
                          {QStringLiteral("bytes"), facts.bytes}};
    QStringList files;
    const QVariantMap recipe = result.value(QStringLiteral("recipe")).toMap();
    if (recipe.isEmpty()) {
        values.insert(QStringLiteral("type"), result.value(QStringLiteral("type")));
        values.insert(QStringLiteral("quality"), result.value(QStringLiteral("quality")));
    } else {
        values.insert(QStringLiteral("recipe"), recipe);
        files = jobs::filesOf(recipe).value_or(QStringList());
    }
    return {jobs::Reading::Bytes, path, values, files};
}

void SizeEstimate::measure(int number, const QString &path, const QVariantMap &result)
{
    m_reader.ask(bytesRequest(path, result), jobs::Urgency::Later, [this, number](const jobs::ReadResult &answer) {
        const double bytes = answer.value("bytes").toDouble();
        Q_EMIT measured(number, answer.isGood() && bytes > 0 ? bytes : -1);
    });
}

void SizeEstimate::stop()
{
    m_reader.drop();
}

} // namespace window
