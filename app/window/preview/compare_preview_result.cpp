#include "app/window/preview/compare_preview.h"

#include "app/window/look/screen_look.h"
#include "app/window/preview/preview_host.h"

#include "jobs/names.h"
#include "jobs/services/recipe_service.h"

// What the settings make of the picture, and how large its file will be.
namespace window {

namespace {
/** The effect of a setting on the size is computed once nobody is changing it. */
constexpr int stillMs = 500;
} // namespace

bool ComparePreview::wantsResult() const
{
    return m_shownPath == m_path && !m_base.isNull() && m_showsResult && !m_wanted.size.isEmpty();
}

void ComparePreview::render()
{
    m_asked.stop();
    m_estimatedBytes = -1;
    m_bytesReader.drop();
    m_still.stop();
    if (!wantsResult()) {
        m_resultReader.drop();
        m_resultImage = {};
        m_resultPart = {};
        m_scaledResult = {};
        m_resultProblem = m_wanted.message;
        update();
        return;
    }
    askForResult();
    // Viewing the same result again does not make its file again.
    if (!m_isSingle)
        m_still.start(stillMs);
}

/** What is known about the file without reading it, for tokens. */
QVariantMap ComparePreview::factValues() const
{
    const text::TokenFacts facts = jobs::factsOfFile(m_path, 0, true);
    return {{QStringLiteral("created"), facts.created},
            {QStringLiteral("changed"), facts.changed},
            {QStringLiteral("bytes"), facts.bytes}};
}

void ComparePreview::askForResult()
{
    m_isResultStale = m_resultReader.inWork() > 0;
    if (m_isResultStale)
        return;
    QVariantMap values = factValues();
    values.insert(valuesOf(m_zoom.isOn() ? resultRoom() : room()));
    values.insert(QStringLiteral("edits"), m_wanted.edits);
    m_askedOf = {m_path, m_wanted.edits};
    m_resultReader.ask({jobs::Reading::Result, m_path, values, m_wanted.files}, jobs::Urgency::Now,
                       [this](const jobs::ReadResult &result) { takeResult(result); });
}

void ComparePreview::takeResult(const jobs::ReadResult &result)
{
    const std::optional<QRectF> part = partIn(result);
    const QImage shown = ScreenLook::ofProcess().shown(result.image, screen());
    m_resultPart = part ? Part{shown, *part} : Part();
    if (!part) {
        m_resultImage = shown;
        m_wholeOf = m_askedOf;
    } else if (m_wholeOf != m_askedOf) {
        m_resultImage = {};
    }
    m_resultFull = result.size();
    m_scaledResult = {};
    takeFoundFrame(result);
    m_resultProblem = result.isReaderGone ? cannotBeShown(result.problem) : result.problem;
    if (m_isResultStale) {
        askForResult();
    } else {
        if (!m_resultImage.isNull() && m_cropFrame->isShown())
            showCropped();
        if (hasResult())
            Q_EMIT resultShown();
    }
    update();
}

void ComparePreview::askForBytes()
{
    QVariantMap values = factValues();
    QStringList files;
    if (!m_wanted.recipe.isEmpty()) {
        values.insert(QStringLiteral("recipe"), m_wanted.recipe);
        files = jobs::filesOf(m_wanted.recipe).value_or(QStringList());
    } else {
        values.insert(QStringLiteral("type"), m_wanted.type);
        values.insert(QStringLiteral("quality"), m_wanted.qualityCode);
    }
    m_bytesReader.ask({jobs::Reading::Bytes, m_path, values, files}, jobs::Urgency::Later,
                      [this](const jobs::ReadResult &result) {
                          const double bytes = result.value("bytes").toDouble();
                          if (!result.isGood() || !(bytes > 0))
                              return;
                          m_estimatedBytes = bytes;
                          Q_EMIT resultEstimated(bytes);
                      });
}

} // namespace window
