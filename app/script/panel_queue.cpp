#include "app/script/panel_queue.h"

#include "app/script/ScriptEngine.h"
#include "app/seam/seam.h"

#include "platform/controls/save_panel.h"
#include "platform/foundation/raised.h"

#include <QJSEngine>

#include <utility>

namespace script {
namespace {

/** Asks the queue first, then the previous provider of panels. */
class QueueProvider : public platform::PanelProvider
{
public:
    explicit QueueProvider(PanelQueue &queue) : m_queue(queue) {}

    platform::PanelAnswer run(const platform::PanelRequest &request) override
    {
        m_queue.record(request);
        if (!m_queue.isEmpty())
            return m_queue.takeAnswer();
        return before ? before->run(request) : platform::PanelAnswer();
    }

    std::unique_ptr<platform::PanelProvider> before;

private:
    PanelQueue &m_queue;
};

QString kindText(platform::PanelKind kind)
{
    switch (kind) {
    case platform::PanelKind::Open:
        return QStringLiteral("open");
    case platform::PanelKind::Save:
        return QStringLiteral("save");
    case platform::PanelKind::Print:
        break;
    }
    return QStringLiteral("print");
}

/** Text that was never set is nothing. */
QVariant textOrNothing(const QString &text)
{
    return text.isEmpty() ? QVariant() : QVariant(text);
}

} // namespace

PanelQueue::PanelQueue(ScriptEngine &scripts) : QObject(&scripts), m_scripts(scripts)
{
    auto provider = std::make_unique<QueueProvider>(*this);
    QueueProvider &ours = *provider;
    ours.before = platform::setPanelProvider(std::move(provider));
}

PanelQueue::~PanelQueue()
{
    std::unique_ptr<platform::PanelProvider> current = platform::setPanelProvider({});
    auto *ours = dynamic_cast<QueueProvider *>(current.get());
    platform::setPanelProvider(ours ? std::move(ours->before) : std::move(current));
}

platform::PanelAnswer PanelQueue::takeAnswer()
{
    const Queued next = std::move(m_answers.front());
    m_answers.pop_front();
    if (next.whileOpen.isCallable()) {
        const auto result = m_scripts.call(next.whileOpen, {});
        if (!result)
            m_scripts.reportUncaught(result.error().message);
    }
    return next.answer;
}

void PanelQueue::record(const platform::PanelRequest &request)
{
    const QVariantMap entry = {
        {QStringLiteral("kind"), kindText(request.kind)},
        {QStringLiteral("files"), request.choosesFiles},
        {QStringLiteral("folders"), request.choosesFolders},
        {QStringLiteral("multiple"), request.choosesSeveral},
        {QStringLiteral("createFolders"), request.createsFolders},
        {QStringLiteral("types"), request.types ? QVariant(*request.types) : QVariant()},
        {QStringLiteral("otherTypes"), request.allowsOtherTypes},
        {QStringLiteral("message"), textOrNothing(request.message)},
        {QStringLiteral("name"), textOrNothing(request.name)},
        {QStringLiteral("folder"), textOrNothing(request.folder)},
        {QStringLiteral("tagField"), request.showsTagField},
    };
    QJSValue shown = m_scripts.seam().values().toScript(entry);
    m_onShown.call({shown});
    if (request.panel)
        connect(request.panel, &platform::SavePanel::allowedTypesChanged, this,
                [this, shown](const QStringList &types) mutable {
                    shown.setProperty(QStringLiteral("types"), m_scripts.seam().values().toScript(types));
                });
}

PanelQueue::Queued PanelQueue::acceptance(const QJSValue &arguments) const
{
    const Values &values = m_scripts.seam().values();
    const int received = arguments.property(QStringLiteral("length")).toInt();
    if (received < 1 || received > 2)
        throw platform::Raised::typeError(
            QStringLiteral("accept takes 1 or 2 arguments but received %1").arg(received));
    Queued queued;
    queued.answer.accepted = true;
    queued.answer.paths = values.textList(arguments.property(0), QStringLiteral("paths"));
    if (received == 1)
        return queued;
    const QJSValue options = arguments.property(1);
    for (const QString &key : values.keysOf(options, QStringLiteral("options"))) {
        const QJSValue value = options.property(key);
        if (key == QStringLiteral("tags"))
            queued.answer.tags = values.textList(value, key);
        else if (key == QStringLiteral("whileOpen") && value.isCallable())
            queued.whileOpen = value;
        else
            throw platform::Raised::typeError(
                QStringLiteral(
                    "Expected tags (a list of texts) or whileOpen (a function) for options but received %1: %2")
                    .arg(key, values.described(value)));
    }
    return queued;
}

void PanelQueue::accept(const QJSValue &arguments)
{
    m_scripts.seam().guarded([&] {
        m_answers.push_back(acceptance(arguments));
        return QJSValue();
    });
}

void PanelQueue::cancel(const QJSValue &arguments)
{
    m_scripts.seam().guarded([&] {
        const int received = arguments.property(QStringLiteral("length")).toInt();
        if (received != 0)
            throw platform::Raised::typeError(
                QStringLiteral("cancel takes no arguments but received %1").arg(received));
        m_answers.push_back({});
        return QJSValue();
    });
}

} // namespace script
